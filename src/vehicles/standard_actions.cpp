#include "vehicles/standard_actions.h"

#include <algorithm>

namespace tarnwell::vehicles {

std::string PastAction(std::string_view action) {
  const auto* known = std::ranges::find(kStandardActions, action, &StandardAction::name);
  return std::string(known == kStandardActions.end() ? action : known->in_past);
}

}  // namespace tarnwell::vehicles
