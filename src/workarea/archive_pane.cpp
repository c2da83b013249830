#include "workarea/archive_pane.h"

#include "forms/disk_trouble.h"
#include "forms/form.h"
#include "richtext/plain_text.h"
#include "text/letters.h"
#include "workarea/archive_names.h"

namespace tarnwell::workarea {
namespace {

constexpr const char* kArchiveSelect = "Archive Select";

// Blanks are something to keep.
bool IsEmpty(const forms::RichTextBox& text) {
  return text.IsBlank() && richtext::PlainText(text.document()).empty();
}

}  // namespace

void ArchivePane::Show(Area) {
  TakePanel(ArchiveKind());
  names_.title.SetCaption(
      "Archived Policies, Documents, Disaster Recovery Plan, Print and Copy (Only)");
  names_.list_heading.SetCaption("Document Title\nand Date Archived");
  names_.list_heading.SetVisible(true);
  for (forms::Command* of_others : {&names_.new_report, &names_.new_blank}) {
    of_others->SetVisible(false);
  }
  names_.select.Click();
}

void ArchivePane::ShowDocument(const std::string& name) {
  OpenNamed(name, DocumentView::Access::kRead);
  view_.heading.SetCaption("Archive Document/Date of Archive:  " + name);
  names_.title.SetCaption(
      "Archived Policies, Documents, Disaster Recovery Plan, etc. - Print/Copy (Only)");
}

PaneMenu ArchivePane::Menu() {
  PaneMenu menu = NamedPane::Menu();
  for (const char* of_others : {"mOArchive", "mOArchiveV"}) menu.erase(of_others);
  return menu;
}

void ArchivePane::Create(std::string_view title) {
  forms::Form& form = view_.panel.form();
  const auto refuse = [&](const char* why) {
    form.Message({kArchiveSelect, why, forms::Icon::kExclamation});
  };
  if (text::Trim(title).empty()) return refuse("Appropriate Form Name is Missing!");
  if (IsEmpty(view_.text)) {
    return refuse(
        "Appropriate Document (Document, Form, Policy, etc.) Is NOT Currently Displayed!");
  }
  if (!ReadKind(ArchiveKind())) return;
  const std::string name = ArchiveName(title, context_.clock.Today());
  if (!form.Confirmed({"Make Archive Copy of Policies, Rish Analysis, Incident Reports",
                       "Make Archive Copy of [ " + name + " ]?", forms::Icon::kQuestion,
                       forms::Buttons::kYesNoCancel, 2})) {
    return;
  }
  if (documents().Has(name) &&
      !form.Confirmed({"Replace Existing Archive File?",
                       "File by Same Name and Date [ " + name +
                           " ] already Exists!\nDo you want to Replace it?",
                       forms::Icon::kQuestion, forms::Buttons::kYesNo, 2})) {
    return;
  }
  const bool is_kept = Keep(name, [&](const std::string& file) {
    const auto written = context_.folder.WriteWhole(file, view_.Bytes());
    if (!written) forms::TellNotSaved(context_, "The archived copy", written.fault());
    return static_cast<bool>(written);
  });
  if (is_kept) {
    form.Message(
        {"Archive File Save", "Archived File Has Been Created.", forms::Icon::kInformation});
  }
}

}  // namespace tarnwell::workarea
