#include "text/date_mask.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnwell::text {
namespace {

TEST(DateMask, WritesEveryMaskOfTheProgram) {
  const Date date = MakeDate(2026, 3, 9);  // a Monday
  struct {
    const char* mask;
    const char* text;
  } const cases[] = {
      {"mm/dd/yyyy", "03/09/2026"},
      {"mm/dd/yyyy - ddd", "03/09/2026 - Mon"},
      {"ddd - mm/dd/yyyy", "Mon - 03/09/2026"},
      {"mmmm d, yyyy", "March 9, 2026"},
      {"mmmm dd, yyyy", "March 09, 2026"},
      {"mmmm dd, yyyy - ddd", "March 09, 2026 - Mon"},
      {"d mmmm yyyy", "9 March 2026"},
      {"dd mmmm yyyy", "09 March 2026"},
      {"dd mmmm, yyyy - ddd", "09 March, 2026 - Mon"},
      {"mmm-dd-yy", "Mar-09-26"},
      {"mmm-dd-yyyy", "Mar-09-2026"},
      {"ddd - mmm d, yy", "Mon - Mar 9, 26"},
      {"dddd - mmmm d, yyyy", "Monday - March 9, 2026"},
      {"mmmm yyyy", "March 2026"},
      {"yyyymm", "202603"},
      {"yyyy/mm/dd", "2026/03/09"},
      {"yyyy/mm/dd - ddd", "2026/03/09 - Mon"},
      {"Long Date", "Monday, March 09, 2026"},
      {"Short Date", "3/9/2026"},
      {"mmmm", "March"},
      {"dddd", "Monday"},
      {"ddddd", "Monday9"},
      {"yyy y", "26y y"},
      {"", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(FormatDate(date, c.mask), c.text) << c.mask;
}

TEST(DateMask, CountsTheHoursOfHalfDaysFromTwelve) {
  struct {
    int seconds;
    const char* mask;
    const char* text;
  } const cases[] = {
      {0, "h:nn AM/PM", "12:00 AM"},      {59, "h:nn:ss AM/PM", "12:00:59 AM"},
      {3'600, "h:nn AM/PM", "1:00 AM"},   {43'199, "h:nn AM/PM", "11:59 AM"},
      {43'200, "h:nn AM/PM", "12:00 PM"}, {48'900, "hh:n AM/PM", "01:35 PM"},
      {86'399, "h:nn AM/PM", "11:59 PM"}, {0, "h:nn", "0:00"},
      {48'903, "hh:nn:ss", "13:35:03"},   {48'903, "hnns", "13353"},
  };
  for (const auto& c : cases) {
    const Moment moment{MakeDate(2026, 3, 9), std::chrono::seconds{c.seconds}};
    EXPECT_EQ(FormatDate(moment, c.mask), c.text) << c.mask;
  }
}

TEST(DateMask, WhatIsNoDateGivesNothing) {
  EXPECT_EQ(FormatDate(Date{}, "mm/dd/yyyy"), "");
  EXPECT_EQ(FormatDate(MakeDate(2025, 2, 29), "mm/dd/yyyy"), "");
  EXPECT_EQ(FormatDate(MakeDate(2025, 13, 1), "mmmm"), "");
  EXPECT_EQ(FormatDate(MakeDate(99, 1, 1), "mm/dd/yyyy"), "");
  EXPECT_EQ(FormatDate(MakeDate(10000, 1, 1), "mm/dd/yyyy"), "");
  EXPECT_EQ(FormatDate({MakeDate(2025, 2, 28), std::chrono::hours{24}}, "h:nn"), "");
}

}  // namespace
}  // namespace tarnwell::text
