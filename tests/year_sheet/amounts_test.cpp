#include "year_sheet/amounts.h"

#include <gtest/gtest.h>

#include "year_sheet/years.h"

namespace tarnwell::year_sheet {
namespace {

constexpr AmountStyle kMoney{
    .mask = "####.00", .limit = 10000, .most = "9999.99", .too_large = "too large"};

// The two ways into a cell differ on purpose.
TEST(AmountsTest, ACellRefusesWhatTheInputBoxTakes) {
  using enum AmountFault;
  const struct {
    const char* typed;
    const char* in_cell;
    AmountFault fault;
    const char* box;
    const char* from_box;
    bool beeps;
  } cases[] = {
      {"12.5", "12.50", kNone, "12.5", "12.50", false},
      {".5", ".50", kNone, ".5", ".50", false},
      {"0", "", kNoNumber, "0", ".00", false},
      {".004", "", kNoNumber, ".004", ".00", false},  // would be a zero
      {"-5", "", kNoNumber, "-5", "-5.00", false},
      {"rent", "", kNoNumber, "rent", ".00", false},
      {"", "", kNoNumber, "", "", false},
      {"9999.99", "9999.99", kNone, "9999.99", "9999.99", false},
      {"9999.999", "9999.99", kTooLarge, "9999.99", "9999.99", true},
      {"10000", "9999.99", kTooLarge, "9999.99", "9999.99", true},
      {"1e3", "1000.00", kNone, "1e3", "1000.00", false},
      {"1,200", "1.00", kNone, "1", "1.00", false},
      {",5", "", kNoNumber, "", "", false},
      {"$12", "", kNoNumber, "$12", ".00", false},
      {"(5)", "", kNoNumber, "(5)", ".00", false},
  };
  for (const auto& c : cases) {
    const CellAmount cell = AmountOfCell(c.typed, kMoney);
    EXPECT_EQ(cell.text, c.in_cell) << c.typed;
    EXPECT_EQ(cell.fault, c.fault) << c.typed;
    const BoxEntry entry = AmountOfBox(c.typed, kMoney);
    EXPECT_EQ(entry.box, c.box) << c.typed;
    EXPECT_EQ(entry.cell, c.from_box) << c.typed;
    EXPECT_EQ(entry.was_too_large, c.beeps) << c.typed;
  }
  EXPECT_EQ(NameOfBox("Rent, office").cell, "Rent");
  EXPECT_EQ(NameOfBox(",Rent").box, "");
}

TEST(YearsTest, AYearIsTheNearestThatThereIs) {
  constexpr Years kBudget{.first = 1990, .last = 2089, .first_typed = 1990, .last_of_2000 = 89};
  constexpr Years kLeave{.first = 2000, .last = 2089, .first_typed = 1990};
  EXPECT_EQ(Listed(kLeave).size(), 90u);
  EXPECT_EQ(Listed(kBudget).front(), "1990");
  EXPECT_EQ(Listed(kBudget).back(), "2089");
  for (const auto& [typed, year] :
       {std::pair{"2026", 2026}, {"1989", 1990}, {"2090", 2089}, {"9999", 2089}, {"0", 1990}}) {
    EXPECT_EQ(TypedYear(typed, kLeave), year) << typed;
  }
  EXPECT_EQ(OpeningYear(text::MakeDate(2089, 1, 1), kBudget), 2089);
  EXPECT_EQ(OpeningYear(text::MakeDate(2090, 1, 1), kBudget), 1990);
  EXPECT_EQ(OpeningYear(text::MakeDate(2090, 1, 1), kLeave), 2090);
}

}  // namespace
}  // namespace tarnwell::year_sheet
