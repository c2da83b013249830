#include "workarea/document_view.h"

#include <initializer_list>
#include <utility>

#include "forms/disk_trouble.h"
#include "forms/form.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"

namespace tarnwell::workarea {

DocumentView::DocumentView(forms::Container& parent, forms::Context& context)
    : panel(parent, "SSPanel2"), tools(panel, context, text), context_(context) {
  views.Add(actions, "SSOption3", "Disclaimer and How To Use");
  views.Add(actions, "SSOption4", "Comments/Notes");
  views.Add(actions, "SSOption5", "View Document/Policy Etc.");
  text.on_change = [this] {
    unsaved_ = true;
    tools.FollowEdit();
  };
  tools.on_change = [this] { unsaved_ = true; };
  save.on_click = [this] {
    if (on_save) on_save();
  };
  SetAccess(Access::kNone);
}

void DocumentView::SetAccess(Access access) {
  access_ = access;
  const bool edit = access == Access::kEdit;
  text.SetLocked(!edit);
  tools.Enable(is_readable(), edit);
  print_options.SetEnabled(is_readable());
  exit.SetEnabled(access != Access::kNone);
  for (forms::Command* command : {&save, &insert_template}) command->SetEnabled(edit);
  if (on_state) on_state();
}

void DocumentView::Open(std::string_view file, Access access) {
  const forms::Hourglass hourglass(context_.window);
  Clear();
  storage::ReadResult read = context_.folder.Read(file);
  if (read.is_unreadable()) {
    text.SetDocument(richtext::FromPlainText(forms::UnreadableNote("This text", read.fault)));
    return SetAccess(Access::kUnreadable);
  }
  Show(std::move(read.content));
  SetAccess(access);
}

void DocumentView::InsertTemplate(std::string_view file, std::string_view kind, bool is_spare) {
  storage::ReadResult supplied = context_.folder.Read(file);
  if (supplied.is_unreadable()) {
    return forms::TellUnreadable(context_, "The template", supplied.fault);
  }
  forms::Form& form = panel.form();
  if (supplied.content.empty()) {
    form.Message({"Insert Template", "No template is supplied for this document.",
                  forms::Icon::kInformation});
    return;
  }
  const std::string question =
      "The program has detected an existing " + std::string(kind) +
      "\nIf you insert template and save file the existing file will be overwritten!"
      "\nInsert new Template?";
  if (!text.IsBlank() && !is_spare &&
      !form.Confirmed({"Insert Template", question, forms::Icon::kExclamation,
                       forms::Buttons::kYesNoCancel, 2})) {
    return;
  }
  const forms::Hourglass hourglass(context_.window);
  Show(std::move(supplied.content));
  unsaved_ = true;
}

void DocumentView::Show(std::string bytes) {
  text.SetDocument(richtext::ReadRichText(bytes));
  stored_ = {};
  if (!bytes.empty()) stored_ = richtext::StoredFormOf(std::move(bytes), text.document());
  unsaved_ = false;
  if (!text.document().is_part) return;
  panel.form().Message({"Document",
                        "This document is too long to be shown whole. Its beginning can be read "
                        "and copied, but not changed; the file stays as it is.",
                        forms::Icon::kInformation});
}

void DocumentView::Clear() {
  Show({});
  SetAccess(Access::kNone);
}

bool DocumentView::Write(std::string_view file) {
  const forms::Hourglass hourglass(context_.window);
  std::string bytes = richtext::SaveRichText(text.document(), stored_);
  if (const auto written = context_.folder.WriteWhole(file, bytes); !written) {
    forms::TellNotSaved(context_, "The text", written.fault());
    return false;
  }
  stored_ = richtext::StoredFormOf(std::move(bytes), text.document());
  unsaved_ = false;
  return true;
}

bool DocumentView::OfferToSave() {
  if (!unsaved_ || !panel.form().Confirmed({"Save Changes?",
                                            "Save changes/entries before next action?",
                                            forms::Icon::kQuestion, forms::Buttons::kYesNo})) {
    return true;
  }
  return on_save && on_save();
}

bool DocumentView::Settle() { return OfferToSave() || forms::AskToLeaveUnsaved(context_); }

}  // namespace tarnwell::workarea
