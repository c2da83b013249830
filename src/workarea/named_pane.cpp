#include "workarea/named_pane.h"

#include <algorithm>
#include <initializer_list>

#include "forms/disk_trouble.h"
#include "forms/form.h"
#include "forms/message.h"

namespace tarnwell::workarea {
namespace {

constexpr const char* kSelectTitle = "Select New Report - Insert Template";
constexpr const char* kListWords = "The list of names";

std::string CountOf(std::size_t count, const std::string& kind) {
  const std::string words = count == 1 ? "is 1 Entry" : "are " + std::to_string(count) + " Entries";
  return "There " + words + " - " + kind;
}

}  // namespace

void NamedPane::TakePanel(const NamedDocumentKind& kind) {
  documents_.emplace(context_.folder, kind);
  names_.list.on_pick = [this] { PickName(); };
  names_.select.on_click = [this] { SelectExisting(); };
  names_.remove.on_click = [this] { DeletePicked(); };
  names_.panel.SetVisible(true);
  view_.ShowChoices(false, false);
  view_.tools.StartSearch(kInsertionMark);
}

void NamedPane::Hide() {
  names_.panel.SetVisible(false);
  view_.panel.form().SetStatus({});
}

void NamedPane::SetState(State state) {
  state_ = state;
  const bool selects = state == State::kSelect;
  names_.prompt.SetCaption(selects ? "Select Existing Report" : "Enter Name and Date Above");
  names_.list.SetVisible(selects);
  names_.name.SetVisible(!selects);
}

// Names that can't be read aren't chosen.
void NamedPane::ReadNames() {
  const storage::Outcome read = documents_->Read();
  names_.list.SetItems(read ? documents_->Names() : std::vector<std::string>{"Can't be read"});
  names_.list.SetEnabled(static_cast<bool>(read));
  const std::string note = read ? "" : forms::UnreadableNote(kListWords, read.fault());
  view_.panel.form().SetStatus(note.substr(0, note.find('\n')));
  view_.heading.SetCaption(read ? CountOf(names_.list.items().size(), KindWord()) : "");
}

void NamedPane::SelectExisting() {
  if (!SettleBefore("before next Action?")) return;
  OfferNames();
  if (!names_.list.items().empty()) return names_.list.Focus();
  forms::ShowMessage(context_,
                     {kSelectTitle, "There are currently no Existing/Saved " + KindWord() + "!",
                      forms::Icon::kInformation});
}

void NamedPane::CloseDocument() {
  shown_.clear();
  names_.name.SetText("");
  names_.list.Select(forms::ComboBox::kNone);
  view_.Clear();
  view_.heading.SetCaption("");
}

void NamedPane::OfferNames() {
  CloseDocument();
  SetState(State::kSelect);
  ReadNames();
  view_.exit.SetEnabled(true);
}

void NamedPane::MarkShown() {
  const auto& items = names_.list.items();
  const auto found = std::ranges::find(items, shown_);
  names_.list.Select(found == items.end() ? forms::ComboBox::kNone
                                          : static_cast<int>(found - items.begin()));
}

void NamedPane::PickName() {
  const std::string picked = names_.list.text();
  if (picked == shown_) return;
  if (!SettleBefore("before next Action?")) return MarkShown();
  ShowDocument(picked);
}

void NamedPane::OpenNamed(const std::string& name, DocumentView::Access access) {
  SetState(State::kSelect);
  ReadNames();
  shown_ = name;
  MarkShown();
  const std::string file = documents_->FileOf(name);
  view_.Open(file, access);
  view_.tools.StartSearch(kInsertionMark);
  if (!context_.folder.Exists(file)) {
    view_.panel.form().SetStatus("The document of this name isn't there any more.");
  }
}

void NamedPane::DeletePicked() {
  if (state_ != State::kSelect || names_.list.selected() == forms::ComboBox::kNone) return;
  const std::string name = names_.list.text();
  const std::string question = "Are you sure you want to delete file [ " + name + " ]?";
  if (!view_.panel.form().Confirmed(
          {"Delete File!", question, forms::Icon::kCritical, forms::Buttons::kYesNo, 2})) {
    return;
  }
  const auto deleted = documents_->Delete(name);
  if (!deleted) forms::TellRefused(context_, "The deletion", deleted.fault(), "The name stays.");
  if (deleted || !context_.folder.Exists(documents_->FileOf(name))) OfferNames();
}

bool NamedPane::ReadKind(const NamedDocumentKind& kind) {
  documents_.emplace(context_.folder, kind);
  const auto read = documents_->Read();
  if (!read) forms::TellUnreadable(context_, kListWords, read.fault());
  return static_cast<bool>(read);
}

// The document comes first: on a full disk it can be taken back, an entry couldn't.
bool NamedPane::Keep(std::string_view name,
                     const std::function<bool(const std::string& file)>& write) {
  const std::string file = documents_->FileOf(name);
  const bool was_there = documents_->Has(name);
  if (context_.folder.Exists(file) && !context_.folder.Open(file, storage::OpenMode::kRead)) {
    forms::TellNotSaved(context_, "The document", context_.folder.fault());
    return false;  // nothing is written over what can't be read
  }
  if (!write(file)) return false;
  if (documents_->IsListed(name)) return true;
  const auto added = documents_->Add(name);
  if (added) return true;
  if (!was_there) context_.folder.Delete(file);
  forms::TellNotSaved(context_, kListWords, added.fault());
  return false;
}

bool NamedPane::SettleBefore(std::string_view action) {
  const std::string text = "Save Current Document, etc. " + std::string(action);
  return view_.Settle({kSelectTitle, text, forms::Buttons::kYesNoCancel});
}

PrintedDocument NamedPane::ToPrint() {
  return {.title = Title(), .text = [this](int) { return PrintedText{view_.text.document()}; }};
}

}  // namespace tarnwell::workarea
