#include "workarea/recovery_plan_pane.h"

#include "forms/message.h"
#include "storage/file_names.h"

namespace tarnwell::workarea {
namespace {

namespace file_names = storage::file_names;

constexpr const char* kPlanTitle = "Disaster Recovery Plan";

void ShowInformation(forms::Context& context) {
  forms::ShowMessage(
      context,
      {"Disaster Recovery Plan Information",
       "In response to a request from a user, we have included a copy of a sample Disaster "
       "Recovery Plan. \n"
       "This plan is for a larger organization and may or may not be applicable to your "
       "organization.\n"
       "Hopefully, it will give you some ideas on how to address disaster recovery in your "
       "situation.\n"
       "If you are a small provider then much of this plan can be cut down or covered in a few "
       "sentences instead of the lists and so forth as contained in this plan.\n"
       "You can use this template to make changes in this program and save your changes, etc. or "
       "you can copy and paste this document into your word processor and work on it there.",
       forms::Icon::kInformation});
}

}  // namespace

void RecoveryPlanPane::Show(Area) {
  view_.ShowChoices(false, false);
  view_.heading.SetCaption(std::string(" Document: ") + kPlanTitle);
  view_.tools.StartSearch(kInsertionMark);
  const bool has_plan = HasPlan();
  view_.Open(has_plan ? file_names::kRecoveryPlan : file_names::kRecoveryPlanInformation,
             DocumentView::Access::kEdit);
  if (!has_plan) ShowInformation(context_);
}

// The explanation, saved as it stands, is none; what can't be read may be one.
bool RecoveryPlanPane::HasPlan() const {
  const auto plan = context_.folder.Read(file_names::kRecoveryPlan);
  if (plan.is_unreadable()) return true;
  return !plan.content.empty() &&
         plan.content != context_.folder.Read(file_names::kRecoveryPlanInformation).content;
}

std::optional<forms::Draft> RecoveryPlanPane::Place() {
  return forms::Draft{kPlanTitle, {std::string(file_names::kRecoveryPlan)}, {}};
}

bool RecoveryPlanPane::GoTo(forms::DraftTexts&) { return true; }

PrintedDocument RecoveryPlanPane::ToPrint() {
  return {.title = kPlanTitle, .text = [this](int) { return PrintedText{view_.text.document()}; }};
}

bool RecoveryPlanPane::Save() {
  if (!view_.Write(file_names::kRecoveryPlan)) return false;
  forms::ShowMessage(context_, {"File Save Command", "Disaster Recovery Plan Has Been Saved!",
                                forms::Icon::kInformation});
  return true;
}

void RecoveryPlanPane::InsertTemplate() {
  const bool is_explanation = !view_.unsaved() && !HasPlan();
  view_.InsertTemplate(file_names::kRecoveryPlanTemplate, "Disaster Recovery Plan.",
                       is_explanation);
}

void RecoveryPlanPane::CloseDocument() {
  view_.Clear();
  view_.heading.SetCaption("");
}

}  // namespace tarnwell::workarea
