#include "print/page_engine.h"

#include <gmock/gmock.h>

#include "print/report.h"
#include "print/table.h"
#include "print/text_wrap.h"
#include "support/fixed_metrics.h"

namespace tarnwell::print {
namespace {

using forms::PlacedText;
using ::testing::ElementsAre;
using ::testing::SizeIs;
using testing::TextsOf;

class PageEngineTest : public ::testing::Test {
 protected:
  // Ten lines of ten points, 40 characters wide, inside margins of 100.
  forms::PageSetup Sheet() { return {4200, 2600, false, {}}; }
  void Start() { engine.Start(Sheet(), {}); }
  const forms::Page& page(std::size_t index) { return engine.document().pages.at(index); }
  PlacedText FirstText(std::size_t index) { return std::get<PlacedText>(page(index).at(0)); }

  testing::FixedMetrics metrics;
  PageEngine engine{metrics};
};

TEST_F(PageEngineTest, TextIsWrappedAtBlanksAndLongWordsAreCut) {
  const struct {
    const char* text;
    std::vector<std::string> lines;
  } cases[] = {
      {"", {""}},
      {"short", {"short"}},
      {"ten chars.", {"ten chars."}},
      {"ten chars. more", {"ten chars.", "more"}},
      {"one two three", {"one two", "three"}},
      {"  indent ab", {"  indent", "ab"}},
      {"abcdefghijklm no", {"abcdefghij", "klm no"}},
      {"a\n\nb\r\nc", {"a", "", "b", "c"}},
      {"            x", {"          ", "x"}},
      {"end          ", {"end       "}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(WrapText(metrics, {}, c.text, 1000), c.lines) << c.text;
  }
  EXPECT_THAT(WrapText(metrics, {}, "ab", 0), ElementsAre("a", "b"));
  EXPECT_THAT(WrapText(metrics, {}, std::string(100000, 'x'), 1000), SizeIs(10000));
}

TEST_F(PageEngineTest, TextStandsAtItsLeftEdgeItsRightEdgeOrItsMiddle) {
  Start();
  engine.TextAt(2000, 500, "four", Align::kLeft);
  engine.TextAt(2000, 500, "four", Align::kRight);
  engine.TextAt(2000, 500, "four", Align::kCenter);
  EXPECT_THAT(page(0),
              ElementsAre(PlacedText{2000, 500, 0, "four"}, PlacedText{1600, 500, 0, "four"},
                          PlacedText{1800, 500, 0, "four"}));
  engine.Line("right", Align::kRight);
  EXPECT_EQ(std::get<PlacedText>(page(0).at(3)), (PlacedText{3600, 100, 0, "right"}));
  EXPECT_EQ(engine.y(), 340);
}

TEST_F(PageEngineTest, LinesRunOnToNewPagesWithTheirHeads) {
  int heads = 0;
  engine.on_new_page = [&] {
    ++heads;
    forms::Font large;
    large.size = 20;
    engine.SetFont(large);
    engine.Line("Page " + std::to_string(engine.page_count()));
  };
  Start();
  for (int i = 0; i < 17; ++i) engine.Line("line");
  EXPECT_EQ(heads, 3);
  ASSERT_EQ(engine.page_count(), 3);
  EXPECT_THAT(page(0), SizeIs(9));
  EXPECT_EQ(TextsOf(page(2)).front(), "Page 3");
  EXPECT_EQ(engine.document().fonts.size(), 2u);
  EXPECT_EQ(FirstText(2).font, 0);
  EXPECT_EQ(std::get<PlacedText>(page(2).at(1)), (PlacedText{100, 580, 1, "line"}));
}

TEST_F(PageEngineTest, TwoColumnsAreFilledBeforeAPageIs) {
  Start();
  engine.Line("title");
  engine.SetColumns(2, 400);
  for (int i = 0; i < 19; ++i) engine.Line(std::to_string(i));
  ASSERT_EQ(engine.page_count(), 2);
  EXPECT_EQ(std::get<PlacedText>(page(0).at(10)), (PlacedText{2300, 340, 0, "9"}));
  EXPECT_EQ(FirstText(1), (PlacedText{100, 100, 0, "18"}));
}

TEST_F(PageEngineTest, APageOnItsSideSwapsItsEdges) {
  auto setup = Sheet();
  setup.landscape = true;
  engine.Start(setup, {});
  EXPECT_EQ(engine.page_width(), 2600);
  EXPECT_EQ(engine.bottom(), 4100);
}

TEST_F(PageEngineTest, WhatFitsOnNoPageStillMakesProgress) {
  forms::Font huge;
  huge.size = 200;
  engine.Start(Sheet(), huge);
  for (int i = 0; i < 3; ++i) engine.Line("x");
  EXPECT_EQ(engine.page_count(), 3);
}

TEST_F(PageEngineTest, ATablesHeadComesAgainOnEachPageAndRowsStayTogether) {
  Start();
  Table table(engine, {{"Day", 1000}, {"Cost", 1000, Align::kRight}}, TableLines::kNone);
  for (int i = 0; i < 8; ++i) table.Row({"1st", "5"});
  table.Row({"wraps to two", "x"});
  ASSERT_EQ(engine.page_count(), 2);
  EXPECT_THAT(TextsOf(page(1)), ElementsAre("Day", "Cost", "wraps to", "two", "x"));
  EXPECT_EQ(std::get<PlacedText>(page(1).at(4)), (PlacedText{1940, 340, 1, "x"}));
}

TEST_F(PageEngineTest, ARowFitsWithTheGapAboveIt) {
  Start();
  Table table(engine, {{"Day", 1000}}, TableLines::kNone);
  for (const char* row : {"1", "2", "3", "4", "5"}) table.Row({row}, 300);
  ASSERT_EQ(engine.page_count(), 2);
  EXPECT_THAT(TextsOf(page(1)), ElementsAre("Day", "5"));
  EXPECT_EQ(std::get<PlacedText>(page(1).at(1)).y, 340);
}

TEST_F(PageEngineTest, ARowTallerThanAPageIsPartedAndAnEmptyTableIsNothing) {
  Start();
  Table empty(engine, {{"Day", 1000}}, TableLines::kAll);
  EXPECT_THAT(page(0), SizeIs(0));
  Table table(engine, {{"", 1120}}, TableLines::kNone);
  table.Row({std::string(25 * 10, 'x')});
  EXPECT_EQ(engine.page_count(), 3);
  EXPECT_THAT(TextsOf(page(2)), SizeIs(7));
}

TEST_F(PageEngineTest, LinesOfATableLieAroundItsCells) {
  Start();
  Table table(engine, {{"", 1000}, {"", 1500}}, TableLines::kAll);
  table.Row({"a", "b"});
  EXPECT_THAT(page(0), ::testing::Contains(forms::PlacedLine{100, 580, 2600, 580}));
  EXPECT_THAT(page(0), ::testing::Contains(forms::PlacedLine{1100, 340, 1100, 580}));
}

TEST_F(PageEngineTest, TheLinesThatReportsShareStandAtTheHead) {
  const text::Date today = text::MakeDate(2026, 3, 9);
  forms::ProgramVariables variables;
  Start();
  PrintedLine(engine, today, engine.top());
  EXPECT_EQ(FirstText(0), (PlacedText{4200 - 2300 - 300, 100, 0, "Printed:  March 9, 2026"}));
  EXPECT_EQ(engine.y(), 350);

  Start();
  AsOfLine(engine, variables, today);
  EXPECT_EQ(FirstText(0), (PlacedText{2100 - 21 * 40, 100, 0, "As of  March 09, 2026"}));
  EXPECT_EQ(engine.document().fonts.at(0).size, 8);
  EXPECT_EQ(engine.font().size, 10);
  variables.NoAsOfDate = 1;
  Start();
  AsOfLine(engine, variables, today);
  EXPECT_THAT(page(0), SizeIs(0));
  EXPECT_EQ(CompanyTitle(variables, "List"), "List");
  variables.CompanyLine = "Ours";
  EXPECT_EQ(CompanyTitle(variables, "List"), "Ours List");
}

}  // namespace
}  // namespace tarnwell::print
