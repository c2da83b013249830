#include "planner/recurrence_messages.h"

#include "text/date_mask.h"

namespace tarnwell::planner {

std::optional<RecurrenceMessage> RunReport(const RecurrenceCounts& counts) {
  if (counts.full_days <= 0 && counts.entries_made <= 0) return std::nullopt;
  std::string text;
  if (counts.full_days > 0) {
    const bool one = counts.full_days == 1;
    text += one ? "There was " : "There were ";
    text += std::to_string(counts.full_days);
    text += one ? " date that was" : " dates that were";
    text += " full and this Appointment\ncould not entered for ";
    text += one ? "that date!" : "those dates!";
    text += "\n\n";
  }
  text += "The recurrence option did make " + std::to_string(counts.entries_made) +
          " entry(ies).\n[Note: If Appointment already exists it was not entered again!]";
  return RecurrenceMessage{"Recurrence Option", text};
}

RecurrenceMessage FailureReport(int failed_days, std::string_view reason) {
  const std::string dates = failed_days == 1 ? " date" : " dates";
  return {"Not Saved", std::to_string(failed_days) + dates +
                           " could not be changed: " + std::string(reason) + "."};
}

RecurrenceMessage Interruption(EndKind end_kind, text::Date last_tried) {
  return {"Recurrence Interruption!",
          "Recurrence File Update has been Stopped Prior to Completion!\n"
          "Not all updates have been accomplished!\n"
          "Last entry date was:" +
              std::string(end_kind == EndKind::kEndDateAfter ? " " : "") +
              text::FormatDate(last_tried, "ddd - mm/dd/yyyy")};
}

RecurrenceMessage NoOptionSelected() {
  return {"OK Button Selection",
          "No Recurrence Option was selected!\n"
          "Please Select Option Desired before clicking the OK Button."};
}

RecurrenceMessage TenYearsExceeded() {
  return {"Recurrence Option Maximum Year Requirement",
          "Program years have exceeded 10 year maximum!\n"
          "Appropriate changes will been made."};
}

RecurrenceMessage RemovalQuestion() {
  return {"Remove This Recurrence",
          "Are you sure we want to remove the recurrences of this appointment?\n"
          "Note: The Removal action will check each day between the Selected\n"
          "          Beginning Date and End Date and remove the appointment."};
}

}  // namespace tarnwell::planner
