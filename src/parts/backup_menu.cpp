#include "parts/backup_menu.h"

#include <cstdint>
#include <memory>

#include "forms/form_names.h"
#include "forms/navigator.h"

namespace tarnwell::parts {
namespace {

constexpr std::int16_t kRestore = 99;

void Open(forms::Context& context, const BackupUse& use, bool restores) {
  if (use.settle && !use.settle()) return;
  context.variables.BackupMode = static_cast<std::int16_t>(use.set + (restores ? 1 : 0));
  context.variables.RestoreMarker = restores ? kRestore : std::int16_t{0};
  context.variables.BackupYear = use.year ? use.year() : 0;
  context.navigator.ShowModal(forms::form_names::kBackup1);
  if (use.reload && !context.navigator.ended()) use.reload();
}

}  // namespace

BackupEntries AddBackupEntries(forms::MenuItem& utilities, forms::Context& context, BackupUse use) {
  const auto shared = std::make_shared<const BackupUse>(std::move(use));
  const auto add = [&](std::string_view name, std::string_view caption,
                       bool restores) -> forms::MenuItem& {
    return utilities.AddEntry(name, caption,
                              [&context, shared, restores] { Open(context, *shared, restores); });
  };
  forms::MenuItem& backup = add("mUB", shared->backup, false);
  return {backup, add("mUR", shared->restore, true)};
}

}  // namespace tarnwell::parts
