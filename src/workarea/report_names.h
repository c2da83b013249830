// The reports that the user names, what they are called, and the words of their areas.

#pragma once

#include <span>
#include <string>
#include <string_view>

#include "text/date.h"
#include "workarea/areas.h"
#include "workarea/named_documents.h"

namespace tarnwell::workarea {

struct ReportKind {
  Area area;
  std::string_view title;  // of the panel
  NamedDocumentKind files;
  int document;                   // the number of its template, and of the user's own
  int inserted_document;          // of what "Insert Template" puts into a report
  std::string_view own_question;  // whether to use the user's own
  std::string_view template_reminder;
  std::string_view blank_reminder;
  std::string_view name_missing;
  std::string_view text_missing;
};

std::span<const ReportKind> ReportKinds();

// The name that is proposed for a new report like the one called `name`: with today's date, in the
// place of the date that the program gave that one.
std::string NameForToday(std::string_view name, text::Date today);

}  // namespace tarnwell::workarea
