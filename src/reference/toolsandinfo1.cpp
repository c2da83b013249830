#include "reference/toolsandinfo1.h"

#include <utility>

#include "forms/form_names.h"
#include "forms/navigator.h"
#include "parts/backup_menu.h"
#include "parts/help_menu.h"
#include "print/report.h"
#include "print/rich_text.h"
#include "reference/information_text.h"
#include "reference/web_site.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_writer.h"
#include "storage/file_names.h"

namespace tarnwell::reference {
namespace {

namespace file_names = storage::file_names;

constexpr int kToolsHelp = 3014;
constexpr const char* kToolsTitle = "Tools and Program Information";
constexpr int kShareOfFullScreen = 85;
constexpr int kWholeShare = 100;

}  // namespace

ToolsandInfo1::ToolsandInfo1(forms::Context& context)
    : MainScreen(context, forms::form_names::kToolsandInfo1, kToolsTitle,
                 parts::kToolsAndProgramInformation,
                 {"&Comapny Data", "&Employee Data", "&Information Advisor", "&Exit Program"}),
      link_note(link_panel, "Label3",
                "The following websites contain information that may be of use to you.  If your "
                "internet provider is running in the background, just click on the link and you "
                "will be taken to that site.",
                forms::LabelRole::kNote) {
  ConnectForms();
  ConnectTexts();
  parts::AddBackupEntries(menus().AddSubmenu("mU", "&Utilities"), context_,
                          {.set = parts::kDocumentsSet});
  SetHelpContext(kToolsHelp);
  parts::AddHelpMenu(
      *this, context_,
      {{"&Tools and Program Information", kToolsHelp}, {"&Print", print::kPrintHelp}});
}

void ToolsandInfo1::ConnectForms() {
  const auto show = [this](const char* form) {
    const forms::Hourglass hourglass(context_.window);
    context_.navigator.Show(form);
  };
  contacts.on_click = [show] { show(forms::form_names::kContactEntry); };
  contact_display.on_click = [show] { show(forms::form_names::kContactDisplay); };
  planner.on_click = [show] { show(forms::form_names::kZcalandar1); };
  calendar.on_click = [show] { show(forms::form_names::kCalendar); };
  main_buttons.on_press = [this, press = main_buttons.on_press](int index) {
    if (index != parts::kToolsAndProgramInformation) print.Close();
    press(index);
  };
}

void ToolsandInfo1::ConnectTexts() {
  disclaimer.on_click = [this] { ShowText(disclaimer, file_names::kDisclaimerText); };
  program_information.on_click = [this] {
    ShowText(program_information, file_names::kProgramInformation);
  };
  incident_report.on_click = [this] {
    ShowText(incident_report, file_names::kSampleIncidentReport);
  };
  for (std::size_t i = 0; i < links.size(); ++i) {
    links[i].on_click = [this, i] { OpenWebSite(*this, context_, table_.rows[i].address); };
  }
  copy.on_click = [this] { CopyText(); };
  print_options.on_click = [this] { PrintText(); };
  print.options_frame.SetVisible(false);
  print.panel.Cover({&screen});
  print.on_close = [this] { print_options.Focus(); };
}

void ToolsandInfo1::Load() {
  ShowLinks();
  ShowText(program_information, file_names::kProgramInformation);
  program_information.Focus();
}

int ToolsandInfo1::text_share() const {
  return context_.variables.SmallerScreen == 0 ? kShareOfFullScreen : kWholeShare;
}

void ToolsandInfo1::ShowLinks() {
  table_ = ReadInternetLinks(context_.folder);
  for (std::size_t i = 0; i < links.size(); ++i) {
    links[i].SetCaption(table_.rows[i].label);
    links[i].SetToolTip(table_.rows[i].address);
    links[i].SetVisible(!table_.rows[i].address.empty());
  }
  link_trouble.SetCaption(table_.trouble);
  link_trouble.SetVisible(!table_.trouble.empty());
}

void ToolsandInfo1::ShowText(forms::Command& button, std::string_view file) {
  const forms::Hourglass hourglass(context_.window);
  for (forms::Command* one : {&disclaimer, &program_information, &incident_report}) {
    one->SetSelected(one == &button);
  }
  SetCaption(std::string(kToolsTitle) + " - " + button.caption());
  const std::string told = ShowInformationText(context_.folder, file, text);
  text_trouble.SetCaption(told);
  text_trouble.SetVisible(!told.empty());
  copy.SetEnabled(!richtext::HoldsNothing(text.document()));
}

void ToolsandInfo1::CopyText() {
  context_.clipboard.SetRichText(richtext::WriteRichText(text.document()));
  Message({"Copy Option", "A copy has been copied to the Windows Clipboard.",
           forms::Icon::kInformation});
}

void ToolsandInfo1::PrintText() {
  if (richtext::HoldsNothing(text.document())) return print::ReportNothingToPrint(context_);
  print::PrintJob job;
  job.build = [this](print::PageEngine& engine) {
    const int head = print.ReportMargins().top;
    print::AddRichPages(engine, text.document(), {print.chosen_paper(), head + print::kHeadHeight});
    engine.OnPage(0, [&] { print::PrintedLine(engine, context_.clock.Today(), head); });
  };
  job.printed_line = false;  // it has its place above the document's own margin
  job.own_paper = true;
  job.title = caption();
  print.Open(std::move(job));
  print.preview.Focus();
}

}  // namespace tarnwell::reference
