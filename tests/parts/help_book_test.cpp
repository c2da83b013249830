#include "parts/help_book.h"

#include <gmock/gmock.h>

namespace tarnwell::parts {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

HelpBook SmallBook() {
  HelpBook book;
  book.AddPage("index.html",
               "<title>Help</title><h1>Help</h1><h2>Start</h2><ul><li><a href=\"1.html\">Over"
               "view</a></li></ul><h2>Screens</h2><a href=\"2.html#x\">Budget &amp; more</a>");
  book.AddPage("1.html",
               "<title>Overview</title><h1>Overview</h1><p>Press <b>Save</b>. A budget, another "
               "budget, a\n  budget, and printing.</p>");
  book.AddPage("2.html",
               "<title>Budget &amp; more</title><h1>Budget &amp; more</h1><h2><a name=\"x\"></a>"
               "Printing</h2><p>Press <b>Save</b>, then <b>Save</b> and <b>Save &amp; Exit</b>. "
               "The <a href=\"1.html\">rebudgeting</a> is <i>caf\xC3\xA9</i>.</p>");
  return book;
}

std::vector<std::string> Found(const char* words) {
  std::vector<std::string> files;
  for (const HelpFound& found : SmallBook().Search(words)) files.push_back(found.place.file);
  return files;
}

TEST(HelpBookTest, TheContentsAreTheChaptersOfTheirPage) {
  const auto chapters = SmallBook().Contents();
  ASSERT_EQ(chapters.size(), 2u);
  EXPECT_EQ(chapters[0].title + "|" + chapters[0].pages[0].title, "Start|Overview");
  EXPECT_EQ(chapters[1].pages[0].file + "|" + chapters[1].pages[0].title, "2.html|Budget & more");
}

TEST(HelpBookTest, TheIndexHasEachTermOnceForEachPage) {
  HelpBook book = SmallBook();
  std::vector<std::string> terms;
  for (const HelpEntry& entry : book.Index()) terms.push_back(entry.term + "|" + entry.place.title);
  EXPECT_THAT(terms, ElementsAre("Budget & more|Budget & more", "Overview|Overview",
                                 "Printing|Budget & more", "Save|Budget & more", "Save|Overview",
                                 "Save & Exit|Budget & more"));
  EXPECT_EQ(book.Index()[3].place.phrase, "Save");
}

TEST(HelpBookTest, ASearchFindsPagesWithAllWordsTheirHeadingsFirst) {
  EXPECT_THAT(Found("budget"), ElementsAre("2.html", "1.html"));
  EXPECT_THAT(Found("BUDG, pri"), ElementsAre("2.html", "1.html"));
  EXPECT_THAT(Found("another printing"), ElementsAre("1.html"));
  EXPECT_THAT(Found("caf\xC3\xA9"), ElementsAre("2.html"));
  EXPECT_THAT(Found("udget"), IsEmpty()) << "not inside a word";
  EXPECT_THAT(Found("href"), IsEmpty()) << "tags are no text";
  EXPECT_THAT(Found(" - "), IsEmpty());
  EXPECT_THAT(Found(""), IsEmpty());
}

TEST(HelpBookTest, WordsBehindEachOtherAreMarkedTogether) {
  HelpBook book;
  book.AddPage("1.html", "<p>Options of a page. To print, print it. Print again.</p>");
  book.AddPage("2.html", "<p>Print it. Then press <b>Print</b>\n Options.</p>");
  const auto found = book.Search("PRINT options");
  ASSERT_EQ(found.size(), 2u);
  EXPECT_EQ(found[0].place.file + found[0].place.phrase, "2.htmlprint options");
  EXPECT_EQ(found[1].place.file + found[1].place.phrase, "1.htmlprint");
}

TEST(HelpBookTest, WhatStandsAroundAWordIsCutBetweenWords) {
  HelpBook book;
  book.AddPage("1.html", "<p>" + std::string(100, 'a') + " one two needle three\n four " +
                             std::string(100, 'b') + "</p>");
  EXPECT_EQ(book.Search("needle").at(0).around, "one two needle three four");
}

TEST(HelpBookTest, ABrokenPageIsReadAsFarAsItGoes) {
  for (const char* html : {"", "<", "<title>", "<b", "<b>x", "&amp", "<a href=\"", "</b></b>"}) {
    HelpBook book;
    book.AddPage("1.html", html);
    book.AddPage("index.html", html);
    book.Index();
    EXPECT_THAT(book.Search("zz"), IsEmpty()) << html;
    EXPECT_LE(book.Contents().size(), 1u) << html;
  }
}

}  // namespace
}  // namespace tarnwell::parts
