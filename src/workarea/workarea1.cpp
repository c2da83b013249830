#include "workarea/workarea1.h"

#include <algorithm>
#include <limits>

#include "forms/form_names.h"
#include "forms/navigator.h"
#include "parts/help_menu.h"
#include "richtext/rich_text_writer.h"
#include "text/date_mask.h"

namespace tarnwell::workarea {
namespace {

constexpr int kAreaHelp = 3010;
constexpr int kRecoveryPlanHelp = 3048;

std::int16_t Twips(int length) {
  return static_cast<std::int16_t>(std::min<int>(length, std::numeric_limits<std::int16_t>::max()));
}

int HelpOf(Area area) { return area == kRecoveryPlan ? kRecoveryPlanHelp : kAreaHelp; }

}  // namespace

WorkArea1::WorkArea1(forms::Context& context)
    : Form(context, forms::form_names::kWorkArea1, "Company/Employee Data Area"),
      document(areas, context),
      documents(areas, context, document),
      recovery_plan(context, document),
      printing(*this, context),
      colors(context, settings::PanelColor::kWorkArea) {
  main_buttons.on_press = [this](int index) { Press(index); };
  area_buttons.on_press = [this](Area area) { ChooseArea(area); };
  colors.on_change = [this] { ShowColors(); };
  printing.print.on_close = [this] { CoverAreas(false); };
  BuildDocumentCommands();
  BuildMenus();
  parts::AddHelpMenu(*this, context_,
                     {{"&Company/Employee Data Area", kAreaHelp}, {"&Print", print::kPrintHelp}});
}

void WorkArea1::BuildDocumentCommands() {
  document.on_save = [this] { return Save(); };
  document.on_state = [this] { EnableMenus(); };
  document.exit.on_click = [this] { ExitDocument(); };
  document.insert_template.on_click = [this] { pane_->InsertTemplate(); };
  document.views.on_pick = [this](int option) { pane_->PickView(option); };
  document.status.on_pick = [this] { pane_->PickStatus(); };
  document.print_options.on_click = [this] {
    printing.Open(pane_->ToPrint());
    CoverAreas(printing.print.is_open());
  };
}

void WorkArea1::BuildMenus() {
  options_ = &menus().AddSubmenu("mO", "&Options");
  forms::MenuItem& options = *options_;
  const std::pair<int, const char*> entries[] = {
      {parts::kInformationAdvisor, "&Information Advisor"},
      {parts::kToolsAndProgramInformation, "&Tools and Program Information"},
      {parts::kExitProgram, "&Exit Program"},
  };
  for (const auto& [index, caption] : entries) {
    options.AddEntry("mOTab(" + std::to_string(index) + ")", caption,
                     [this, index = index] { main_buttons[index].Click(); });
  }
  const auto add = [&](const char* name, const char* caption, forms::Command& command) {
    forms::MenuItem& entry = options.AddEntry(name, caption, [&command] { command.Click(); });
    command_entries_.emplace_back(&entry, &command);
  };
  options.AddSeparator();
  copy_entry_ = &options.AddEntry("mOClip", "&Copy to Clipboard", [this] { CopyDocument(); });
  add("mOFont", "&Font Select", document.tools.font);
  add("mOSpell", "&Spell Check", document.tools.spelling);
  add("mOThes", "&Thesaurus", document.tools.thesaurus);
  add("mOP", "&Print Options", document.print_options);
  options.AddEntry("mOPAll", "Print &All Current Policies/Docs Only",
                   [this] { PrintAll(DocumentPrinting::Breaks::kNone); });
  options.AddEntry("mOPAllB", "Print All Current Policies/Docs Only - &With Page Breaks",
                   [this] { PrintAll(DocumentPrinting::Breaks::kPages); });
  add("mOS", "&Save", document.save);
  options.AddSeparator();
  options.AddEntry("mOC", "Panel C&olor", [this] { colors.Choose(parts::ColorTarget::kPanel); });
  options.AddEntry("mOTC", "Te&xt Color", [this] { colors.Choose(parts::ColorTarget::kText); });
  SetPopupMenu(options);
  EnableMenus();
}

void WorkArea1::EnableMenus() {
  for (const auto& [entry, command] : command_entries_) entry->SetEnabled(command->enabled());
  if (copy_entry_) copy_entry_->SetEnabled(document.is_readable());
}

void WorkArea1::Load() {
  date.SetCaption(text::FormatDate(context_.clock.Today(), "mmmm d, yyyy"));
  colors.Load();
  main_buttons.PaintSelected(parts::kCompanyData);
  ShowMainArea(parts::kCompanyData);
}

void WorkArea1::Activate() {
  const forms::Size size = context_.window.size();
  context_.variables.FormHeight = Twips(size.height);
  context_.variables.FormWidth = Twips(size.width);
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

void WorkArea1::Press(int index) {
  // Closing the print panel would take the pages away from a run that is still making them.
  if (busy() || index == main_buttons.selected() || !document.Settle()) return;
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

// The colours go with the text. Where they can't be stored they stay to be, and the text is saved.
bool WorkArea1::Save() {
  if (pane_ && !pane_->Save()) return false;
  if (colors.changed()) colors.Save();
  return true;
}

bool WorkArea1::QueryUnload(forms::UnloadCause) {
  return document.Settle() && colors.Leave(forms::Buttons::kYesNo);
}

Pane* WorkArea1::PaneOf(Area area) {
  if (area == kRecoveryPlan) return &recovery_plan;
  return area == kNoArea ? nullptr : &documents;
}

void WorkArea1::ChooseArea(Area area) {
  if (area == area_ || !document.Settle()) return;
  LeaveArea();
  EnterArea(area);
}

void WorkArea1::EnterArea(Area area) {
  area_ = area;
  pane_ = PaneOf(area);
  area_buttons.Paint(area);
  SetHelpContext(HelpOf(area));
  if (pane_) pane_->Enter(area);
}

void WorkArea1::LeaveArea() {
  if (pane_) pane_->Leave();
  EnterArea(kNoArea);
}

void WorkArea1::ExitDocument() {
  if (!document.Settle()) return;
  pane_->CloseDocument();
  // The area of a single document is left with it, so that its button brings it back.
  if (area_ == kRecoveryPlan) LeaveArea();
}

void WorkArea1::CopyDocument() {
  context_.clipboard.SetRichText(richtext::WriteRichText(document.text.document()));
  Message({"Copy Option", "A copy has been copied to the Windows Clipboard.",
           forms::Icon::kInformation});
}

void WorkArea1::PrintAll(DocumentPrinting::Breaks breaks) {
  if (!document.OfferToSave()) return;
  CoverAreas(true);
  printing.OpenAll(breaks);
}

void WorkArea1::CoverAreas(bool covered) {
  areas.SetVisible(!covered);
  options_->SetEnabled(!covered);
}

void WorkArea1::ShowColors() {
  for (forms::Panel* panel : {&areas, &printing.print.panel, &printing.all_panel}) {
    panel->SetBackground(colors.panel());
  }
  document.text.SetTextColor(colors.text());
  document.text.SetBackground(colors.background());
}

}  // namespace tarnwell::workarea
