#include "text/number_mask.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace tarnwell::text {
namespace {

TEST(NumberMask, FillsThePlacesOfTheMask) {
  struct {
    double value;
    const char* mask;
    const char* text;
  } const cases[] = {
      {12.5, "####.00", "12.50"},
      {0.5, "####.00", ".50"},
      {0, "###.00", ".00"},
      {0, "0.00", "0.00"},
      {99999, "#####.00", "99999.00"},
      {1234.5, "######.00 ", "1234.50 "},
      {0, "#,###,###", ""},
      {-12345, "#,###,###", "-12,345"},
      {999, "#,###,###", "999"},
      {1234567, "#,###,###         ", "1,234,567         "},
      {0, "#,###,##0          ", "0          "},
      {1234567.891, "###,##0.00        ", "1,234,567.89        "},
      {1234.5, "###,###0.00    ", "1,234.50    "},
      {0, "###,###0.00    ", "0.00    "},
      {7, "###0.00        ", "7.00        "},
      {21.456, "####.##", "21.46"},
      {21.5, "####.##", "21.5"},
      {21, "#######.##", "21."},
      {1234567.5, "#,###,###.##", "1,234,567.5"},
      {12345.6, "#######", "12346"},
      {5, "00", "05"},
      {5, "0##", "005"},
      {12345678, "00,000,000", "12,345,678"},
      {5, "000,000", "000,005"},
      {12345, "$##,###,###", "$12,345"},
      {0, "$##,###,###", "$"},
      {-12345, "$##,###,###", "-$12,345"},
      {0.1234, "##0.00%", "12.34%"},
      {1, "Percent", "100.00%"},
      {-0.5, "Percent", "-50.00%"},
      {1234.5, "Currency", "$1,234.50"},
      {-1234.5, "Currency", "($1,234.50)"},
      {-0.004, "Currency", "$0.00"},
      {0, "Currency", "$0.00"},
      {5551234, "###-####", "555-1234"},
      {12.5, ".00", "12.50"},
      {1234, "#,", "1234,"},
      {12, "no places", "no places"},
      {-12, "no places", "no places"},
      {12, "", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(FormatNumber(c.value, c.mask), c.text) << c.mask;
}

TEST(NumberMask, RoundsHalfAwayFromZeroOnTheDecimalDigits) {
  struct {
    double value;
    const char* mask;
    const char* text;
  } const cases[] = {
      {2.675, "0.00", "2.68"},
      {1.005, "0.00", "1.01"},
      {-1.005, "0.00", "-1.01"},
      {0.5, "0", "1"},
      {1.5, "0", "2"},
      {2.5, "0", "3"},
      {-2.5, "0", "-3"},
      {0.49, "0", "0"},
      {0.49, "#", ""},
      {9.995, "0.00", "10.00"},
      {999.5, "#,###", "1,000"},
      {0.06, "0.0", "0.1"},
      {0.004, "0.00", "0.00"},
      {-0.004, "0.00", "0.00"},
      {-0.005, "0.00", "-0.01"},
      {0.00001, "0.00", "0.00"},
      {-0.4, "#,###", ""},
      {1e15, "#,##0", "1,000,000,000,000,000"},
      {1e22, "0", "10000000000000000000000"},
      {0.00125, "##0.00%", "0.13%"},
      {123456789012345678.0, "0.0", "123456789012345680.0"},
      {5e-324, "0.00", "0.00"},
  };
  for (const auto& c : cases) EXPECT_EQ(FormatNumber(c.value, c.mask), c.text) << c.value;
}

TEST(NumberMask, ASingleCountsWithItsOwnDigits) {
  EXPECT_EQ(FormatNumber(2.675f, "0.00"), "2.68");  // as a double it is 2.67499995...
  EXPECT_EQ(FormatNumber(0.1f, "0.#########"), "0.1");
  EXPECT_EQ(FormatNumber(1234, "#,###"), "1,234");  // whole numbers go through double
}

TEST(NumberMask, WhatIsNoNumberGivesNothing) {
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::quiet_NaN(), "0.00"), "");
  EXPECT_EQ(FormatNumber(-std::numeric_limits<double>::infinity(), "Currency"), "");
  EXPECT_EQ(FormatNumber(std::numeric_limits<float>::infinity(), "0"), "");
}

TEST(NumberMask, AHostileMaskStaysBounded) {
  const std::string percents(100'000, '%');
  EXPECT_EQ(FormatNumber(1, "0" + percents).size(), 300'001u);
  EXPECT_EQ(FormatNumber(1e300, std::string(100'000, '0')).size(), 100'000u);
  EXPECT_EQ(FormatNumber(1, "0." + std::string(100'000, '0')).size(), 100'002u);
}

TEST(TextMask, FillsFromTheRightUnlessTheMaskSaysLeft) {
  struct {
    const char* text;
    const char* mask;
    const char* filled;
  } const cases[] = {
      {"abc", "!@@@@@", "abc  "},
      {"abcdefg", "!@@@@@", "abcde"},
      {"abc", " !@@@@@", " abc  "},
      {"abc", "    !@@@@", "    abc "},
      {"abc", "@@@@@", "  abc"},
      {"abcdefg", "@@@@@", "abcdefg"},
      {"", "!@@@", "   "},
      {"", "@@@", "   "},
      {"abc", "@@ @@", " a bc"},
      {"abcdef", "@@ @@", "abcd ef"},
      {"abc", "", ""},
      {"abc", "!", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(FormatText(c.text, c.mask), c.filled) << c.mask;
}

}  // namespace
}  // namespace tarnwell::text
