#include "workarea/report_names.h"

#include <algorithm>

#include "storage/file_names.h"
#include "text/date_mask.h"
#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

namespace file_names = storage::file_names;

constexpr std::string_view kNameReminder =
    "Please enter Employee Name and Date of Action Prior to Saving!";
constexpr std::string_view kBlankReminder =
    "Please enter Emloyee Name and Date of Action Prior to Saving!";
constexpr std::string_view kJobReminder =
    "Please enter Job Description Name and Date of Action Prior to Saving!";
constexpr std::string_view kNameMissing =
    "Please Enter a Name and Date of Action and Click Save Again!";
constexpr std::string_view kTextMissing =
    "Employee Name and Date and/or Document Must Both Be Entered Prior to Saving!";

constexpr ReportKind kKinds[] = {
    {kJobDescriptions,
     "Company Job Descriptions - Prepare, Store or Review",
     {.list = file_names::kJobDescriptions, .extension = ".Fl5"},
     12,
     14,
     "Enter Job Description saved in Company Agreement/Docs Area?",
     kJobReminder,
     kJobReminder,
     "Please Enter a Job Description Name and Date of Action and Click Save Again!",
     "Job Title and Date and/or Document Must Both Be Entered Prior to Saving!"},
    {kDisciplinaryActions,
     "Employee Disciplinary Actions - Prepare, Store or Review",
     {.list = file_names::kDisciplinaryActions, .extension = ".Fl6"},
     23,
     23,
     "Enter Disciplinary Action Form saved in Company Agreement/Docs Area?",
     kNameReminder,
     kBlankReminder,
     kNameMissing,
     kTextMissing},
    {kEvaluations,
     "Employee Evaluations - Prepare, Store or Review",
     {.list = file_names::kEvaluations, .extension = ".Fl7"},
     26,
     26,
     "Enter Employee Evaluation Form saved in Company Agreement/Docs Area?",
     kNameReminder,
     kBlankReminder,
     kNameMissing,
     kTextMissing},
};

constexpr std::string_view kDateMark = " / ";

// "Ann Lee" of "Ann Lee / 03/09/2026".
std::string WithoutDate(std::string_view name) {
  constexpr std::string_view kForm = " / ##/##/####";
  const std::string_view end = text::Right(name, kForm.size());
  const bool is_dated = std::ranges::equal(end, kForm, [](char letter, char form) {
    return form == '#' ? letter >= '0' && letter <= '9' : letter == form;
  });
  return text::Trim(is_dated ? name.substr(0, name.size() - end.size()) : name);
}

}  // namespace

std::span<const ReportKind> ReportKinds() { return kKinds; }

std::string NameForToday(std::string_view name, text::Date today) {
  return WithoutDate(text::Trim(name))
      .append(kDateMark)
      .append(text::FormatDate(today, "mm/dd/yyyy"));
}

}  // namespace tarnwell::workarea
