// What archived copies are called.

#pragma once

#include <string>
#include <string_view>

#include "text/date.h"
#include "workarea/named_documents.h"

namespace tarnwell::workarea {

NamedDocumentKind ArchiveKind();

// The beginning of the document's title, 28 characters of it, and the day: "Cell Phone Use Policy
// Mar-09-26". So two copies of a day, and two titles with the same beginning, have one name.
std::string ArchiveName(std::string_view title, text::Date day);

}  // namespace tarnwell::workarea
