#include "settings/planner_settings.h"

#include "settings/files.h"
#include "text/letters.h"

namespace tarnwell::settings {
namespace {

// Record numbers in GColor3.Fil.
int RecordOf(SortTime owner) { return owner == SortTime::kPlanner ? 58 : 57; }

}  // namespace

int ReadSortTime(storage::ProgramFolder& folder, SortTime owner) {
  return text::Trim(OpenGColor3(folder).GetText(RecordOf(owner))) == "1" ? 1 : 0;
}

storage::Outcome WriteSortTime(storage::ProgramFolder& folder, int option, SortTime owner) {
  return WriteText(folder, {storage::file_names::kGColor3, RecordOf(owner)},
                   option == 1 ? "1" : "0");
}

}  // namespace tarnwell::settings
