#include "settings/planner_settings.h"

#include "settings/files.h"
#include "text/letters.h"

namespace tarnwell::settings {
namespace {

constexpr int kSortTime = 58;

}  // namespace

int ReadSortTime(storage::ProgramFolder& folder) {
  return text::Trim(OpenGColor3(folder).GetText(kSortTime)) == "1" ? 1 : 0;
}

void WriteSortTime(storage::ProgramFolder& folder, int option) {
  OpenGColor3(folder).PutText(kSortTime, option == 1 ? "1" : "0");
}

}  // namespace tarnwell::settings
