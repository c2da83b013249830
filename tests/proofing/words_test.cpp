#include "proofing/words.h"

#include <gmock/gmock.h>

namespace tarnwell::proofing {
namespace {

using ::testing::ElementsAreArray;

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  for (const WordPlace& place : WordsOf(text)) words.emplace_back(place.In(text));
  return words;
}

TEST(WordsTest, OnlyWhatASpellingAppliesToIsAWord) {
  const struct {
    const char* text;
    std::vector<std::string> words;
  } cases[] = {
      {"", {}},
      {" Call Ann, then\tBob.\r\nEnd", {"Call", "Ann", "then", "Bob", "End"}},
      {"don't 'quoted' dogs' O\u2019Neil rock'n'roll",
       {"don't", "quoted", "dogs", "O\u2019Neil", "rock'n'roll"}},
      {"well-known and/or (sic)", {"well", "known", "and", "or", "sic"}},
      {"missing.Blank at its e.g. end", {"missing", "Blank", "at", "its", "end"}},
      {"(i) one i.e. two b) at 5 p.m. Do i. x.Y", {"one", "two", "at", "Do", "i"}},
      {"i. one\n  i) two (so do i) and (i) i", {"one", "two", "so", "do", "i", "and", "i"}},
      {"3rd A4 2nd-hand B2B ok", {"hand", "ok"}},
      {"Name:____ Date____", {"Name", "Date"}},
      {"see www.tarnwell.test/Rates, https://a.b and ann.b@mail.test now", {"see", "and", "now"}},
      {"(Example.COM), <bob@mail.test> or a@ b", {"or", "a", "b"}},
      {"caf\u00e9 \u0160koda stra\u00dfe \u03b1\u03b2\u03b3 e\u0301t\u00e9 na\u0438ve",
       {"caf\u00e9", "\u0160koda", "stra\u00dfe"}},
      {"one\u2014two\u2026three\u00a0four\u2192five", {"one", "two", "three", "four", "five"}},
      {"&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&&& here", {"here"}},
      {"ex\u00adample \xff torn\xc3", {"ex\u00adample", "torn"}},
  };
  for (const auto& one : cases) {
    EXPECT_THAT(Words(one.text), ElementsAreArray(one.words)) << one.text;
  }
  EXPECT_EQ(DictionaryForm("O\u2019Ne\u00adil"), "O'Neil");
}

TEST(WordsTest, ALongRunWithoutABlankIsSplitInOnePass) {
  std::string run;
  for (int i = 0; i < 300000; ++i) run += "ab-";
  EXPECT_EQ(WordsOf(run).size(), 300000u);
}

TEST(WordsTest, TwoWordsStandTogetherOverBlanksOnly) {
  for (const auto& [text, together] : {std::pair{"their are", true},
                                       {"their  are", true},
                                       {"their, are", false},
                                       {"their-are", false},
                                       {"their\nare", false}}) {
    const auto words = WordsOf(text);
    ASSERT_EQ(words.size(), 2u);
    EXPECT_EQ(StandTogether(text, words[0], words[1]), together) << text;
  }
}

TEST(WordsTest, AWordIsShownInItsSentence) {
  const struct {
    const char* text;
    const char* word;
    const char* shown;  // with bars at the seams, at 20 characters
  } cases[] = {
      {"We recieve it.", "recieve", "We |recieve| it."},
      {"Done. Did 3.5 go? Teh end! Not this.", "Teh", "|Teh| end!"},
      {"Line one\nteh two\nthree", "teh", "|teh| two"},
      {"The goods that we had ordered recieve a mark behind them at once", "recieve",
       "\x85that we had ordered |recieve| a mark behind them\x85"},
      {"Stra\u00dfe teh caf\u00e9", "teh",
       "Stra\xDF"
       "e |teh| caf\xE9"},
      {"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx", "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx",
       "|xxxxxxxxxxxxxxxxxxxx\x85|"},
  };
  for (const auto& one : cases) {
    const std::string_view text = one.text;
    const WordPlace place{text.find(one.word), std::string_view(one.word).size()};
    const Surroundings pieces = SurroundingsOf(text, place, 20);
    EXPECT_EQ(pieces.before + "|" + pieces.word + "|" + pieces.after, one.shown) << text;
  }
}

}  // namespace
}  // namespace tarnwell::proofing
