#include "budget/budget1a.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "forms/form_names.h"
#include "support/program_rig.h"

namespace tarnwell::budget {
namespace {

using forms::Answer;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using testing::TextsOf;

constexpr const char* kTooMuch = "Maximum Allowed Entry Exceeded";
constexpr const char* kPrompt =
    "Enter Total Amount of Income That you will be receiving this month.";

class Budget1aTest : public ::testing::Test {
 protected:
  void SetUp() override { Start(); }
  void Start() {
    rig_.Start();
    rig_.navigator().Show(forms::form_names::kBudget1a);
  }
  Budget1a& form() { return rig_.Get<Budget1a>("Budget1a"); }
  forms::Grid& grid() { return form().grid; }
  void Enter(int row, const std::string& item, const std::string& january) {
    grid().EditCell(row, Budget1a::kName, item);
    if (!january.empty()) grid().EditCell(row, Budget1a::kFirstMonth, january);
  }
  void ExpectRightQuestion(Answer answer) {
    rig_.dialogs.Expect(
        {"Total Income Row", "Do you want to copy this month's entry of Total Income to the Right?",
         forms::Icon::kQuestion, forms::Buttons::kYesNo, 2},
        answer);
  }
  void TypeIncome(std::size_t month, const std::string& typed, Answer to_the_right) {
    rig_.dialogs.ExpectInput("Total Income", kPrompt, typed);
    if (month < 11) ExpectRightQuestion(to_the_right);
    form().income[month].Click();
  }
  void ExpectSaveQuestion(const std::string& year, Answer answer) {
    rig_.dialogs.ExpectYesNoCancel(
        "Company Budget", "Save changes made to " + year + " budget before Exiting?", answer);
  }
  void ExpectCopyQuestion(const std::string& from, const std::string& to) {
    rig_.dialogs.Expect({"Copy Year", "Copy " + from + " file to " + to + "?",
                         forms::Icon::kQuestion, forms::Buttons::kYesNo, 2},
                        Answer::kYes);
  }
  void TakeYear(const std::string& year) {
    form().years.Type(year);
    form().years.PressEnter();
  }
  const forms::Document& Printed() { return *form().print.preview.document(); }

  testing::ProgramRig rig_;
};

TEST_F(Budget1aTest, AYearThatCantBeReadTakesNoIncomeEither) {
  std::filesystem::create_directory(rig_.temporary.path() + "/2025.Fil");
  TakeYear("2025");
  EXPECT_FALSE(grid().enabled() || form().save.enabled());
  form().income[0].Click();  // an input box would fail the test
  EXPECT_FALSE(form().unsaved());
  TakeYear("2026");
  TypeIncome(11, "5", Answer::kNo);
  EXPECT_TRUE(form().unsaved());
}

TEST_F(Budget1aTest, TotalsFollowEveryEntryAndTheIncomeGoesToTheRight) {
  EXPECT_EQ(form().income[0].caption(), "0.00");
  Enter(1, "Rent", "1200");
  Enter(2, "", "0.5");
  EXPECT_EQ(form().expenses[0].caption(), "1200.50");
  EXPECT_EQ(form().balance[0].caption(), "-1200.50");
  EXPECT_EQ(form().balance[0].color(), kOverdrawn);
  TypeIncome(0, "1500", Answer::kYes);
  EXPECT_EQ(form().income[11].caption(), "1500.00");
  EXPECT_EQ(form().balance[0].caption(), "299.50");
  EXPECT_EQ(form().balance[0].color(), forms::kBlack);
  rig_.dialogs.ExpectInput("Total Income", kPrompt, "100000");
  rig_.dialogs.ExpectWarning(kTooMuch,
                             "Due to printer size requirements needed to print this budget, the "
                             "Total Income Amount Cannot exceed 99999.99");
  ExpectRightQuestion(Answer::kNo);
  form().income[1].Click();
  EXPECT_EQ(form().income[1].caption(), "99999.99");
  EXPECT_EQ(form().income[2].caption(), "1500.00");
  TypeIncome(11, "-3", Answer::kNo);
  EXPECT_EQ(form().income[11].caption(), "0.00");
  for (const std::optional<std::string>& nothing : {std::optional<std::string>(""), {}}) {
    rig_.dialogs.ExpectInput("Total Income", kPrompt, nothing);
    form().income[2].Click();
    EXPECT_EQ(form().income[2].caption(), "1500.00");
  }
}

TEST_F(Budget1aTest, AMonthBeyondItsLimitIsToldAndGoesOnBelowIt) {
  for (int row = 1; row <= 10; ++row) Enter(row, "", "9999.99");
  rig_.dialogs.ExpectWarning(kTooMuch,
                             "Due to printer size requirements needed to print this budget, the "
                             "Total of Bills Amount Cannot exceed 99999");
  Enter(11, "", "9999.99");
  EXPECT_EQ(form().expenses[0].caption(), "99999.00");
}

TEST_F(Budget1aTest, ARowIsInsertedWithoutLosingTheLastOneUnasked) {
  Enter(1, "Rent", "");
  Enter(500, "Last", "");
  grid().SelectCell(1, Budget1a::kFirstMonth);
  for (const Answer answer : {Answer::kNo, Answer::kYes}) {
    rig_.dialogs.Expect(
        {"Insert New Row", "The last row, \"Last\", would drop out of the budget. Insert a row?",
         forms::Icon::kQuestion, forms::Buttons::kYesNo, 2},
        answer);
    rig_.ClickMenu("mOIN");
    EXPECT_EQ(grid().rows(), 501);
    EXPECT_EQ(grid().text(answer == Answer::kYes ? 2 : 1, Budget1a::kName), "Rent");
  }
  rig_.ClickMenu("mOIN");
  EXPECT_EQ(grid().text(3, Budget1a::kName), "Rent");
  EXPECT_EQ(grid().current(), (forms::GridPlace{1, Budget1a::kFirstMonth}));
}

TEST_F(Budget1aTest, TotalsWantAnEntryAndAnIncome) {
  rig_.dialogs.ExpectWarning(
      "View Totals",
      "There must be at least one entry and at least one income entry to view Totals!");
  form().totals.Click();
  Enter(1, "Rent", "500");
  rig_.dialogs.ExpectWarning("Totals Button",
                             "Please enter at least the first row of data and the Total Income!");
  form().totals.Click();
  EXPECT_FALSE(form().year_totals.is_open());
  TypeIncome(11, "600", Answer::kNo);
  form().totals.Click();
  EXPECT_TRUE(form().year_totals.is_open());
  EXPECT_FALSE(form().year_totals.change_base.enabled());  // one item
}

class WithTotals : public Budget1aTest {
 protected:
  void SetUp() override {
    Budget1aTest::SetUp();
    Enter(1, "Rent", "300");
    Enter(2, "Idle", "");
    Enter(3, "Wages", "500");
    TypeIncome(0, "1000", Answer::kNo);
    form().totals.Click();
  }
  TotalsPanel& totals() { return form().year_totals; }
  std::vector<std::string> Percents() {
    std::vector<std::string> percents;
    for (int row = 1; row < totals().items.rows(); ++row) {
      percents.push_back(totals().items.text(row, 2));
    }
    return percents;
  }
};

TEST_F(WithTotals, PercentsStandOnEitherBase) {
  EXPECT_EQ(totals().panel.caption(),
            "TOTALS FOR 2026" + std::string(46, ' ') + "Percentage Per Item");
  EXPECT_EQ(totals().balance.caption(), " 200.00 ");
  EXPECT_EQ(totals().balance_share.caption(), "     20.00%");
  EXPECT_THAT(Percents(), ElementsAre(" 30.00%", "", " 50.00%"));
  totals().change_base.Click();
  EXPECT_THAT(Percents(), ElementsAre(" 37.50%", "", " 62.50%"));
  EXPECT_EQ(totals().base_note.caption(), "% = Item Totals divided by Total Expenses");
  for (forms::Command* command : {&form().save, &form().delete_row, &form().copy_year,
                                  &form().print_options, &form().totals}) {
    EXPECT_FALSE(command->Reachable()) << command->name();
  }
  totals().close.Click();
  EXPECT_TRUE(form().save.Reachable() && form().totals.Reachable());
  form().totals.Click();
  EXPECT_THAT(Percents(), ElementsAre(" 30.00%", "", " 50.00%"));
  EXPECT_EQ(totals().base_note.caption(), "% = Item Totals divided by Total Income");
}

TEST_F(WithTotals, TheListAndTheChartShowTheSameItem) {
  const forms::ChartPicture& picture = totals().chart.picture();
  EXPECT_THAT(picture.points,
              ElementsAre(forms::ChartPoint{"Rent", 300}, forms::ChartPoint{"Wages", 500},
                          forms::ChartPoint{"Balance", 200, true}));
  totals().items.SelectCell(3, 0);
  EXPECT_EQ(picture.highlight, 1);
  totals().items.SelectCell(2, 0);
  EXPECT_EQ(picture.highlight, forms::ChartPicture::kNone);
  totals().chart.ClickPoint(0);
  EXPECT_EQ(totals().items.current().row, 1);
  EXPECT_EQ(picture.highlight, 0);
  totals().chart.ClickPoint(2);
  EXPECT_EQ(picture.highlight, 2);
  totals().kind.Pick(2);
  totals().orientation.Pick(1);
  EXPECT_EQ(picture.kind, forms::ChartKind::kStacked);
  EXPECT_TRUE(picture.horizontal);
}

TEST_F(WithTotals, ThePageHasTheChartWhereItBelongs) {
  rig_.ClickMenu("mOPrt");
  const auto chart = [&]() -> std::optional<forms::PlacedChart> {
    for (const forms::Mark& mark : Printed().pages[0]) {
      if (const auto* placed = std::get_if<forms::PlacedChart>(&mark)) return *placed;
    }
    return std::nullopt;
  };
  EXPECT_THAT(TextsOf(Printed().pages[0]),
              ElementsAre("As of  March 09, 2026", "Company Budget TOTALS FOR 2026",
                          "Printed: Monday, March 09, 2026", "Item", "Total", "Percentage", "Rent",
                          "300.00", "30.00%", "Idle", "Wages", "500.00", "50.00%",
                          "Total Expenses: ", "800.00", "80.00%", "Total Income: ", "1000.00",
                          "100.00%", "Balance: ", "200.00", "20.00%"));
  ASSERT_TRUE(chart());
  EXPECT_EQ(*chart()->picture, totals().chart.picture());
  EXPECT_EQ(std::tuple(chart()->x, chart()->y, chart()->width, chart()->height),
            std::tuple(518, 1210, 10512, 5976));
  rig_.pages.setup.emplace().landscape = true;
  form().print.page_setup.Click();
  EXPECT_EQ(std::tuple(chart()->x, chart()->y, chart()->width, chart()->height),
            std::tuple(446, 1008, 14256, 6336));
  form().print_graph.Check(false);
  EXPECT_FALSE(chart());
  EXPECT_FALSE(rig_.folder.Exists("Chartxxx.jpg"));
  form().print.close.Click();
  EXPECT_TRUE(totals().panel.Reachable());
}

TEST_F(Budget1aTest, TheYearIsPrintedWithItsHeadOnEachPage) {
  for (int row = 1; row <= 120; ++row) Enter(row, "Item " + std::to_string(row), "10");
  Enter(121, "", "7");
  form().print_options.Click();
  ASSERT_GE(Printed().pages.size(), 2U);
  const std::vector<std::string> first = TextsOf(Printed().pages[0]);
  EXPECT_THAT(std::vector(first.begin(), first.begin() + 6),
              ElementsAre("As of  March 09, 2026", " Budget For 2026",
                          "Printed: Monday, March 09, 2026", "Item", "Jan", "Feb"));
  EXPECT_THAT(TextsOf(Printed().pages[1]),
              AllOf(Contains(" Budget For 2026 (Continued)"), Contains("Dec")));
  const std::vector<std::string> last = TextsOf(Printed().pages.back());
  EXPECT_THAT(last, Contains("Total Expenses: "));
  EXPECT_THAT(last, Contains("1207.00"));
  EXPECT_THAT(last, Contains("-1207.00"));
  for (const forms::Page& page : Printed().pages) {
    for (const forms::Mark& mark : page) {
      const auto* text = std::get_if<forms::PlacedText>(&mark);
      if (!text) continue;
      const forms::Font& font = Printed().fonts[static_cast<std::size_t>(text->font)];
      EXPECT_LE(text->x + rig_.pages.fixed_metrics.Width(font, text->text), 12240 - 100);
    }
  }
}

TEST_F(Budget1aTest, APrintIsBrokenOffWhileItIsPrepared) {
  Enter(1, "Rent", "300");
  rig_.loop.on_yield = [&] {
    EXPECT_TRUE(form().preparing.visible());
    EXPECT_FALSE(form().save.Reachable());
    form().cancel_print.Click();
  };
  form().print_options.Click();
  rig_.loop.on_yield = nullptr;
  EXPECT_FALSE(form().print.is_open());
  EXPECT_TRUE(form().save.Reachable());
  form().print_options.Click();
  EXPECT_EQ(Printed().pages.size(), 1U);
}

TEST_F(Budget1aTest, TheClipboardGetsItemsAndTotals) {
  Enter(1, "Rent", "300");
  Enter(2, "", "5");
  TypeIncome(0, "1000", Answer::kNo);
  rig_.dialogs.ExpectNote("Copy Option",
                          "Current Budget has been copied to the Windows Clipboard.");
  rig_.ClickMenu("mOCopy");
  const auto eleven = [](const std::string& cell) {
    std::string cells;
    for (int i = 0; i < 11; ++i) cells += "\t" + cell;
    return cells + "\r\n";
  };
  EXPECT_EQ(rig_.clipboard.text,
            " Budget2026\r\nItem\tJan\tFeb\tMar\tApr\tMay\tJun\tJul\tAug\tSep\tOct\tNov\tDec\r\n"
            "Rent\t300.00" +
                eleven("") + "Total Expenses:\t305.00" + eleven(".00") +
                "Total Income:      \t1000.00" + eleven("0.00") + "Balance:          \t695.00" +
                eleven(".00"));
}

// A small company keeps its books, copies the year and plans the next one.
TEST_F(Budget1aTest, AYearIsKeptCopiedAndGoneOnWith) {
  Enter(1, "Rent", "1200");
  grid().SelectCell(1, Budget1a::kFirstMonth);
  form().copy_right.Click();
  TypeIncome(0, "4000", Answer::kYes);
  form().save.Click();
  EXPECT_FALSE(form().unsaved());
  const std::string saved = rig_.temporary.Read("2026.Fil");
  EXPECT_EQ(std::ranges::count(saved, '\n'), 6512);

  rig_.temporary.Write("2027.Fil", "\"Old plan\"\r\n");
  Enter(2, "Unsaved", "1");
  ExpectCopyQuestion("2026", "2027");
  form().copy_year.Click();
  EXPECT_EQ(rig_.temporary.Read("2027.Fil"), saved);
  EXPECT_EQ(rig_.temporary.Read("2027.Fil.old"), "\"Old plan\"\r\n");

  ExpectSaveQuestion("2026", Answer::kCancel);
  TakeYear("2027");
  EXPECT_EQ(form().years.text(), "2026");
  ExpectSaveQuestion("2026", Answer::kNo);
  TakeYear("2027");
  EXPECT_EQ(grid().text(1, Budget1a::kLastMonth), "1200.00");
  EXPECT_EQ(grid().text(2, Budget1a::kName), "");
  EXPECT_EQ(form().income[11].caption(), "4000.00");
  grid().EditCell(1, Budget1a::kLastMonth, "1300");
  form().save.Click();
  EXPECT_FALSE(rig_.folder.Exists("2027.Fil.old"));
  TakeYear("2100");
  EXPECT_EQ(form().years.text(), "2089");
  TakeYear("1989");
  EXPECT_EQ(form().years.text(), "1990");
  form().exit.Click();

  Start();
  EXPECT_EQ(form().balance[11].caption(), "2800.00");
  TakeYear("2027");
  EXPECT_EQ(form().balance[11].caption(), "2700.00");
}

}  // namespace
}  // namespace tarnwell::budget
