#include "print/tab_stops.h"

#include <algorithm>
#include <cmath>

namespace tarnwell::print {
namespace {

constexpr int kDefaultStops = 720;  // twips apart
constexpr double kLeastAdvance = 1;

}  // namespace

richtext::TabStop NextTabStop(const richtext::ParagraphFormat& format, double x) {
  const auto lies_behind = [&](int position) { return position >= x + kLeastAdvance; };
  const auto named = std::ranges::find_if(format.tabs, [&](const richtext::TabStop& tab) {
    return tab.kind != richtext::TabStop::Kind::kBar && lies_behind(tab.position);
  });
  const bool is_named = named != format.tabs.end();
  if (format.first_line_indent < 0 && lies_behind(format.left_indent) &&
      (!is_named || format.left_indent < named->position)) {
    return {.position = format.left_indent};
  }
  if (is_named) return *named;
  const double stops = std::floor((x + kLeastAdvance) / kDefaultStops) + 1;
  return {.position = static_cast<int>(stops) * kDefaultStops};
}

}  // namespace tarnwell::print
