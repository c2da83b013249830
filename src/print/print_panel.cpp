#include "print/print_panel.h"

#include <chrono>
#include <utility>

#include "forms/disk_trouble.h"
#include "forms/message.h"
#include "print/print_pages.h"
#include "print/report.h"
#include "text/number_mask.h"

namespace tarnwell::print {
namespace {

constexpr std::chrono::seconds kPatience{1};

std::chrono::sys_seconds PointOf(const text::Moment& moment) {
  return std::chrono::sys_days{moment.date} + moment.time_of_day;
}

}  // namespace

PrintPanel::PrintPanel(forms::Container& parent, forms::Context& context,
                       const PrintPanelStyle& style)
    : panel(parent, "SSPanel80"),
      close(panel, "SSCommand80(2)", style.close_caption, {.cancel = true}),
      print(panel, "SSCommand80(4)", style.print_caption),
      zoom(panel, style.zoom_name, "Enlarge"),
      context_(context),
      engine_(context.pages.metrics()) {
  panel.SetVisible(false);
  panel.SetHelpContext(kPrintHelp);
  progress.SetVisible(false);
  cancel.SetVisible(false);
  cancel.on_click = [this] { is_cancelled_ = true; };
  BuildControls(style);
  engine_.on_new_page = [this] { HeadPage(); };
  font.on_click = [this] { ChooseFont(); };
  page_setup.on_click = [this] { ChooseSetup(); };
  close.on_click = [this] { Close(); };
  copy_page.on_click = [this] { CopyPage(); };
  print.on_click = [this] { PrintPages(context_, engine_.document()); };
  zoom.on_click = [this] { ToggleZoom(); };
  guide_lines.on_pick = [this](int option) { ChooseGuideLines(option); };
  line_styles.on_pick = [this](int) { Rebuild(); };
}

void PrintPanel::BuildControls(const PrintPanelStyle& style) {
  if (style.auto_size) {
    auto_size.emplace(panel, style.auto_size_name, "Auto Size");
    auto_size->on_click = [this] {
      preview.SetZoom(forms::Zoom::kWholePage);
      zoom.SetCaption("Enlarge");
    };
  }
  range_frame.SetVisible(!style.range_caption.empty());
  if (!style.range_caption.empty()) {
    range.Add(range_frame, "SSOption81(0)", style.range_caption);
    range.Choose(0);
  }
  if (!style.as_of_caption.empty()) {
    as_of.emplace(options_frame, "SSCheck81(0)", style.as_of_caption);
    as_of->on_change = [this] { TakeChecks(); };
  }
  if (!style.grid_lines_caption.empty()) {
    grid_lines.emplace(options_frame, style.grid_lines_name, style.grid_lines_caption);
    grid_lines->on_change = [this] { TakeChecks(); };
  }
  if (!style.line_styles) return;
  line_styles.Add(options_frame, "SSOption83(0)", "Print All Gridlines");
  line_styles.Add(options_frame, "SSOption83(1)", "No Horizontal lines after Items");
  line_styles.Add(options_frame, "SSOption83(2)", "No Gridlines");
  line_styles.Choose(0);
}

void PrintPanel::Open(PrintJob job) {
  job_ = std::move(job);
  setup_.landscape = false;
  setup_.margins = job_.margins == forms::Margins{} ? ReportMargins() : job_.margins;
  TakeStoredFont();
  ShowSettings();
  panel.SetVisible(true);
  Rebuild();
}

forms::Margins PrintPanel::ReportMargins() const {
  const forms::Margins inside;
  const forms::Margins reach = context_.pages.Reach();
  return {inside.left + reach.left, inside.top + reach.top, inside.right + reach.right,
          inside.bottom + reach.bottom};
}

void PrintPanel::Close() {
  if (!is_open()) return;
  panel.SetVisible(false);
  preview.SetDocument(nullptr);
  engine_.Clear();
  if (on_close) on_close();
}

void PrintPanel::TakeStoredFont() {
  if (!job_.font) return;
  const auto stored = settings::ReadPrinterFont(context_.folder, *job_.font);
  if (stored.name.empty() || stored.size < 1 || stored.size > 1000) return;
  context_.variables.PrintFontName = stored.name;
  context_.variables.PrintFontSize = stored.size;
}

void PrintPanel::ShowSettings() {
  ShowFont();
  ShowOrientation();
  const int option = settings::ReadGuideLines(context_.folder, job_.guide_lines);
  guide_lines.Choose(option);
  preview.SetGuideLines(option == 1);
  preview.SetZoom(forms::Zoom::kNormal);
  zoom.SetCaption("Enlarge");
  if (as_of) as_of->SetChecked(context_.variables.NoAsOfDate != 1);
  if (grid_lines) grid_lines->SetChecked(context_.variables.GridLinesOnPrint == 1);
}

// Of the first page.
void PrintPanel::ShowOrientation() {
  const bool is_own = job_.own_paper && engine_.page_count() > 0;
  const bool lies = is_own ? engine_.document().SetupOf(0).landscape : setup_.landscape;
  orientation.SetCaption(lies ? " Landscape" : " Portrait");
}

void PrintPanel::ShowFont() {
  const forms::Font chosen = context_.variables.PrintFont();
  const bool whole = chosen.size == static_cast<int>(chosen.size);
  font_name.SetCaption(chosen.name + " ");
  font_size.SetCaption(" " + text::FormatNumber(chosen.size, whole ? "0" : "0.0"));
  sample.SetFont(chosen);
}

void PrintPanel::Rebuild() {
  if (!is_open()) return;
  const forms::Hourglass hourglass(context_.window);
  preview.SetDocument(nullptr);
  started_ = context_.clock.Now();
  is_cancelled_ = false;
  engine_.Start(setup_, context_.variables.PrintFont());
  engine_.SetTitle(job_.title.empty() ? panel.form().caption() : job_.title);
  if (job_.printed_line) PrintedLine(engine_, context_.clock.Today(), engine_.top());
  if (job_.build) job_.build(engine_);
  EndRun();
  if (is_cancelled_) return Close();
  ShowOrientation();
  preview.SetDocument(&engine_.document());
}

// In the chosen font, whatever the page before it ended in.
void PrintPanel::HeadPage() {
  engine_.SetFont(context_.variables.PrintFont());
  if (job_.as_of_line) AsOfLine(engine_, context_.variables, context_.clock.Today());
  if (job_.page_head) job_.page_head(engine_);
}

bool PrintPanel::ReportProgress(int done, int total) {
  if (!busy_) {
    // A clock that was set back mustn't make a person wait without a bar.
    const auto waited = PointOf(context_.clock.Now()) - PointOf(started_);
    if (std::chrono::abs(waited) <= kPatience) return true;
    BeginRun(total);
  }
  progress.SetValue(done);
  context_.loop.Yield();
  return !is_cancelled_;
}

void PrintPanel::BeginRun(int total) {
  busy_.emplace(panel.form(), std::vector<const forms::Control*>{&cancel});
  for (forms::Control* control : panel.children()) {
    if (control == &cancel || control == &progress || !control->enabled()) continue;
    control->SetEnabled(false);
    disabled_.push_back(control);
  }
  progress.Start(total);
  progress.SetVisible(true);
  cancel.SetVisible(job_.can_be_cancelled);
}

void PrintPanel::EndRun() {
  if (!busy_) return;
  busy_.reset();
  progress.SetVisible(false);
  cancel.SetVisible(false);
  for (forms::Control* control : std::exchange(disabled_, {})) control->SetEnabled(true);
}

void PrintPanel::ChooseFont() {
  const forms::Font start = context_.variables.PrintFont();
  const auto chosen = context_.dialogs.ChooseFont(start);
  if (!chosen) return;
  const forms::Font next = forms::WithParts(start, *chosen);
  context_.variables.SetPrintFont(next);
  ShowFont();
  Rebuild();
  if (!job_.font) return;
  const auto stored =
      settings::WritePrinterFont(context_.folder, *job_.font, {next.name, next.size});
  if (!stored) forms::TellHoldsForNow(context_, "The printer font", stored.fault());
}

void PrintPanel::ResetFont() {
  context_.variables.SetPrintFont(forms::ProgramVariables().PrintFont());
  ShowFont();
  Rebuild();
}

void PrintPanel::ChooseSetup() {
  const forms::PageSetup shown = job_.own_paper ? engine_.document().SetupOf(0) : setup_;
  const auto setup = context_.pages.ChooseSetup(shown);
  if (!setup) return;
  (job_.own_paper ? context_.variables.DocumentSetup.emplace() : setup_) = *setup;
  Rebuild();
}

void PrintPanel::CopyPage() {
  context_.pages.CopyPage(engine_.document(), preview.page());
  forms::ShowMessage(context_,
                     {"Copy Option", "Current Page has been copied to the Windows Clipboard.",
                      forms::Icon::kInformation});
  preview.Focus();
}

void PrintPanel::ToggleZoom() {
  const bool enlarge = preview.zoom() != forms::Zoom::kEnlarged;
  preview.SetZoom(enlarge ? forms::Zoom::kEnlarged : forms::Zoom::kNormal);
  zoom.SetCaption(enlarge ? "Normal" : "Enlarge");
}

void PrintPanel::ChooseGuideLines(int option) {
  preview.SetGuideLines(option == 1);
  const auto stored = settings::WriteGuideLines(context_.folder, job_.guide_lines, option);
  if (!stored) forms::TellHoldsForNow(context_, "The choice of guide lines", stored.fault());
}

void PrintPanel::TakeChecks() {
  if (as_of) context_.variables.NoAsOfDate = as_of->checked() ? 0 : 1;
  if (grid_lines) context_.variables.GridLinesOnPrint = grid_lines->checked() ? 1 : 0;
  Rebuild();
}

void ReportNothingToPrint(forms::Context& context) {
  forms::ShowMessage(
      context, {"Print", "There are currently No Entries to Print!", forms::Icon::kInformation});
}

}  // namespace tarnwell::print
