// The panel "Print Options" that every screen prints with.

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/context.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/page_preview.h"
#include "forms/panel.h"
#include "forms/progress_bar.h"
#include "print/page_engine.h"
#include "settings/print_settings.h"

namespace tarnwell::print {

inline constexpr int kPrintHelp = 1014;  // the panel's help page

// What a screen's panel looks like. A control with an empty caption isn't there.
struct PrintPanelStyle {
  std::string_view close_caption = "&Close Print Options";
  std::string_view print_caption = "&Print";
  std::string_view as_of_caption = "Print 'As of' date/each page";
  std::string_view grid_lines_name = "SSCheck81(1)";
  std::string_view grid_lines_caption = {};
  std::string_view range_caption = {};
  bool auto_size = true;
  // For a screen that has controls of these names itself.
  std::string_view zoom_name = "SSCommand1";
  std::string_view auto_size_name = "SSCommand2";
  bool line_styles = false;  // the three choices of grid lines in reports
};

// What is printed.
struct PrintJob {
  std::function<void(PageEngine&)> build;      // the content
  std::function<void(PageEngine&)> page_head;  // at the head of each page; may be empty
  bool printed_line = true;                    // "Printed:  " and the date on the first page
  bool as_of_line = false;                     // on each page, above its head
  settings::GuideLines guide_lines = settings::GuideLines::kMainScreens;
  std::optional<settings::PrinterFont> font;  // where the screen keeps a printer font
  forms::Margins margins;  // the usual ones lie inside what the printer can reach
  // `build` takes paper and margins from what it prints, unless a person has chosen others.
  bool own_paper = false;
  std::string title;              // of a PDF; empty: the form's caption
  bool can_be_cancelled = false;  // while it builds; the panel closes then
};

class PrintPanel {
 public:
  PrintPanel(forms::Container& parent, forms::Context& context, const PrintPanelStyle& style = {});

  forms::Panel panel;
  forms::PagePreview preview{panel, "VSP1", "Print preview"};
  forms::ProgressBar progress{panel, "ProgressBar80", "Preparing the pages"};
  forms::Command cancel{panel, "SSCommand80(5)", "Ca&ncel", {.cancel = true}};
  forms::Command font{panel, "SSCommand80(0)", "Printer &Font"};
  forms::Command page_setup{panel, "SSCommand80(1)", "&Page Setup"};
  forms::Command close;
  forms::Command copy_page{panel, "SSCommand80(3)", "C&opy Current Page"};
  forms::Command print;
  forms::Command zoom;
  std::optional<forms::Command> auto_size;
  forms::Label font_name_heading{panel, "Label80(0)", "Printer Font:"};
  forms::Label font_size_heading{panel, "Label80(1)", "Font Size:"};
  forms::Label orientation_heading{panel, "Label80(2)", "Orientation:"};
  forms::Label font_name{panel, "Panel3D80(0)"};
  forms::Label font_size{panel, "Panel3D80(1)"};
  forms::Label orientation{panel, "Panel3D80(2)"};
  forms::Label sample{panel, "Panel3D82", "AaBbYyZz"};
  forms::Panel range_frame{panel, "SSFrame80(0)", "Print Range"};
  forms::OptionGroup range;
  forms::Panel display_frame{panel, "SSFrame80(1)", "Display Options"};
  forms::OptionGroup guide_lines{
      display_frame, "SSOption82", {"Do Not Display Guide Lines", "Display Guide Lines"}};
  // A screen's own options go here too.
  forms::Panel options_frame{panel, "SSFrame80(2)", "Print Options"};
  std::optional<forms::CheckBox> as_of;
  std::optional<forms::CheckBox> grid_lines;
  forms::OptionGroup line_styles;

  // Shows the panel with a preview of the job, upright.
  void Open(PrintJob job);
  bool is_open() const { return panel.visible(); }
  // The paper that a person has chosen for documents, in this run.
  const std::optional<forms::PageSetup>& chosen_paper() const {
    return context_.variables.DocumentSetup;
  }
  // The margins of reports.
  forms::Margins ReportMargins() const;
  // Hides it, without a question.
  void Close();
  // "Times New Roman" in 10 points, black, as at the start of the program; for this run. Builds the
  // preview anew.
  void ResetFont();
  // The job prints something else from now on: builds the preview anew. Nothing while closed.
  void Rebuild();

  // For long jobs, while they build: shows how far they are once that takes over a second, and lets
  // the screen be painted. Nothing but Cancel, where the job has it, works until the job is done.
  // False once it was cancelled: the job need not go on.
  bool ReportProgress(int done, int total);

  std::function<void()> on_close;

 private:
  void BuildControls(const PrintPanelStyle& style);
  void ShowSettings();
  void ShowFont();
  void TakeStoredFont();
  void ChooseFont();
  void ChooseSetup();
  void CopyPage();
  void ToggleZoom();
  void ChooseGuideLines(int option);
  void TakeChecks();
  void HeadPage();
  void ShowOrientation();

  forms::Context& context_;
  PageEngine engine_;
  PrintJob job_;
  forms::PageSetup setup_;
  text::Moment started_;
  void BeginRun(int total);
  void EndRun();

  std::optional<forms::Form::BusyScope> busy_;
  std::vector<forms::Control*> disabled_;  // by the run that is under way
  bool is_cancelled_ = false;
};

// The box that takes the panel's place when there is nothing to print.
void ReportNothingToPrint(forms::Context& context);

}  // namespace tarnwell::print
