#include "workarea/document_view.h"

#include <initializer_list>
#include <utility>

#include "forms/disk_trouble.h"
#include "forms/form.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"

namespace tarnwell::workarea {

DocumentView::DocumentView(forms::Container& parent, forms::Context& context)
    : panel(parent, "SSPanel2"),
      format(panel, context, text),
      find(panel, text),
      tools(panel, context, text),
      context_(context),
      question_(context, [this] { return Save(); }) {
  views.Add(actions, "SSOption3", "Disclaimer and How To Use");
  views.Add(actions, "SSOption4", "Comments/Notes");
  views.Add(actions, "SSOption5", "View Document/Policy Etc.");
  find.panel.Cover({&actions});  // the text needs the room
  save.SetToolTip("Save (Ctrl+S)");
  print_options.SetToolTip("Print Options (Ctrl+P)");
  ConnectCommands();
  SetAccess(Access::kNone);
  LendTo(nullptr);
}

void DocumentView::LendTo(DocumentOwner* owner) {
  owner_ = owner;
  if (!owner) ShowChoices(false, false);
}

void DocumentView::AddMenu(forms::MenuItem& menus) {
  forms::MenuItem& menu = format.AddMenu(menus);
  find.AddTo(menu);
  menu.AddCommand("mFM", "Find Next In&sertion Point", tools.find_mark).SetKey("F8");
  menu.LiveWith({&panel});
}

void DocumentView::ConnectCommands() {
  question_.on_change = [this] { panel.form().SetUnsaved(question_.unsaved()); };
  text.on_change = [this] {
    question_.SetUnsaved(true);
    tools.FollowEdit();
  };
  text.on_too_much = [this] {
    panel.form().Message({"Document",
                          "The clipboard holds more than a document has room for. Nothing was "
                          "inserted.",
                          forms::Icon::kExclamation});
  };
  tools.on_change = [this] { question_.SetUnsaved(true); };
  views.on_pick = [this](int option) { owner_->PickView(option); };
  status.on_pick = [this] { owner_->PickStatus(); };
  insert_template.on_click = [this] { owner_->InsertTemplate(); };
  print_options.on_click = [this] { on_print(owner_->ToPrint()); };
  save.on_click = [this] { Save(); };
  exit.on_click = [this] {
    if (Settle()) owner_->Exit();
  };
}

parts::SaveResult DocumentView::Save() {
  if (!owner_->Save()) return parts::SaveResult::kFailed;
  if (on_saved) on_saved();
  return parts::SaveResult::kSaved;
}

void DocumentView::SetAccess(Access access) {
  access_ = access;
  const bool edit = access == Access::kEdit;
  text.SetLocked(!edit);
  tools.Enable(is_readable(), edit);
  find.Enable(is_readable());
  print_options.SetEnabled(is_readable());
  exit.SetEnabled(access != Access::kNone);
  for (forms::Command* command : {&save, &insert_template}) command->SetEnabled(edit);
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

std::optional<std::string> DocumentView::ReadTemplate(std::string_view file) {
  storage::ReadResult supplied = context_.folder.Read(file);
  if (supplied.is_unreadable()) {
    forms::TellUnreadable(context_, "The template", supplied.fault);
    return std::nullopt;
  }
  if (supplied.content.empty()) {
    panel.form().Message({"Insert Template", "No template is supplied for this document.",
                          forms::Icon::kInformation});
    return std::nullopt;
  }
  return std::move(supplied.content);
}

void DocumentView::InsertTemplate(std::string_view file, std::string_view kind, bool is_spare) {
  auto supplied = ReadTemplate(file);
  if (!supplied) return;
  const std::string question =
      "The program has detected an existing " + std::string(kind) +
      "\nIf you insert template and save file the existing file will be overwritten!"
      "\nInsert new Template?";
  if (!text.IsBlank() && !is_spare &&
      !panel.form().Confirmed({"Insert Template", question, forms::Icon::kExclamation,
                               forms::Buttons::kYesNoCancel, 2})) {
    return;
  }
  const forms::Hourglass hourglass(context_.window);
  Show(*std::move(supplied));
  question_.SetUnsaved(true);
}

void DocumentView::OpenNew() {
  Clear();
  SetAccess(Access::kEdit);
}

bool DocumentView::OpenTemplate(std::string_view file) {
  auto supplied = ReadTemplate(file);
  if (!supplied) return false;
  const forms::Hourglass hourglass(context_.window);
  OpenNew();
  Show(*std::move(supplied));
  question_.SetUnsaved(true);
  return true;
}

void DocumentView::PutUnsaved(std::string bytes) {
  Show(std::move(bytes));
  question_.SetUnsaved(true);
}

void DocumentView::Show(std::string bytes) {
  text.SetDocument(richtext::ReadRichText(bytes));
  stored_ = {};
  if (!bytes.empty()) stored_ = richtext::StoredFormOf(std::move(bytes), text.document());
  question_.SetUnsaved(false);
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
  std::string bytes = Bytes();
  if (const auto written = context_.folder.WriteWhole(file, bytes); !written) {
    forms::TellNotSaved(context_, "The text", written.fault());
    return false;
  }
  stored_ = richtext::StoredFormOf(std::move(bytes), text.document());
  question_.SetUnsaved(false);
  return true;
}

void DocumentView::ShowChoices(bool of_status, bool of_text) {
  status_label.SetVisible(of_status);
  status.SetVisible(of_status);
  actions.SetVisible(of_text);
}

void DocumentView::CopyToClipboard() {
  context_.clipboard.SetRichText(richtext::WriteRichText(text.document()));
  panel.form().Message({"Copy Option", "A copy has been copied to the Windows Clipboard.",
                        forms::Icon::kInformation});
}

}  // namespace tarnwell::workarea
