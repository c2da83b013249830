#include "workarea/document_view.h"

#include <initializer_list>
#include <utility>

#include "forms/form.h"
#include "richtext/rich_text_reader.h"

namespace tarnwell::workarea {

DocumentView::DocumentView(forms::Container& parent, forms::Context& context)
    : panel(parent, "SSPanel2"), tools(panel, context, text), context_(context) {
  views.Add(actions, "SSOption3", "Disclaimer and How To Use");
  views.Add(actions, "SSOption4", "Comments/Notes");
  views.Add(actions, "SSOption5", "View Document/Policy Etc.");
  text.on_change = [this] { unsaved_ = true; };
  tools.on_change = [this] { unsaved_ = true; };
  save.on_click = [this] {
    if (on_save) on_save();
  };
  SetAccess(Access::kNone);
}

void DocumentView::SetAccess(Access access) {
  access_ = access;
  const bool read = access != Access::kNone;
  const bool edit = access == Access::kEdit;
  text.SetLocked(!edit);
  tools.Enable(read, edit);
  for (forms::Command* command : {&print_options, &exit}) command->SetEnabled(read);
  for (forms::Command* command : {&save, &insert_template}) command->SetEnabled(edit);
  if (on_state) on_state();
}

void DocumentView::Open(std::string_view file) {
  Load(file);
  unsaved_ = false;
}

void DocumentView::OpenTemplate(std::string_view file) {
  Load(file);
  unsaved_ = true;
}

void DocumentView::InsertTemplate(std::string_view file, std::string_view kind) {
  const std::string question =
      "The program has detected an existing " + std::string(kind) +
      "\nIf you insert template and save file the existing file will be overwritten!"
      "\nInsert new Template?";
  if (text.IsBlank() ||
      panel.form().Confirmed({"Insert Template", question, forms::Icon::kExclamation,
                              forms::Buttons::kYesNoCancel, 2})) {
    OpenTemplate(file);
  }
}

void DocumentView::Load(std::string_view file) {
  const forms::Hourglass hourglass(context_.window);
  Clear();
  std::string bytes = context_.folder.ReadWhole(file).value_or("");
  if (bytes.empty()) return;
  text.SetDocument(richtext::ReadRichText(bytes));
  stored_ = richtext::StoredFormOf(std::move(bytes), text.document());
  if (!text.document().is_part) return;
  panel.form().Message({"Document",
                        "This document is too long to be shown whole. Its beginning can be read "
                        "and copied, but not changed; the file stays as it is.",
                        forms::Icon::kInformation});
}

void DocumentView::Clear() {
  stored_ = {};
  text.Clear();
  unsaved_ = false;
}

bool DocumentView::Write(std::string_view file) {
  const forms::Hourglass hourglass(context_.window);
  std::string bytes = richtext::SaveRichText(text.document(), stored_);
  if (!context_.folder.WriteWhole(file, bytes)) return false;
  stored_ = richtext::StoredFormOf(std::move(bytes), text.document());
  unsaved_ = false;
  return true;
}

bool DocumentView::Settle() {
  if (!unsaved_) return true;
  if (panel.form().Confirmed({"Save Changes?", "Save changes/entries before next action?",
                              forms::Icon::kQuestion, forms::Buttons::kYesNo})) {
    return on_save && on_save();
  }
  unsaved_ = false;
  return true;
}

}  // namespace tarnwell::workarea
