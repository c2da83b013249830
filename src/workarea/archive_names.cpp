#include "workarea/archive_names.h"

#include <cstddef>

#include "storage/file_names.h"
#include "text/date_mask.h"
#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

constexpr std::size_t kTitleLetters = 28;

}  // namespace

NamedDocumentKind ArchiveKind() {
  return {.list = storage::file_names::kArchive, .extension = ".Fla", .lists_files = true};
}

std::string ArchiveName(std::string_view title, text::Date day) {
  return parts::UserNames::AsListed(text::Trim(text::Left(title, kTitleLetters))) + " " +
         text::FormatDate(day, "mmm-dd-yy");
}

}  // namespace tarnwell::workarea
