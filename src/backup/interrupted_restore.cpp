#include "backup/interrupted_restore.h"

#include <string>

#include "forms/disk_trouble.h"
#include "forms/message.h"
#include "storage/replacement.h"

namespace tarnwell::backup {

bool SettleInterruptedRestore(forms::Context& context) {
  const storage::RecoveredReplacement recovered = storage::RecoverReplacement(context.folder);
  const std::string what = "A restore was interrupted: " + recovered.what + ".\n";
  switch (recovered.recovery) {
    case storage::Recovery::kNone:
      return true;
    case storage::Recovery::kUndone:
      forms::ShowMessage(context, {"Interrupted Restore",
                                   what + "It was undone: your files are as they were before it.",
                                   forms::Icon::kInformation});
      return true;
    case storage::Recovery::kFinished:
      forms::ShowMessage(context, {"Interrupted Restore",
                                   what + "It was finished: your files are those of the backup.",
                                   forms::Icon::kInformation});
      return true;
    case storage::Recovery::kStuck:
      break;
  }
  forms::ShowMessage(
      context,
      {"Interrupted Restore",
       "A restore was interrupted, and can't be finished or undone: " +
           std::string(forms::ReasonOf(recovered.fault)) +
           ".\nNothing is lost, but the program can't go on until the disk can be written again.",
       forms::Icon::kCritical});
  return false;
}

}  // namespace tarnwell::backup
