#include "workarea/document_status.h"

#include <algorithm>

#include "storage/file_names.h"
#include "storage/record_file.h"
#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

constexpr int kRecordLength = 20;

constexpr std::string_view kWords[] = {" ",         "Pending", "Working",
                                       "Completed", "Review",  kNotImplemented};
constexpr std::string_view kComplianceWords[] = {" ", "Yes", "No", "Partial", "Planned"};

}  // namespace

std::span<const std::string_view> StatusWords() { return kWords; }
std::span<const std::string_view> ComplianceWords() { return kComplianceWords; }

storage::Outcome DocumentStatus::Read(storage::ProgramFolder& folder) {
  storage::RecordFile file(folder, storage::file_names::kDocumentStatus, kRecordLength);
  for (int record = 1; record <= kStatusRecords; ++record) {
    words_[static_cast<std::size_t>(record)] = file.GetText(record);
  }
  // A file that couldn't be made is missing.
  const bool is_unreadable =
      file.has_failed() && folder.Exists(storage::file_names::kDocumentStatus);
  return is_unreadable ? file.fault() : storage::Outcome();
}

storage::Outcome DocumentStatus::Put(storage::ProgramFolder& folder, int record,
                                     std::string_view word) {
  storage::RecordFile file(folder, storage::file_names::kDocumentStatus, kRecordLength);
  if (!file.PutText(record, word) || !file.Close()) return file.fault();
  words_[static_cast<std::size_t>(record)] = word;
  return {};
}

std::string_view DocumentStatus::operator[](int record) const {
  if (record < 1 || record > kStatusRecords) return {};
  return words_[static_cast<std::size_t>(record)];
}

int DocumentStatus::PlaceOf(int record, std::span<const std::string_view> words) const {
  const auto found = std::ranges::find(words, text::Trim((*this)[record]), text::Trim);
  return found == words.end() ? 0 : static_cast<int>(found - words.begin());
}

}  // namespace tarnwell::workarea
