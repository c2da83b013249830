#include <gtest/gtest.h>

#include "richtext/fragment.h"
#include "richtext/html.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"

namespace tarnwell::richtext {
namespace {

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
      {"\\trowd\\clvmgf\\cellx1000\\cellx2000\\cellx3000\\pard\\intbl a\\cell b\\cell c\\cell\\row"
       "\\trowd\\clvmrg\\cellx1000\\clmgf\\cellx2000\\clmrg\\cellx3000 \\cell d\\cell\\cell\\row"
       "\\trowd\\clvmrg\\cellx1000\\cellx3000 \\cell e\\cell\\row",
       "<td rowspan=\"3\" style=\"vertical-align:top;width:50pt\">"},
      {"\\trowd\\cellx1000\\cellx2000\\pard\\intbl a\\cell b\\cell\\row\\trowd\\clvmrg\\cellx2000 "
       "c\\cell\\row",
       "<tr><td colspan=\"2\" style=\"vertical-align:top;width:100pt\">"},
      {"{\\*\\bkmkstart x}{\\v gone}\\par", "0pt\"></p>\n"},
  };
  for (const auto& c : cases) {
    const std::string html = ToHtml(ReadRichText("{\\rtf1\\pard " + std::string(c.body) + "}"));
    EXPECT_NE(html.find(c.html), std::string::npos) << c.body << " gave\n" << html;
    EXPECT_EQ(html.find("gone"), std::string::npos);
  }
}

TEST(Fragments, MergedCellsStayMergedInAnotherDocument) {
  RichDocument fragment = ReadRichText(
      "{\\rtf1\\trowd\\clvmgf\\clpadl72\\cellx900\\pard\\intbl "
      "a\\cell\\row\\trowd\\clvmrg\\cellx900\\cell\\row}");
  Detach(fragment);
  const auto& rows = std::get<Table>(fragment.blocks[0]).rows;
  EXPECT_EQ(rows[0].cells[0].other, "\\clvmgf");
  EXPECT_EQ(rows[1].cells[0].other, "\\clvmrg");
}

}  // namespace
}  // namespace tarnwell::richtext
