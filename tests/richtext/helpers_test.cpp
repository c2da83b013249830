#include <gtest/gtest.h>

#include "richtext/html.h"
#include "richtext/keep_unshown.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_files.h"
#include "richtext/rich_text_writer.h"

namespace tarnwell::richtext {
namespace {

Paragraph FirstParagraph(const std::string& body) {
  return ParagraphAt(ReadRichText("{\\rtf1\\pard " + body + "\\par}"), 0);
}

std::string Written(const Paragraph& paragraph) {
  RichDocument document;
  document.blocks.emplace_back(paragraph);
  const std::string rtf = WriteRichText(document);
  const std::size_t begin = rtf.find("\\plain") + 6;
  return rtf.substr(begin, rtf.find("\\par\n") - begin);
}

TEST(KeepUnshown, OpaquePiecesStayBehindTheCharactersTheyStoodBehind) {
  const struct {
    const char* before;
    const char* text;
    const char* after;
  } cases[] = {
      {"ab{\\*\\x}cd", "abcd", " ab{\\*\\x}cd"},
      {"ab{\\*\\x}cd", "XXabcd", " XXab{\\*\\x}cd"},
      {"ab{\\*\\x}cd", "abcdXX", " ab{\\*\\x}cdXX"},
      {"ab{\\*\\x}cd", "abXXcd", " ab{\\*\\x}XXcd"},
      {"ab{\\*\\x}cd", "a", " a{\\*\\x}"},
      {"ab{\\*\\x}cd", "d", "{\\*\\x}d"},
      {"ab{\\*\\x}cd", "", "{\\*\\x}"},
      {"ab{\\*\\x}cd", "aXXXd", " aXXX{\\*\\x}d"},
      {"{\\*\\x}ab{\\*\\y}", "ab", "{\\*\\x}ab{\\*\\y}"},
      {"a{\\*\\x}b{\\*\\y}c", "ac", " a{\\*\\x}{\\*\\y}c"},
      {"\\'e9{\\*\\x}b", "\u00EAb", "\\u234\\'ea{\\*\\x}b"},
  };
  for (const auto& c : cases) {
    Paragraph after = FirstParagraph(" ");
    after.runs.clear();
    if (*c.text != '\0') after.runs.push_back({{}, std::string(c.text), kNoField});
    KeepUnshown(FirstParagraph(c.before), after);
    EXPECT_EQ(Written(after), c.after) << c.before << " to " << c.text;
  }
}

TEST(KeepUnshown, FormatsKeepTheirWordsAndTheSectionItsBreak) {
  const RichDocument document = TestDocument("kept-pieces.rtf");
  Paragraph after;
  KeepUnshown(ParagraphAt(document, 0), after);
  EXPECT_EQ(after.format.other, "\\keepn");
  Paragraph last;
  KeepUnshown(ParagraphAt(document, 3), last);
  EXPECT_EQ(last.section_break, ParagraphAt(document, 3).section_break);
  EXPECT_FALSE(last.section_break.empty());
}

TEST(PlainTexts, OnlyTextMakesADocumentNotBlank) {
  EXPECT_TRUE(IsBlank(RichDocument{}));
  EXPECT_TRUE(IsBlank(FromPlainText(" \t\r\n\u00A0\n")));
  EXPECT_TRUE(IsBlank(ReadRichText("{\\rtf1\\pard {\\v gone}\\page\\par{\\pict\\pngblip 00}}")));
  EXPECT_FALSE(IsBlank(FromPlainText("\n .")));
}

TEST(PlainTexts, LinesBecomeParagraphs) {
  EXPECT_EQ(FromPlainText("a\r\nb\rc\n\nd").blocks.size(), 5u);
  EXPECT_EQ(PlainText(FromPlainText("a\r\nb\rc\n\nd")), "a\nb\nc\n\nd");
  EXPECT_EQ(FromPlainText("a\n").blocks.size(), 1u);
}

TEST(Html, ShowsFormatsTablesLinksAndPicturesAndNothingElse) {
  const struct {
    const char* body;
    const char* html;
  } cases[] = {
      {"a<b>&\\par",
       "<p style=\"text-align:left;margin:0pt 0pt 0pt 0pt\"><span "
       "style=\"font-size:12pt\">a&lt;b&gt;&amp;</span></p>\n"},
      {"\\qc\\li30{\\b\\i\\ul\\strike x}\\par",
       "<p style=\"text-align:center;margin:0pt 0pt 0pt 1.50pt\"><span style=\"font-size:12pt;"
       "font-weight:bold;font-style:italic;text-decoration:underline "
       "line-through\">x</span></p>\n"},
      {"{\\field{\\*\\fldinst HYPERLINK \"https://a.example/?x\"}{\\fldrslt x}}\\par",
       "<a href=\"https://a.example/?x\"><span style=\"font-size:12pt\">x</span></a>"},
      {"{\\field{\\*\\fldinst HYPERLINK \"javascript:x\"}{\\fldrslt x}}\\par",
       "0pt\"><span style=\"font-size:12pt\">x</span></p>"},
      {"{\\pict\\pngblip\\picwgoal1440\\pichgoal720\\picscalex50 4d616e}\\par",
       "<img alt=\"\" style=\"width:36pt;height:36pt\" src=\"data:image/png;base64,TWFu\">"},
      {"\\trowd\\clbrdrt\\brdrs\\brdrw20\\cellx1440\\pard\\intbl x\\cell\\row",
       "<tr><td style=\"vertical-align:top;width:72pt;border-top:1pt solid\"><p "},
      {"{\\*\\bkmkstart x}{\\v gone}\\par", "0pt\"></p>\n"},
  };
  for (const auto& c : cases) {
    const std::string html = ToHtml(ReadRichText("{\\rtf1\\pard " + std::string(c.body) + "}"));
    EXPECT_NE(html.find(c.html), std::string::npos) << c.body << " gave\n" << html;
    EXPECT_EQ(html.find("gone"), std::string::npos);
  }
}

}  // namespace
}  // namespace tarnwell::richtext
