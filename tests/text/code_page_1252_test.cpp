#include "text/code_page_1252.h"

#include <gtest/gtest.h>

namespace tarnwell::text {
namespace {

TEST(CodePage1252, EveryByteHasACharacterOfItsOwn) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
}

TEST(CodePage1252, CharactersStandWhereTheCodePageHasThem) {
  EXPECT_EQ(ToUtf8("caf\xE9 \x80 12 \x96 \x8D").bytes(), "café € 12 – \xC2\x8D");
  EXPECT_EQ(FromUtf8(Utf8("Ÿ™ž")), "\x9F\x99\x9E");
}

TEST(CodePage1252, WhatItCannotHoldBecomesTheNearestForm) {
  struct {
    const char* utf8;
    const char* text;
  } const cases[] = {
      {"Dvořák", "Dvor\xE1k"},
      {"Łódź",
       "L\xF3"
       "dz"},
      {"Ștefan Țepeș", "Stefan Tepes"},
      {"Nguyễn", "Nguyen"},
      {"cafe\xCC\x81", "cafe"},
      {"555\xE2\x80\x91"
       "1234",
       "555-1234"},
      {"a\xE2\x80\xAF"
       "b",
       "a b"},
      {"zero\xE2\x80\x8Bwidth", "zerowidth"},
      {"ＡＢ！", "AB!"},
      {"ﬁle", "file"},
      {"日本", "??"},
      {"😀", "?"},
      {"\xC2\x80", "?"},
  };
  for (const auto& c : cases) EXPECT_EQ(FromUtf8(Utf8(c.utf8)), c.text) << c.utf8;
}

TEST(CodePage1252, AMalformedSequenceGivesOneQuestionMark) {
  struct {
    const char* utf8;
    const char* text;
  } const cases[] = {
      {"a\xE2\x82", "a?"},           // cut off
      {"\xE2\x82z", "?z"},           // broken off by a letter
      {"\xF0\x9F\x98", "?"},         //
      {"\xFFz", "?z"},               // never in UTF-8
      {"\x80z", "?z"},               // a follower alone
      {"\xC0\xAF", "??"},            // overlong: neither byte can stand
      {"\xED\xA0\x80", "???"},       // a surrogate
      {"\xF4\x90\x80\x80", "????"},  // past the last character
  };
  for (const auto& c : cases) EXPECT_EQ(FromUtf8(Utf8(c.utf8)), c.text) << c.text;
}

}  // namespace
}  // namespace tarnwell::text
