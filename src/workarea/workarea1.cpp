#include "workarea/workarea1.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "forms/form_names.h"
#include "forms/navigator.h"
#include "parts/backup_menu.h"
#include "parts/help_menu.h"
#include "text/date_mask.h"

namespace tarnwell::workarea {
namespace {

constexpr int kBackupHelp = 1002;
constexpr int kArchiveHelp = 1005;
constexpr int kAreaHelp = 3010;
constexpr int kToDoHelp = 2009;
constexpr int kRecoveryPlanHelp = 3048;
constexpr int kWorksheetsHelp = 5150;

std::int16_t Twips(int length) {
  return static_cast<std::int16_t>(std::min<int>(length, std::numeric_limits<std::int16_t>::max()));
}

int HelpOf(Area area) {
  switch (area) {
    case kToDoList:
      return kToDoHelp;
    case kWorksheets:
      return kWorksheetsHelp;
    case kRecoveryPlan:
      return kRecoveryPlanHelp;
    case kArchive:
      return kArchiveHelp;
    default:
      return kAreaHelp;
  }
}

}  // namespace

WorkArea1::WorkArea1(forms::Context& context)
    : Form(context, forms::form_names::kWorkArea1, "Company/Employee Data Area"),
      document(areas, context),
      documents(areas, context, document),
      recovery_plan(context, document),
      to_do(*this, areas, context),
      reports(context, document, names),
      archive(context, document, names),
      worksheets(*this, areas, context, document),
      printing(*this, context),
      colors(context, settings::PanelColor::kWorkArea) {
  main_buttons.on_press = [this](int index) { Press(index); };
  area_buttons.on_press = [this](Area area) { ChooseArea(area); };
  // The colours go with the text. Where they can't be stored they stay to be, and the text is
  // saved.
  document.on_saved = to_do.on_saved = [this] {
    if (colors.changed()) colors.Save();
  };
  document.on_print = [this](PrintedDocument printed) { printing.Open(std::move(printed)); };
  document.on_archive = [this] { archive.Create(document.owner()->ToPrint().title); };
  document.on_view_archive = [this] { ShowArchive(); };
  recovery_plan.on_exit = to_do.on_exit = [this] { LeaveArea(); };
  to_do.on_print = [this](print::PrintJob job) { printing.OpenReport(std::move(job)); };
  colors.on_change = [this] { ShowColors(); };
  to_do.panel.Cover({&document.panel});
  for (forms::Panel* over : PanelsOverAreas()) over->Cover({&areas});
  // Beside the areas there is room for the buttons of one.
  std::vector<forms::Control*> others;
  for (const auto& group : documents.groups) others.push_back(&group->panel);
  names.panel.Cover(others);
  others.push_back(&names.panel);
  worksheets.panel.Cover(std::move(others));
  BuildMenus();
  parts::AddHelpMenu(*this, context_,
                     {{"&Backing up and Restoring Data/Files", kBackupHelp},
                      {"Create/View - Archives of Policies,  etc.", kArchiveHelp},
                      {"&Print", print::kPrintHelp},
                      {"Company To Do List", kToDoHelp},
                      {"&Company/Employee Data Area", kAreaHelp}});
}

void WorkArea1::BuildMenus() {
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  const std::pair<int, const char*> main_entries[] = {
      {parts::kInformationAdvisor, "&Information Advisor"},
      {parts::kToolsAndProgramInformation, "&Tools and Program Information"},
      {parts::kExitProgram, "&Exit Program"},
  };
  for (const auto& [index, caption] : main_entries) {
    options.AddCommand("mOTab(" + std::to_string(index) + ")", caption, main_buttons[index]);
  }
  const auto add_to = [&](forms::MenuItem& menu, const char* name, const char* caption,
                          const char* key = "") {
    pane_entries_.push_back(&menu.AddEntry(name, caption, forms::MenuAction{}).SetKey(key));
  };
  const auto add = [&](const char* name, const char* caption, const char* key = "") {
    add_to(options, name, caption, key);
  };
  options.AddSeparator();
  add("mOClip", "&Copy to Clipboard");
  add("mOArchive", "Create Archive of Policy, etc.");
  add("mOArchiveV", "View Archived Policies, etc.");
  add("mOFont", "&Font Select");
  add("mOSpell", "&Spell Check", "F7");
  add("mOThes", "&Thesaurus");
  add("mODel", "&Delete Item from Grid");
  add("mOClear", "&Clear Grid");
  add("mOIns", "&Insert Row");
  add("mOP", "&Print Options", "Ctrl+P");
  options.AddEntry("mOPAll", "Print &All Current Policies/Docs Only",
                   [this] { PrintAll(DocumentPrinting::Breaks::kNone); });
  options.AddEntry("mOPAllB", "Print All Current Policies/Docs Only - &With Page Breaks",
                   [this] { PrintAll(DocumentPrinting::Breaks::kPages); });
  add("mOS", "&Save", "Ctrl+S");
  add("mORATitle", "&Add/Edit/Delete Button Titles");
  options.AddSeparator();
  forms::MenuItem& pages = options.AddEntry(
      "mOPages", "Page &View",
      {[this] { document.text.SetShowsPages(!document.text.shows_pages()); }, {&document.text}});
  pages.SetCheckable();
  options.on_open = [this, &pages] { pages.SetChecked(document.text.shows_pages()); };
  options.AddSeparator();
  options.AddEntry("mOC", "Panel C&olor", [this] { colors.Choose(parts::ColorTarget::kPanel); });
  options.AddEntry("mOTC", "Te&xt Color", [this] { colors.Choose(parts::ColorTarget::kText); });
  add("mOGB", "&Grid Background");
  options.LiveWith({&areas});
  forms::MenuItem& utilities = menus().AddSubmenu("mU", "&Utilities");
  parts::AddBackupEntries(
      utilities, context_,
      {.set = parts::kDocumentsSet,
       .settle = [this] { return (!pane_ || pane_->Settle()) && LeaveColors(); },
       .reload = [this] { Reload(); }});
  add_to(utilities, "mUExport", "Export File in Excel/Spreadsheet Format");
  utilities.LiveWith({&areas});
  SetPopupMenu(options);
  document.AddMenu(menus());
}

void WorkArea1::Load() {
  colors.Load();
  main_buttons.PaintSelected(parts::kCompanyData);
  ShowMainArea(parts::kCompanyData);
}

void WorkArea1::Activate() {
  date.SetCaption(text::FormatDate(context_.clock.Today(), "mmmm d, yyyy"));
  const forms::Size size = context_.window.size();
  context_.variables.FormHeight = Twips(size.height);
  context_.variables.FormWidth = Twips(size.width);
  if (const auto area = std::exchange(context_.variables.HubArea, std::int16_t{0})) {
    return GoTo(static_cast<Area>(area));
  }
  // A restore on another screen may have brought other colours.
  if (!colors.changed()) colors.Load();
  switch (context_.variables.MainArea) {
    case parts::kInformationAdvisor:
      return context_.navigator.Show(forms::form_names::kInfoAdv);
    case parts::kToolsAndProgramInformation:
      return context_.navigator.Show(forms::form_names::kToolsandInfo1);
    case parts::kExitProgram:
      context_.variables.MainArea = parts::kCompanyData;
      break;
    default:
      Press(context_.variables.MainArea);
  }
}

// Where another screen has sent a person.
void WorkArea1::GoTo(Area area) {
  const auto button = std::ranges::find(AreaButtons(), area, &AreaButton::area);
  if (button == AreaButtons().end()) return;
  Press(button->under);
  if (main_area_ == button->under) ChooseArea(area);
}

void WorkArea1::Press(int index) {
  if (index == main_buttons.selected() || (pane_ && !pane_->Settle())) return;
  if (index == parts::kExitProgram) {
    printing.print.Close();
    return AskToExit();
  }
  if (index > parts::kEmployeeData && !LeaveColors()) return;
  printing.print.Close();
  main_buttons.PaintSelected(index <= parts::kEmployeeData ? index : -1);
  context_.variables.MainArea = static_cast<std::int16_t>(index);
  if (index <= parts::kEmployeeData) return ShowMainArea(static_cast<parts::MainArea>(index));
  LeaveArea();  // coming back begins with the first area
  context_.navigator.Show(index == parts::kInformationAdvisor ? forms::form_names::kInfoAdv
                                                              : forms::form_names::kToolsandInfo1);
}

void WorkArea1::ShowMainArea(parts::MainArea main_area) {
  main_area_ = main_area;
  area_title.SetCaption(main_area == parts::kCompanyData ? "Company Data" : "Employee Data");
  LeaveArea();
  area_buttons.Show(main_area);
  EnterArea(AreaButtonColumn::FirstOf(main_area));
}

void WorkArea1::AskToExit() {
  context_.variables.MainArea = parts::kExitProgram;
  if (Confirmed(parts::ExitBox()) && colors.Leave(forms::Buttons::kYesNo)) {
    context_.navigator.Unload(*this);
    return context_.navigator.EndProgram();
  }
  context_.variables.MainArea = static_cast<std::int16_t>(main_area_);
}

// The screen that comes may end the program. What the user doesn't want to keep goes at once.
bool WorkArea1::LeaveColors() {
  if (!colors.Leave(forms::Buttons::kYesNo)) return false;
  if (colors.changed()) colors.Load();
  return true;
}

bool WorkArea1::QueryUnload(forms::UnloadCause) {
  return (!pane_ || pane_->Settle()) && colors.Leave(forms::Buttons::kYesNo);
}

std::optional<forms::Draft> WorkArea1::TakeDraft() {
  auto draft = pane_ ? pane_->TakeDraft() : std::nullopt;
  if (draft) draft->texts.insert(draft->texts.begin(), std::to_string(area_));
  return draft;
}

bool WorkArea1::PutDraft(forms::DraftTexts texts) {
  const auto area = static_cast<Area>(texts.NextNumber());
  GoTo(area);
  return pane_ && area_ == area && pane_->PutDraft(texts);
}

Pane* WorkArea1::PaneOf(Area area) {
  const auto found = std::ranges::find_if(panes_, [=](Pane* pane) { return pane->Has(area); });
  return found == panes_.end() ? nullptr : *found;
}

void WorkArea1::ChooseArea(Area area) {
  if (area == area_ || (pane_ && !pane_->Settle())) return;
  if (!FormOf(area).empty()) return context_.navigator.Show(FormOf(area));
  LeaveArea();
  EnterArea(area);
}

void WorkArea1::EnterArea(Area area) {
  area_ = area;
  pane_ = PaneOf(area);
  area_buttons.Paint(area);
  SetHelpContext(HelpOf(area));
  if (pane_) pane_->Enter(area);
  LendMenu();
}

void WorkArea1::LeaveArea() {
  if (pane_) pane_->Leave();
  EnterArea(kNoArea);
}

// Shows what the files hold now.
void WorkArea1::Reload() {
  const Area area = area_;
  LeaveArea();
  colors.Load();
  EnterArea(area);
}

void WorkArea1::ShowArchive() {
  if (!pane_->Settle()) return;
  archive.on_exit = [this, back = area_] { ChooseArea(back); };
  LeaveArea();
  EnterArea(kArchive);
}

void WorkArea1::LendMenu() {
  PaneMenu menu = pane_ ? pane_->Menu() : PaneMenu();
  for (forms::MenuItem* entry : pane_entries_) entry->SetAction(std::move(menu[entry->name()]));
}

void WorkArea1::PrintAll(DocumentPrinting::Breaks breaks) {
  if (!pane_ || pane_->OfferToSave()) printing.OpenAll(breaks);
}

std::vector<forms::Panel*> WorkArea1::PanelsOverAreas() {
  return {&printing.print.panel, &printing.all_panel, &to_do.exporting.panel,
          &to_do.background.panel, &worksheets.titles.panel};
}

void WorkArea1::ShowColors() {
  areas.SetBackground(colors.panel());
  for (forms::Panel* panel : PanelsOverAreas()) {
    panel->SetBackground(colors.panel());
  }
  document.text.SetTextColor(colors.text());
  document.text.SetBackground(colors.background());
}

}  // namespace tarnwell::workarea
