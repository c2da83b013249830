#include "text/date_reading.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnwell::text {
namespace {

TEST(DateReading, ReadsWhatTheMasksWriteAndWhatAPersonTypes) {
  const Date date = MakeDate(2026, 3, 9);
  for (const char* const text : {"3/9/2026",
                                 "03/09/2026",
                                 "03/09/26",
                                 "03-09-26",
                                 "3 9 2026",
                                 "2026/03/09",
                                 "2026-3-9",
                                 "03/09/2026 - Mon",
                                 "Mon - 03/09/2026",
                                 "2026/03/09 - Mon",
                                 "March 9, 2026",
                                 "March 09, 2026 - Mon",
                                 "9 March 2026",
                                 "09 March, 2026 - Mon",
                                 "Mar-09-26",
                                 "Mon - Mar 9, 26",
                                 " Mar 9, 26",
                                 "Monday - March 9, 2026",
                                 "Monday, March 09, 2026",
                                 "  3/9/2026  ",
                                 "9-MAR-2026",
                                 "marc 9 26",
                                 "9mar26",
                                 "3 / 9 / 2026",
                                 "Mar. 9, 2026",
                                 "9 Mar. 2026",
                                 "3/9/2026 10:00 AM",
                                 "Mar. 9, 2026 23:59:59",
                                 "3/9/2026 - Mon 9:05"}) {
    EXPECT_EQ(ReadDate(text), date) << text;
  }
}

TEST(DateReading, ChoosesTheOrderAndTheCentury) {
  struct {
    const char* text;
    Date date;
  } const cases[] = {
      {"12/11/2026", MakeDate(2026, 12, 11)}, {"13/11/2026", MakeDate(2026, 11, 13)},
      {"31/12/2026", MakeDate(2026, 12, 31)}, {"12/31/2026", MakeDate(2026, 12, 31)},
      {"1/1/00", MakeDate(2000, 1, 1)},       {"1/1/29", MakeDate(2029, 1, 1)},
      {"1/1/30", MakeDate(1930, 1, 1)},       {"1/1/99", MakeDate(1999, 1, 1)},
      {"2/29/2024", MakeDate(2024, 2, 29)},   {"1/1/100", MakeDate(100, 1, 1)},
      {"12/31/9999", MakeDate(9999, 12, 31)}, {"2026/March/9", MakeDate(2026, 3, 9)},
  };
  for (const auto& c : cases) EXPECT_EQ(ReadDate(c.text), c.date) << c.text;
}

TEST(DateReading, ADateWithoutAYearIsOneOfThisYear) {
  const Date today = MakeDate(2026, 11, 23);
  for (const char* const text :
       {"3/5", "Mar 5", "Mar. 5", "5 March", "Mon 3/5", "3/5 10:15", "3/5/2026"}) {
    EXPECT_EQ(ReadDate(text, today), MakeDate(2026, 3, 5)) << text;
  }
  EXPECT_EQ(ReadDate("13/5", today), MakeDate(2026, 5, 13));
  EXPECT_EQ(ReadDate("2/29", today), std::nullopt);
  EXPECT_EQ(ReadDate("2/29", MakeDate(2028, 1, 1)), MakeDate(2028, 2, 29));
  for (const char* const text : {"", "5", "March", "Mar 2026", "3/2026", "13/13", "3/9/26/1"}) {
    EXPECT_EQ(ReadDate(text, today), std::nullopt) << text;
  }
}

TEST(DateReading, RefusesEverythingElse) {
  for (const char* const text : {"",
                                 "Def",
                                 "March 9",
                                 "3/9",
                                 "March 2026",
                                 "202603",
                                 "2/29/2025",
                                 "2/30/2024",
                                 "13/13/2026",
                                 "32/1/2026",
                                 "0/1/2026",
                                 "1/0/2026",
                                 "99/03/09",
                                 "1/1/0050",
                                 "1/1/10000",
                                 "3//9/2026",
                                 "/3/9/2026",
                                 "3/9/2026/",
                                 "3/9/2026 10",
                                 "3/9/2026 24:00",
                                 "3/9/2026 13:00 PM",
                                 "3/9/2026 10:60",
                                 "3/9/2026 10:0",
                                 "10:00 AM",
                                 "3/9.2026",
                                 "Mar.. 9, 2026",
                                 "3.9.2026",
                                 "Mon",
                                 "Mon Tue 3/9/26",
                                 "Ma 9, 2026",
                                 "Marchy 9, 2026",
                                 "3 Mon 9 2026",
                                 "March April 9",
                                 "9 2026 March",
                                 "9 2026 March 1",
                                 "2026/13/9",
                                 "2026 Mon 9",
                                 "99999999999999999999/1/1"}) {
    EXPECT_EQ(ReadDate(text), std::nullopt) << text;
  }
  EXPECT_EQ(ReadDate(std::string(1'000'000, ' ') + "3"), std::nullopt);
  EXPECT_EQ(ReadDate(std::string(1'000'000, '1')), std::nullopt);
}

}  // namespace
}  // namespace tarnwell::text
