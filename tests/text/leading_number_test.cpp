#include "text/leading_number.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnwell::text {
namespace {

TEST(LeadingNumber, WhatFollowsTheNumberIsIgnored) {
  struct {
    const char* text;
    double number;
  } const cases[] = {
      {"", 0},
      {"abc", 0},
      {"12", 12},
      {"12 miles", 12},
      {"9:", 9},
      {" 1 2\t3\n4", 1234},
      {"-4.50", -4.5},
      {"- 4", -4},
      {"+7", 7},
      {"--7", 0},
      {".5x", 0.5},
      {"5.", 5},
      {"1.2.3", 1.2},
      {".", 0},
      {"1,234", 1},
      {"$5", 0},
      {"1e3", 1000},
      {"2D-1", 0.2},
      {"3E", 3},
      {"3e+", 3},
      {"3EE4", 3},
      {"1e400", 0},
      {"1e-400", 0},
      {"inf", 0},
      {"nan", 0},
      {"0x1F", 0},
      {"1e99999999999999999999", 0},
      {"5\r6", 5},
      {"\xA0"
       "5",
       0},
  };
  for (const auto& c : cases) EXPECT_EQ(LeadingNumber(c.text), c.number) << c.text;
}

TEST(LeadingNumber, AVeryLongTextIsRead) {
  EXPECT_EQ(LeadingNumber("0." + std::string(1'000'000, '0') + "1"), 0);
  EXPECT_EQ(LeadingNumber(std::string(1'000'000, '9')), 0);
  EXPECT_EQ(LeadingNumber("1." + std::string(1'000'000, '0')), 1);
}

}  // namespace
}  // namespace tarnwell::text
