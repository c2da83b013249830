#include "text/letters.h"

#include <gtest/gtest.h>

namespace tarnwell::text {
namespace {

TEST(Letters, CapitalsIncludeTheAccentedLettersAndNothingElse) {
  EXPECT_EQ(UpperCase("az\xE0\xFE\x9A\x9C\x9E\xFF"), "AZ\xC0\xDE\x8A\x8C\x8E\x9F");
  EXPECT_EQ(UpperCase("\xF7\xD7\xDF\xB5\x83[{1"), "\xF7\xD7\xDF\xB5\x83[{1");
}

TEST(Letters, SmallLettersAreTheCapitalsBack) {
  EXPECT_EQ(LowerCase("AZ\xC0\xDE\x8A\x8C\x8E\x9F"), "az\xE0\xFE\x9A\x9C\x9E\xFF");
  EXPECT_EQ(LowerCase("\xF7\xD7\xDF\xB5\x83[{1"), "\xF7\xD7\xDF\xB5\x83[{1");
}

TEST(Letters, TheOrderOfAListIgnoresCapitals) {
  EXPECT_EQ(CompareIgnoringCase("Zo\xEB", "zO\xCB"), 0);
  EXPECT_LT(CompareIgnoringCase("apple", "Banana"), 0);
  EXPECT_GT(CompareIgnoringCase("a_", "aB"), 0);  // "_" stands behind the capitals
  EXPECT_LT(CompareIgnoringCase("ab", "abc"), 0);
  EXPECT_LT(CompareIgnoringCase("z", "\xE9"), 0);  // codes count as unsigned
  EXPECT_TRUE(EqualIgnoringCase("theend1", "TheEnd1"));
  EXPECT_FALSE(EqualIgnoringCase("a", "ab"));
}

TEST(Letters, TrimsTakeBlanksOnly) {
  EXPECT_EQ(Trim("  a b \t "), "a b \t");
  EXPECT_EQ(TrimRight("  a  "), "  a");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(TrimRight(""), "");
}

TEST(Letters, CutsStopAtTheTextsEnds) {
  EXPECT_EQ(Left("abc", 2), "ab");
  EXPECT_EQ(Left("abc", 9), "abc");
  EXPECT_EQ(Right("abc", 2), "bc");
  EXPECT_EQ(Right("abc", 9), "abc");
  EXPECT_EQ(Right("", 1), "");
}

}  // namespace
}  // namespace tarnwell::text
