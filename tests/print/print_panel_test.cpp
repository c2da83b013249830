#include "print/print_panel.h"

#include <gmock/gmock.h>

#include <cmath>
#include <filesystem>

#include "storage/record_file.h"
#include "support/form_rig.h"

namespace tarnwell::print {
namespace {

using ::testing::ElementsAre;
using testing::TextsOf;

class PrintPanelTest : public ::testing::Test {
 protected:
  PrintJob Job() {
    PrintJob job;
    job.build = [this](PageEngine& engine) {
      ++builds;
      engine.Line("content");
      if (second_page) engine.NewPage();
      if (second_page) engine.Line("more");
    };
    job.font = settings::PrinterFont::kVehicles;
    job.guide_lines = settings::GuideLines::kVehicles;
    return job;
  }
  storage::RecordFile GColor3() { return storage::RecordFile(rig.folder, "GColor3.Fil", 20); }
  std::vector<std::string> Shown() {
    return TextsOf(
        print.preview.document()->pages.at(static_cast<std::size_t>(print.preview.page())));
  }

  testing::FormRig rig;
  PrintPanel print{rig.form, rig.context,
                   PrintPanelStyle{.grid_lines_caption = "Print Grid Lines",
                                   .range_caption = "Based on Options Selected",
                                   .line_styles = true}};
  int builds = 0;
  bool second_page = false;
};

TEST_F(PrintPanelTest, OpensUprightWithAPreviewAndStoresNothing) {
  EXPECT_FALSE(print.panel.visible());
  settings::WriteGuideLines(rig.folder, settings::GuideLines::kVehicles, 1);
  const std::string before = rig.temporary.Read("GColor3.Fil");
  print.Open(Job());
  EXPECT_EQ(builds, 1);
  EXPECT_EQ(rig.temporary.Read("GColor3.Fil"), before);
  EXPECT_TRUE(print.preview.guide_lines());
  EXPECT_EQ(print.guide_lines.chosen(), 1);
  EXPECT_EQ(print.font_name.caption(), "Times New Roman ");
  EXPECT_EQ(print.font_size.caption(), " 10");
  EXPECT_EQ(print.orientation.caption(), " Portrait");
  EXPECT_TRUE(print.as_of->checked());
  EXPECT_FALSE(print.grid_lines->checked());
  EXPECT_THAT(Shown(), ElementsAre("Printed:  March 9, 2026", "content"));
  EXPECT_EQ(rig.window.hourglasses, 0);
  print.close.Click();
  EXPECT_FALSE(print.panel.visible());
  EXPECT_EQ(print.preview.document(), nullptr);
}

TEST_F(PrintPanelTest, AChosenFontIsShownPrintedAndKept) {
  print.Open(Job());
  rig.dialogs.ExpectFont(std::nullopt);
  print.font.Click();
  EXPECT_EQ(builds, 1);
  const forms::Font font{"Arial", 12.5, true};
  rig.dialogs.ExpectFont(font);
  print.font.Click();
  EXPECT_EQ(rig.dialogs.last_start_font, forms::Font{});
  EXPECT_EQ(builds, 2);
  EXPECT_EQ(print.font_name.caption(), "Arial ");
  EXPECT_EQ(print.font_size.caption(), " 12.5");
  EXPECT_EQ(print.sample.font(), font);
  EXPECT_EQ(print.preview.document()->fonts.back(), font);

  rig.variables.SetPrintFont({});  // another run
  print.Open(Job());
  EXPECT_EQ(rig.variables.PrintFontName, "Arial");
  EXPECT_EQ(rig.variables.PrintFontSize, 12.5);
}

TEST_F(PrintPanelTest, PageSetupTurnsThePageAndSetsItsMargins) {
  print.Open(Job());
  print.page_setup.Click();  // cancelled
  EXPECT_EQ(builds, 1);
  rig.pages.setup = forms::PageSetup{12000, 16000, true, {500, 600, 700, 800}};
  print.page_setup.Click();
  EXPECT_EQ(rig.pages.last_setup, forms::PageSetup{});
  EXPECT_EQ(print.orientation.caption(), " Landscape");
  EXPECT_EQ(print.preview.document()->setup.width(), 16000);
  print.Open(Job());
  EXPECT_EQ(print.preview.document()->setup, (forms::PageSetup{12000, 16000, false, {}}));
}

TEST_F(PrintPanelTest, TheMarginsOfReportsLieInsideWhatThePrinterReaches) {
  rig.pages.reach = {360, 240, 360, 240};
  print.Open(Job());
  EXPECT_EQ(print.preview.document()->setup.margins, (forms::Margins{460, 340, 460, 340}));
  auto job = Job();
  job.margins = {600, 750, 600, 650};
  print.Open(job);
  EXPECT_EQ(print.preview.document()->setup.margins, job.margins);
}

TEST_F(PrintPanelTest, PaperChosenForADocumentHoldsForTheRun) {
  auto job = Job();
  job.own_paper = true;
  print.Open(job);
  EXPECT_EQ(print.chosen_paper(), std::nullopt);
  const forms::PageSetup chosen{12000, 16000, true, {500, 600, 700, 800}};
  rig.pages.setup = chosen;
  print.page_setup.Click();
  EXPECT_EQ(builds, 2);
  print.Open(job);
  EXPECT_EQ(print.chosen_paper(), chosen);
  print.Open(Job());  // a report
  EXPECT_EQ(print.preview.document()->setup, forms::PageSetup{});
}

TEST_F(PrintPanelTest, ThePageOnShowIsCopiedAndAllPagesArePrinted) {
  second_page = true;
  print.Open(Job());
  print.preview.TurnTo(7);
  EXPECT_EQ(print.preview.page(), 1);
  rig.dialogs.ExpectNote("Copy Option", "Current Page has been copied to the Windows Clipboard.");
  print.copy_page.Click();
  EXPECT_THAT(TextsOf(rig.pages.copied), ElementsAre("more"));
  print.print.Click();
  ASSERT_EQ(rig.pages.printed.size(), 1u);
  EXPECT_EQ(rig.pages.printed[0].pages.size(), 2u);
}

TEST_F(PrintPanelTest, AFailedPrintIsToldAndOnlyThat) {
  using forms::PrintResult;
  const std::pair<PrintResult, const char*> cases[] = {
      {PrintResult::kDone, nullptr},
      {PrintResult::kCancelled, nullptr},
      {PrintResult::kNotStarted,
       "the printer, or the file in its place, can't be opened.\n"
       "Nothing was printed."},
      {PrintResult::kBrokenOff,
       "the printer or the disk reported an error.\nSome pages may be missing."}};
  print.Open(Job());
  for (const auto& [result, told] : cases) {
    rig.pages.result = result;
    if (told) {
      rig.dialogs.ExpectError("Not Printed",
                              std::string("The pages could not be printed: ") + told);
    }
    print.print.Click();
    EXPECT_TRUE(print.is_open());
  }
}

TEST_F(PrintPanelTest, GuideLinesAreStoredWhenAPersonChoosesThem) {
  print.Open(Job());
  print.guide_lines.Pick(1);
  EXPECT_EQ(GColor3().GetText(14), "1");
  EXPECT_TRUE(print.preview.guide_lines());
  print.guide_lines.Pick(0);
  EXPECT_EQ(GColor3().GetText(14), "0");
  EXPECT_EQ(builds, 1);
}

TEST_F(PrintPanelTest, ADamagedFontSizeIsNotTaken) {
  const std::string name = rig.variables.PrintFontName;
  const double size = rig.variables.PrintFontSize;
  for (const float damaged : {0.0f, -12.0f, 0.5f, 1001.0f, INFINITY, NAN}) {
    ASSERT_TRUE(settings::WritePrinterFont(rig.folder, settings::PrinterFont::kVehicles,
                                           {"Arial", damaged}));
    print.Open(Job());
    EXPECT_EQ(rig.variables.PrintFontName, name) << damaged;
    EXPECT_EQ(rig.variables.PrintFontSize, size) << damaged;
  }
}

TEST_F(PrintPanelTest, AChoiceThatTheDiskRefusesIsToldAndHolds) {
  for (const char* name : {"/GColor3.Fil", "/GColor4.Fil"}) {
    ASSERT_TRUE(std::filesystem::create_directory(rig.temporary.path() + name));
  }
  print.Open(Job());
  const std::string why =
      " could not be saved: something else has the name of its file.\nIt holds for now.";
  rig.dialogs.ExpectError("Not Saved", "The choice of guide lines" + why);
  print.guide_lines.Pick(1);
  EXPECT_TRUE(print.preview.guide_lines());
  rig.dialogs.ExpectFont(forms::Font{"Arial", 12.5});
  rig.dialogs.ExpectError("Not Saved", "The printer font" + why);
  print.font.Click();
  EXPECT_EQ(rig.variables.PrintFontName, "Arial");
  EXPECT_EQ(print.font_name.caption(), "Arial ");
}

TEST_F(PrintPanelTest, ChecksHoldForTheRunAndChangeThePreview) {
  auto job = Job();
  job.printed_line = false;
  job.as_of_line = true;
  print.Open(job);
  EXPECT_THAT(Shown(), ElementsAre("As of  March 09, 2026", "content"));
  print.as_of->Check(false);
  EXPECT_EQ(rig.variables.NoAsOfDate, 1);
  EXPECT_THAT(Shown(), ElementsAre("content"));
  print.grid_lines->Check(true);
  EXPECT_EQ(rig.variables.GridLinesOnPrint, 1);
  EXPECT_EQ(builds, 3);
}

TEST_F(PrintPanelTest, EveryHeadIsInTheChosenFontWhateverThePageBeforeEndedIn) {
  auto job = Job();
  job.printed_line = false;
  job.as_of_line = true;
  job.build = [](PageEngine& engine) {
    engine.SetFont({.name = "Arial", .size = 4});
    engine.NewPage();
    engine.Line("small");
  };
  print.Open(job);
  const forms::Document& document = *print.preview.document();
  const auto size_of = [&](std::size_t page, std::size_t mark) {
    const auto& text = std::get<forms::PlacedText>(document.pages.at(page).at(mark));
    return document.fonts.at(static_cast<std::size_t>(text.font)).size;
  };
  EXPECT_EQ(size_of(0, 0), 8);
  EXPECT_EQ(size_of(1, 0), 8);
  EXPECT_EQ(size_of(1, 1), 4);
}

TEST_F(PrintPanelTest, ThePreviewIsEnlargedAndBroughtBack) {
  print.Open(Job());
  print.zoom.Click();
  EXPECT_EQ(print.preview.zoom(), forms::Zoom::kEnlarged);
  EXPECT_EQ(print.zoom.caption(), "Normal");
  print.auto_size->Click();
  EXPECT_EQ(print.preview.zoom(), forms::Zoom::kWholePage);
  EXPECT_EQ(print.zoom.caption(), "Enlarge");
  print.zoom.Click();
  print.zoom.Click();
  EXPECT_EQ(print.preview.zoom(), forms::Zoom::kNormal);
}

TEST_F(PrintPanelTest, OnlyALongJobShowsHowFarItIs) {
  auto job = Job();
  bool slow = false;
  int steps_seen = 0;
  job.build = [&](PageEngine&) {
    for (int i = 1; i <= 4; ++i) {
      if (slow) rig.clock.AddSeconds(1);
      print.ReportProgress(i, 4);
    }
  };
  rig.loop.on_yield = [&] {
    ++steps_seen;
    EXPECT_TRUE(print.progress.visible());
    EXPECT_TRUE(rig.form.busy());
    print.close.Click();
    EXPECT_TRUE(print.is_open());
  };
  print.Open(job);
  EXPECT_EQ(steps_seen, 0);
  slow = true;
  print.Rebuild();
  EXPECT_EQ(steps_seen, 3);
  EXPECT_EQ(print.progress.value(), 4);
  EXPECT_FALSE(print.progress.visible());
  EXPECT_FALSE(rig.form.busy());
  EXPECT_TRUE(print.close.Reachable());
}

TEST_F(PrintPanelTest, ALongJobShowsHowFarItIsThoughTheClockIsSetBack) {
  auto job = Job();
  int steps_seen = 0;
  job.build = [&](PageEngine&) {
    rig.clock.AddSeconds(-3600);
    print.ReportProgress(1, 2);
  };
  rig.loop.on_yield = [&] { ++steps_seen; };
  print.Open(job);
  EXPECT_EQ(steps_seen, 1);
}

TEST_F(PrintPanelTest, AJobThatIsCancelledWhileItBuildsLeavesNoPages) {
  auto job = Job();
  job.can_be_cancelled = true;
  int steps = 0;
  job.build = [&](PageEngine&) {
    do {
      rig.clock.AddSeconds(1);
    } while (print.ReportProgress(++steps, 100));
  };
  rig.loop.on_yield = [&] {
    if (steps == 5) rig.form.PressEscape();
  };
  print.copy_page.SetEnabled(false);
  print.Open(job);
  EXPECT_EQ(steps, 5);
  EXPECT_FALSE(print.is_open() || rig.form.busy() || print.cancel.visible());
  EXPECT_TRUE(print.close.enabled());
  EXPECT_FALSE(print.copy_page.enabled());
}

}  // namespace
}  // namespace tarnwell::print
