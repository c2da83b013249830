#include "workarea/worksheets_pane.h"

#include "forms/disk_trouble.h"
#include "forms/form.h"
#include "forms/message.h"
#include "richtext/rich_text_reader.h"
#include "storage/file_names.h"

namespace tarnwell::workarea {
namespace {

namespace file_names = storage::file_names;

constexpr const char* kAreaTitle = "Company - Additional Docs.";

// A title has no mnemonic: each "&" of the user's is shown.
std::string AsCaption(const std::string& title) {
  std::string caption;
  for (const char letter : title) caption.append(letter == '&' ? 2 : 1, letter);
  return caption;
}

}  // namespace

WorksheetsPane::WorksheetsPane(forms::Container& form, forms::Container& parent,
                               forms::Context& context, DocumentView& view)
    : DocumentPane(view),
      panel(parent, "SSCommand12Panel"),
      terms(view.panel, "SSCommand22", "Compliance Status Terms"),
      references(parent, view),
      titles(form, context),
      context_(context),
      status_(context, view) {
  for (int number = 1; number <= kWorksheetCount; ++number) {
    buttons.push_back(
        std::make_unique<forms::Command>(panel, "SSCommand12(" + std::to_string(number) + ")", ""));
    buttons.back()->SetSpokenName("Worksheet " + std::to_string(number));
    buttons.back()->on_click = [this, number] { Choose(number); };
  }
  panel.SetVisible(false);
  terms.SetVisible(false);
  references.panel.Cover({&panel});
  terms.on_click = [this] { ExplainTerms(); };
  references.views.on_pick = [this](int reference) { OpenReference(reference); };
  titles.on_save = [this](const NewTitles& changed) { return ChangeTitles(changed); };
}

void WorksheetsPane::Show(Area) {
  const forms::Hourglass hourglass(context_.window);
  ShowStatus(true);
  view_.insert_template.SetCaption("New Worksheet");
  references.frame.SetVisible(true);
  panel.SetVisible(true);
  status_.Take(" Compliance Status:", ComplianceWords());
  titles_fault_ = stored_.Read(context_.folder).fault();
  if (titles_fault_ != storage::Fault::kNone) {
    const std::string note = forms::UnreadableNote("The titles", titles_fault_);
    view_.panel.form().SetStatus(note.substr(0, note.find('\n')));
  }
  ShowTitles();
  CloseDocument();
}

// The rule has none.
void WorksheetsPane::ShowStatus(bool shown) {
  view_.ShowChoices(shown, false);
  terms.SetVisible(shown);
}

void WorksheetsPane::Hide() {
  titles.Close();
  references.Close();
  references.frame.SetVisible(false);
  terms.SetVisible(false);
  panel.SetVisible(false);
  view_.insert_template.SetCaption("&Insert Template");
  view_.panel.form().SetStatus({});
}

// A worksheet that has a text can be reached, whatever its title.
void WorksheetsPane::ShowTitles() {
  bool is_any = false;
  for (int number = 1; number <= kWorksheetCount; ++number) {
    forms::Command& button = *buttons[static_cast<std::size_t>(number) - 1];
    const std::string title = stored_.Caption(number);
    button.SetCaption(AsCaption(title));
    button.SetToolTip(title);
    button.SetVisible(stored_.IsSet(number) ||
                      context_.folder.Length(file_names::Worksheet(number)) > 0);
    is_any |= button.visible();
  }
  if (!is_any && titles_fault_ == storage::Fault::kNone) {
    view_.panel.form().SetStatus("Options, Add/Edit/Delete Button Titles makes the first button.");
  }
}

void WorksheetsPane::Paint() {
  for (int number = 1; number <= kWorksheetCount; ++number) {
    buttons[static_cast<std::size_t>(number) - 1]->SetSelected(number == number_);
  }
}

std::string WorksheetsPane::Heading() const {
  const std::string title = stored_.Caption(number_);
  return std::string(kAreaTitle) + (title.empty() ? "" : " - " + title);
}

void WorksheetsPane::Choose(int number) {
  if (number == number_ || !view_.Settle()) return;
  number_ = number;
  Paint();
  view_.heading.SetCaption(Heading());
  status_.Show(WorksheetRecord(number));
  view_.Open(file_names::Worksheet(number), DocumentView::Access::kEdit);
  view_.tools.StartSearch(kInsertionMark);
}

void WorksheetsPane::OpenReference(int reference) {
  if (!view_.Settle()) return references.views.Choose(forms::OptionGroup::kNone);
  number_ = 0;
  Paint();
  status_.Close();
  ShowStatus(false);
  references.Open(reference);
}

void WorksheetsPane::Exit() {
  CloseDocument();
  ShowStatus(true);
}

void WorksheetsPane::CloseDocument() {
  number_ = 0;
  Paint();
  references.Close();
  status_.Close();
  view_.Clear();
  view_.heading.SetCaption("");
}

std::optional<forms::Draft> WorksheetsPane::Place() {
  if (number_ == 0) return std::nullopt;
  forms::Draft draft{Heading(), {file_names::Worksheet(number_)}, {}};
  draft.Add(number_);
  return draft;
}

bool WorksheetsPane::GoTo(forms::DraftTexts& place) {
  const int number = place.NextNumber();
  if (number < 1 || number > kWorksheetCount) return false;
  Choose(number);
  return number_ == number;
}

bool WorksheetsPane::Save() {
  if (number_ == 0) return true;
  if (view_.text.IsBlank()) {
    if (!status_.Forget(WorksheetRecord(number_))) return false;
    status_.Show(WorksheetRecord(number_));
    forms::ShowMessage(context_,
                       {"File Save Command",
                        "An empty worksheet is not written: what was saved before stays. Its "
                        "compliance status has been cleared.",
                        forms::Icon::kInformation});
    return true;
  }
  if (!view_.Write(file_names::Worksheet(number_))) return false;
  forms::ShowMessage(context_,
                     {"File Save Command", "Document, Form, Policy, etc. Has Been Saved/Updated!",
                      forms::Icon::kInformation});
  return true;
}

void WorksheetsPane::InsertTemplate() {
  const bool has_text =
      context_.folder.Length(file_names::Worksheet(number_)) > 0 || !view_.text.IsBlank();
  if (has_text && !view_.panel.form().Confirmed(
                      {"New Worksheet", stored_.Caption(number_) + " worksheet!\nNew Worksheet?",
                       forms::Icon::kExclamation, forms::Buttons::kYesNoCancel, 2})) {
    return;
  }
  view_.OpenTemplate(file_names::kWorksheetTemplate);
}

void WorksheetsPane::PickStatus() {
  if (number_ != 0) status_.Store(WorksheetRecord(number_));
}

void WorksheetsPane::OpenTitles() {
  if (titles_fault_ != storage::Fault::kNone) {
    return forms::TellUnreadable(context_, "The titles", titles_fault_);
  }
  titles.Open(stored_);
}

bool WorksheetsPane::ChangeTitles(const NewTitles& changed) {
  const auto written = stored_.Change(context_.folder, changed);
  view_.panel.form().SetStatus({});
  ShowTitles();
  if (number_ != 0) view_.heading.SetCaption(Heading());
  if (!written) forms::TellNotSaved(context_, "The titles", written.fault());
  return static_cast<bool>(written);
}

PaneMenu WorksheetsPane::Menu() {
  PaneMenu menu = DocumentPane::Menu();
  menu["mORATitle"] = {[this] { OpenTitles(); }, {&view_.panel}};
  return menu;
}

PrintedDocument WorksheetsPane::ToPrint() {
  PrintedDocument printed;
  printed.first_text = kSafeguardsText;
  if (references.is_open()) {
    printed.title = references.Title();
    printed.print_first = RuleReferences::Print;
    printed.text = [this](int) { return PrintedText{view_.text.document()}; };
    return printed;
  }
  printed.title = stored_.Caption(number_);
  printed.has_texts = true;
  printed.text = [this](int text) {
    if (text == kPolicyText) return PrintedText{view_.text.document()};
    if (text == kCommentsText) return PrintedText{};
    const auto read = context_.folder.Read(file_names::kDisclaimer);
    return PrintedText{richtext::ReadRichText(read.content),
                       read.is_unreadable() ? read.fault : storage::Fault::kNone};
  };
  return printed;
}

void WorksheetsPane::ExplainTerms() {
  forms::ShowMessage(
      context_, {"Compliance Status Terms",
                 "Explanation of Compliance Status Terms:\n\n"
                 "Yes - Actions, policies and or software tools, etc. have been put in \n"
                 "          place to bring this risk into reasonable compliance with the rule.\n"
                 "No  - This risk is not currently in reasonable compliance with the rule.\n"
                 "Partial - Actions, policies and or software tools, etc. have been put\n"
                 "               in place to partially bring this risk into reasonable\n"
                 "               compliance with the rule.\n"
                 "Planned - Actions, etc. are being planned to be implemented in the\n"
                 "                 future to bring this risk into reasonable compliance with\n"
                 "                 the rule.",
                 forms::Icon::kInformation});
}

}  // namespace tarnwell::workarea
