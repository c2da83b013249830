#include "workarea/documents_pane.h"

#include <algorithm>

#include "forms/form.h"
#include "forms/message.h"
#include "forms/navigator.h"
#include "richtext/rich_text_reader.h"
#include "storage/file_names.h"
#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

namespace file_names = storage::file_names;

}  // namespace

DocumentButtons::DocumentButtons(forms::Container& parent, const DocumentGroup& which)
    : group(which), panel(parent, std::string(which.buttons).append("Panel")) {
  for (const DocumentButton& button : group.documents) {
    const std::string name = std::string(group.buttons) + "(" + std::to_string(button.index) + ")";
    buttons.push_back(std::make_unique<forms::Command>(
        panel, name, button.caption, forms::CommandStyle{.tool_tip = button.tool_tip}));
  }
  panel.SetVisible(false);
}

DocumentsPane::DocumentsPane(forms::Container& parent, forms::Context& context, DocumentView& view)
    : DocumentPane(view), context_(context), status_(context, view) {
  for (const DocumentGroup& group : DocumentGroups()) {
    std::vector<forms::Control*> others;  // one group is shown at a time
    for (const auto& row : groups) others.push_back(&row->panel);
    groups.push_back(std::make_unique<DocumentButtons>(parent, group));
    groups.back()->panel.Cover(std::move(others));
    for (std::size_t i = 0; i < group.documents.size(); ++i) {
      groups.back()->buttons[i]->on_click = [this, &group, i] { Choose(group, i); };
    }
  }
}

bool DocumentsPane::Has(Area area) const {
  return std::ranges::any_of(groups, [=](const auto& row) { return row->group.area == area; });
}

void DocumentsPane::Show(Area area) {
  status_.Take("Current Status:", StatusWords());
  Paint(nullptr);
  for (const auto& row : groups) {
    row->panel.SetVisible(row->group.area == area);
    if (row->group.area == area) group_ = &row->group;
  }
  view_.views.Choose(text_);
  view_.ShowChoices(true, true);
  CloseDocument();
}

void DocumentsPane::Hide() {
  view_.panel.form().SetStatus({});
  for (const auto& row : groups) row->panel.SetVisible(false);
}

void DocumentsPane::Paint(const forms::Command* chosen) {
  for (const auto& row : groups) {
    for (const auto& button : row->buttons) button->SetSelected(button.get() == chosen);
  }
}

void DocumentsPane::Choose(const DocumentGroup& group, std::size_t place) {
  const std::string_view form = group.documents[place].form;
  if (document_ == &group.documents[place] || !view_.Settle()) return;
  if (!form.empty()) return context_.navigator.Show(form);
  document_ = &group.documents[place];
  for (const auto& row : groups) {
    if (&row->group == &group) Paint(row->buttons[place].get());
  }
  title_ = text::Trim(document_->tool_tip);
  view_.heading.SetCaption(std::string(group.heading) + title_);
  status_.Show(StatusRecord(number()));
  view_.actions.SetEnabled(true);
  ShowText();
}

void DocumentsPane::CloseDocument() {
  document_ = nullptr;
  title_.clear();
  Paint(nullptr);
  view_.Clear();
  view_.heading.SetCaption("");
  status_.Close();
  view_.actions.SetEnabled(false);
}

void DocumentsPane::PickView(int option) {
  if (!document_ || option == text_) return;
  if (!view_.Settle()) return view_.views.Choose(text_);
  text_ = option;
  ShowText();
}

// The disclaimer is one text for all documents, and only read. Its sections begin with "<".
void DocumentsPane::ShowText() {
  const bool disclaimer = text_ == kDisclaimerText;
  using Access = DocumentView::Access;
  view_.Open(FileOf(text_), disclaimer ? Access::kRead : Access::kEdit);
  if (text_ != kPolicyText) view_.insert_template.SetEnabled(false);
  view_.tools.StartSearch(disclaimer ? "<" : kInsertionMark);
}

std::string DocumentsPane::FileOf(int text) const {
  switch (text) {
    case kDisclaimerText:
      return std::string(file_names::kDisclaimer);
    case kCommentsText:
      return file_names::DocumentComments(number());
    default:
      return file_names::DocumentText(number());
  }
}

std::optional<forms::Draft> DocumentsPane::Place() {
  if (!document_ || text_ == kDisclaimerText) return std::nullopt;
  forms::Draft draft{title_, {FileOf(text_)}, {}};
  draft.Add(number());
  draft.Add(text_);
  return draft;
}

bool DocumentsPane::GoTo(forms::DraftTexts& place) {
  const int wanted = place.NextNumber();
  const int text = place.NextNumber();
  for (std::size_t i = 0; i < group_->documents.size(); ++i) {
    if (group_->base + group_->documents[i].index == wanted) Choose(*group_, i);
  }
  if (!document_ || number() != wanted) return false;
  view_.views.Choose(text);
  PickView(text);
  return text_ == text;
}

PrintedDocument DocumentsPane::ToPrint() {
  return {title_, text_, true, [this](int text) {
            if (text == text_) return PrintedText{view_.text.document()};
            const auto read = context_.folder.Read(FileOf(text));
            return PrintedText{richtext::ReadRichText(read.content),
                               read.is_unreadable() ? read.fault : storage::Fault::kNone};
          }};
}

bool DocumentsPane::Save() {
  if (!document_ || text_ == kDisclaimerText) return true;
  if (!view_.Write(FileOf(text_))) return false;
  forms::ShowMessage(context_,
                     {"File Save Command",
                      text_ == kPolicyText ? "Document, Form, Policy, etc. Has Been Saved/Updated!"
                                           : "File Has Been Saved/Updated!",
                      forms::Icon::kInformation});
  return true;
}

void DocumentsPane::InsertTemplate() {
  view_.InsertTemplate(file_names::DocumentTemplate(number()), "Agreement/Doc.");
}

void DocumentsPane::PickStatus() {
  if (document_) status_.Store(StatusRecord(number()));
}

}  // namespace tarnwell::workarea
