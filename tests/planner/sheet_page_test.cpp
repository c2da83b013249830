#include "planner/sheet_page.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "support/fixed_metrics.h"

namespace tarnwell::planner {
namespace {

using ::testing::Contains;
using ::testing::IsSupersetOf;

constexpr forms::Margins kMargins{500, 500, 500, 500};
const text::Date kSixWeeks = text::MakeDate(2026, 8, 1);    // a Saturday
const text::Date kFourWeeks = text::MakeDate(2026, 2, 10);  // from Sunday to Saturday

class SheetPageTest : public ::testing::Test {
 protected:
  std::vector<std::string> Build(text::Date month, NumberSide side = NumberSide::kLeft) {
    page.Build(setup, sheet, month, side);
    return testing::TextsOf(page.document().pages.at(0));
  }
  template <typename Mark>
  std::vector<Mark> Marks() const {
    std::vector<Mark> marks;
    for (const forms::Mark& mark : page.document().pages.at(0)) {
      if (const auto* found = std::get_if<Mark>(&mark)) marks.push_back(*found);
    }
    return marks;
  }
  forms::PlacedText TextNamed(const std::string& text) const {
    for (const auto& placed : Marks<forms::PlacedText>()) {
      if (placed.text == text) return placed;
    }
    return {};
  }
  double SizeOf(const std::string& text) const {
    return page.document().fonts.at(static_cast<std::size_t>(TextNamed(text).font)).size;
  }

  testing::FixedMetrics metrics;
  SheetPage page{metrics};
  MonthSheet sheet;
  forms::PageSetup setup{.landscape = true, .margins = kMargins};
};

TEST_F(SheetPageTest, TheSheetFillsEveryPaperBetweenItsMargins) {
  const std::pair<int, int> papers[] = {
      {12240, 15840}, {11906, 16838}, {5953, 8391}, {20160, 12240}};
  for (const auto& [width, height] : papers) {
    for (const bool landscape : {false, true}) {
      for (const text::Date month : {kSixWeeks, kFourWeeks, text::MakeDate(2026, 3, 1)}) {
        setup = {width, height, landscape, kMargins};
        Build(month);
        ASSERT_EQ(page.document().pages.size(), 1u);
        int right = 0;
        int bottom = 0;
        for (const auto& box : Marks<forms::PlacedBox>()) {
          right = std::max(right, box.x + box.width);
          bottom = std::max(bottom, box.y + box.height);
        }
        EXPECT_LE(right, setup.width() - 500);
        EXPECT_GT(right, setup.width() - 500 - 7);
        EXPECT_LE(bottom, setup.height() - 500);
        EXPECT_GT(bottom, setup.height() - 500 - 6);
      }
    }
  }
}

TEST_F(SheetPageTest, DaysStandUnderTheirWeekdaysWithTheNumberOnEitherSide) {
  EXPECT_THAT(Build(kSixWeeks), IsSupersetOf({"August 2026", "Sun", "Sat", "1", "31"}));
  EXPECT_EQ(Marks<forms::PlacedBox>().size(), 7u + 42u);
  const int left = TextNamed("2").x;  // a Sunday
  EXPECT_LT(left, TextNamed("1").x);
  EXPECT_EQ(left, TextNamed("30").x);
  Build(kFourWeeks, NumberSide::kRight);
  EXPECT_EQ(Marks<forms::PlacedBox>().size(), 7u + 28u);
  EXPECT_GT(TextNamed("1").x, left);
  EXPECT_EQ(TextNamed("29").text, "");
}

TEST_F(SheetPageTest, ALineGoesOnBelowWhileTheBoxHasRoom) {
  sheet.days[0][0] = "one two three four five six";
  sheet.days[0][2] = "last";
  EXPECT_THAT(Build(kSixWeeks), IsSupersetOf({"one two three four", "five six", "last"}));
  const int pitch = metrics.LineHeight(sheet.font);
  EXPECT_EQ(TextNamed("last").y, TextNamed("five six").y + 2 * pitch);
  EXPECT_EQ(SizeOf("last"), 10);
}

TEST_F(SheetPageTest, WhereTheBoxIsTooSmallOnlyTheLongestLinesAreCut) {
  sheet.days[0].fill("nine to ten with Jones");
  sheet.days[0][4] = std::string(255, 'W');
  setup.landscape = false;
  const auto texts = Build(kSixWeeks);
  EXPECT_EQ(std::ranges::count(texts, "nine to ten with Jones"), 9);
  EXPECT_EQ(std::ranges::count_if(texts, [](auto& row) { return row.ends_with('\x85'); }), 1);
  EXPECT_GT(std::ranges::count_if(texts, [](auto& row) { return row.starts_with("WW"); }), 1);
}

TEST_F(SheetPageTest, TenWideLinesStayInsideTheirBoxAndShowThatTheyGoOn) {
  for (const bool landscape : {false, true}) {
    setup.landscape = landscape;
    for (DayLines& day : sheet.days) day.fill(std::string(255, 'W'));
    sheet.days[30].fill("short");
    Build(kSixWeeks);
    int cut = 0;
    for (const auto& text : Marks<forms::PlacedText>()) {
      if (!text.text.starts_with("WW")) continue;
      if (text.text.back() == '\x85') ++cut;
      const auto& font = page.document().fonts.at(static_cast<std::size_t>(text.font));
      EXPECT_LE(metrics.Width(font, text.text), (setup.width() - 1000) / 7 - 80);
    }
    EXPECT_EQ(cut, 300);
    const auto boxes = Marks<forms::PlacedBox>();
    const auto texts = Marks<forms::PlacedText>();
    const auto lowest = std::ranges::max(texts, {}, &forms::PlacedText::y);
    const auto& font = page.document().fonts.at(static_cast<std::size_t>(lowest.font));
    EXPECT_LE(lowest.y + metrics.LineHeight(font), setup.height() - 500);
    EXPECT_EQ(page.FitToBox("short"), "short");
    const std::string fitted = page.FitToBox(std::string(255, 'W'));
    EXPECT_EQ(fitted, std::string(fitted.size(), 'W'));
    EXPECT_GT(fitted.size(), 10u);
  }
}

}  // namespace
}  // namespace tarnwell::planner
