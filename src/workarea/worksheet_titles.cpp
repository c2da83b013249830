#include "workarea/worksheet_titles.h"

#include "storage/file_names.h"
#include "storage/record_file.h"
#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

constexpr int kTitleLength = 20;

}  // namespace

storage::Outcome WorksheetTitles::Read(storage::ProgramFolder& folder) {
  storage::RecordFile file(folder, storage::file_names::kWorksheetTitles, kTitleLength);
  for (int number = 1; number <= kWorksheetCount; ++number) {
    titles_[static_cast<std::size_t>(number)] = file.GetText(number);
  }
  // A file that couldn't be made is missing.
  const bool is_unreadable =
      file.has_failed() && folder.Exists(storage::file_names::kWorksheetTitles);
  return is_unreadable ? file.fault() : storage::Outcome();
}

storage::Outcome WorksheetTitles::Change(storage::ProgramFolder& folder, const NewTitles& titles) {
  storage::Outcome changed;
  {
    storage::RecordFile file(folder, storage::file_names::kWorksheetTitles, kTitleLength);
    bool all_put = true;
    for (int number = 1; number <= kWorksheetCount && all_put; ++number) {
      const std::string& title = titles[static_cast<std::size_t>(number) - 1];
      if (!title.empty()) all_put = file.PutText(number, title);
    }
    changed = file.Finish(all_put);
  }
  const storage::Outcome read = Read(folder);
  return changed ? read : changed;
}

std::string WorksheetTitles::Caption(int number) const {
  return text::Trim(titles_[static_cast<std::size_t>(number)]);
}

}  // namespace tarnwell::workarea
