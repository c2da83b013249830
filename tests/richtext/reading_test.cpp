#include <gtest/gtest.h>

#include "richtext/plain_text.h"
#include "richtext/rich_text_files.h"

namespace tarnwell::richtext {
namespace {

TEST(Reading, EveryCharacterFormatIsSeenWhereItStands) {
  const RichDocument document = TestDocument("character-formats.rtf");
  const Paragraph& paragraph = ParagraphAt(document, 0);
  const auto format = [&paragraph](const char* text) { return FormatOf(paragraph, text); };
  EXPECT_EQ(format("plain ").font, "Arial");
  EXPECT_EQ(format("plain ").half_points, 24);
  EXPECT_TRUE(format("bold").bold);
  EXPECT_TRUE(format("italic").italic);
  EXPECT_EQ(format("single").underline, Underline::kSingle);
  EXPECT_EQ(format("double").underline, Underline::kDouble);
  EXPECT_EQ(format("wave").underline, Underline::kWave);
  EXPECT_EQ(format("none ").underline, Underline::kNone);
  EXPECT_TRUE(format("struck").strike);
  EXPECT_EQ(format("up").script, Script::kSuperscript);
  EXPECT_EQ(format("down").script, Script::kSubscript);
  EXPECT_EQ(format("large").font, "Georgia");
  EXPECT_EQ(format("large").half_points, 48);
  EXPECT_EQ(format("red").color, (Color{255, 0, 0}));
  EXPECT_EQ(format("marked").highlight, (Color{255, 255, 0}));
  EXPECT_TRUE(format("both").bold && format("both").italic);
  EXPECT_TRUE(!format(" italic").bold && format(" italic").italic);
  EXPECT_EQ(format(" again"), format("plain "));
}

TEST(Reading, ParagraphFormatsLastUntilTheyAreReset) {
  const RichDocument document = TestDocument("paragraph-formats.rtf");
  ASSERT_EQ(document.blocks.size(), 5u);
  EXPECT_EQ(ParagraphAt(document, 0).format, ParagraphFormat{});
  EXPECT_EQ(ParagraphAt(document, 1).format.alignment, Alignment::kCenter);
  const ParagraphFormat& right = ParagraphAt(document, 2).format;
  EXPECT_EQ(right.alignment, Alignment::kRight);
  EXPECT_EQ(right.space_before, 120);
  EXPECT_EQ(right.space_after, 240);
  const ParagraphFormat& justified = ParagraphAt(document, 3).format;
  EXPECT_EQ(justified.alignment, Alignment::kJustify);
  EXPECT_EQ(justified.left_indent, 720);
  EXPECT_EQ(justified.right_indent, 360);
  EXPECT_EQ(justified.first_line_indent, -360);
  EXPECT_EQ(justified.space_before, 0);
  EXPECT_TRUE(justified.line_spacing == 480 && justified.line_spacing_is_multiple);
  const ParagraphFormat& last = ParagraphAt(document, 4).format;
  EXPECT_TRUE(last.page_break_before);
  EXPECT_TRUE(last.line_spacing == -240 && !last.line_spacing_is_multiple);
  const std::vector<TabStop> tabs = {{1440, TabStop::Kind::kLeft, TabStop::Leader::kNone},
                                     {2880, TabStop::Kind::kDecimal, TabStop::Leader::kNone},
                                     {4320, TabStop::Kind::kRight, TabStop::Leader::kDots},
                                     {6000, TabStop::Kind::kBar, TabStop::Leader::kNone}};
  EXPECT_EQ(last.tabs, tabs);
  EXPECT_TRUE(PlainText(document).ends_with("\njustified\none\ttwo\nthree\ffour"));
}

TEST(Reading, BytesAndEscapesBecomeTheCharactersThatTheirFontsMean) {
  const RichDocument document = TestDocument("unicode-and-code-pages.rtf");
  EXPECT_EQ(PlainText(document),
            "šč Жук αβ \uF0B7カ€ café\n"
            "€ 😀 αβx\uFFFDy\n"
            "—–‘’“”•\u00A0\u00AD\u2011{}\\ zz");
}

TEST(Reading, ListsGiveTheirMarkersAndLevels) {
  const RichDocument old_style = TestDocument("lists-of-old-style.rtf");
  ASSERT_EQ(old_style.blocks.size(), 4u);
  for (const std::size_t i : {0u, 1u}) {
    const auto& item = ParagraphAt(old_style, i).format.list;
    ASSERT_TRUE(item);
    EXPECT_EQ(item->marker, "•");
    EXPECT_FALSE(item->numbered);
  }
  const auto& number = ParagraphAt(old_style, 2).format.list;
  ASSERT_TRUE(number);
  EXPECT_EQ(number->marker, "1.");
  EXPECT_TRUE(number->numbered);
  EXPECT_FALSE(ParagraphAt(old_style, 3).format.list);
  EXPECT_EQ(PlainText(old_style), "first\nsecond\none\nafter");

  const RichDocument new_style = TestDocument("lists-of-new-style.rtf");
  const ListItem dot{0, false, "•", 1, ""};
  const ListItem letter{1, true, "b)", 1, ""};
  EXPECT_EQ(ParagraphAt(new_style, 0).format.list, dot);
  EXPECT_EQ(ParagraphAt(new_style, 1).format.list, letter);
  EXPECT_FALSE(ParagraphAt(new_style, 2).format.list);
}

TEST(Reading, TablesGiveRowsCellsAndBorders) {
  const RichDocument document = TestDocument("table.rtf");
  ASSERT_EQ(document.blocks.size(), 3u);
  const Table& table = std::get<Table>(document.blocks[1]);
  ASSERT_EQ(table.rows.size(), 2u);
  EXPECT_EQ(table.rows[0].left_edge, -108);
  EXPECT_EQ(table.rows[0].other, "\\trrh400");
  ASSERT_EQ(table.rows[0].cells.size(), 2u);
  const Cell& cell = table.rows[0].cells[0];
  EXPECT_EQ(cell.right_edge, 2000);
  EXPECT_EQ(cell.top, (Border{"brdrs", 15, Color{0, 0, 255}, ""}));
  EXPECT_EQ(cell.bottom, (Border{"brdrdb", 30, std::nullopt, ""}));
  EXPECT_EQ(cell.left, Border{});
  EXPECT_EQ(cell.other, "\\clvertalt");
  EXPECT_EQ(cell.fill, std::nullopt);
  EXPECT_EQ(table.rows[0].cells[1].fill, (Color{0, 0, 255}));
  EXPECT_EQ(cell.paragraphs.size(), 2u);
  EXPECT_EQ(table.rows[0].cells[1].paragraphs[0].format.alignment, Alignment::kCenter);
  EXPECT_EQ(PlainText(document), "before\none\ntwo\tthree\nalone\nafter");
}

TEST(Reading, PicturesGiveTheirBytesAndSizes) {
  const auto pictures = PicturesOf(ParagraphAt(TestDocument("pictures.rtf"), 0));
  ASSERT_EQ(pictures.size(), 2u);  // the metafiles are kept, not shown
  const Picture png{Picture::Kind::kPng, "\x89PNG\r\n\x1A\n", 1440, 2880, 50, 100, false,
                    "\\picw10\\pich20"};
  EXPECT_EQ(pictures[0], png);
  EXPECT_EQ(pictures[1].kind, Picture::Kind::kJpeg);
  EXPECT_EQ(pictures[1].bytes, "\xFF\xD8{}");
  EXPECT_EQ(pictures[1].width, 60);  // 4 pixels
  EXPECT_TRUE(pictures[1].in_shape_group);
}

TEST(Reading, FieldsShowTheirResultsAndKeepWhatTheyAre) {
  const RichDocument document = TestDocument("fields-and-links.rtf");
  EXPECT_EQ(PlainText(document), "see our page page 3\nOne 1\nTwo 2\nThree 3");
  ASSERT_EQ(document.fields.size(), 4u);  // those without a result are kept where they stand
  EXPECT_EQ(document.fields[1].instruction, "\\field{\\*\\fldinst PAGE}");
  EXPECT_EQ(document.fields[3].parent, 2);
  EXPECT_EQ(ParagraphAt(document, 2).runs[0].field, 2);
  EXPECT_EQ(ParagraphAt(document, 3).runs[1].field, kNoField);
}

TEST(Reading, AStyleGivesWhatItsParagraphDoesntRepeat) {
  const Paragraph paragraph = ParagraphAt(TestDocument("style-from-the-sheet.rtf"), 0);
  const CharacterFormat format = FormatOf(paragraph, "Styled");
  EXPECT_EQ(paragraph.format.style, 2);
  EXPECT_EQ(paragraph.format.alignment, Alignment::kCenter);
  EXPECT_TRUE(format.bold && format.italic && format.half_points == 32);
}

TEST(Reading, HiddenTextAndUnknownGroupsAreNotPartOfTheText) {
  const RichDocument document = TestDocument("kept-pieces.rtf");
  EXPECT_EQ(PlainText(document), "Title\nStyled\nlouder shown\n\nsecond");
  EXPECT_EQ(document.page, (Page{11906, 16838, 1000, 1000, 1440, 1440}));
  EXPECT_EQ(PlainText(TestDocument("table-inside-a-cell.rtf")), "before\nbehind\nend");
}

TEST(Reading, ADamagedFileGivesWhatCanBeRead) {
  const struct {
    const char* name;
    const char* text;
  } cases[] = {
      {"broken-off-in-a-byte.rtf", "caf"},     {"broken-off-in-a-group.rtf", "whole\nhalf "},
      {"broken-off-in-a-row.rtf", "one\ttwo"}, {"broken-off-in-binary-data.rtf", "a"},
      {"groups-never-opened.rtf", "one"},      {"numbers-out-of-range.rtf", "\uFFFD?x\nc\td"},
      {"table-without-rows.rtf", "a\tb\nc"},
  };
  for (const auto& c : cases) EXPECT_EQ(PlainText(TestDocument(c.name)), c.text) << c.name;
}

TEST(Reading, NestingOfGroupsHasNoDepthThatHarms) {
  const std::string deep = "{\\rtf1 a" + std::string(300'000, '{') + "b}" + "c";
  EXPECT_EQ(PlainText(ReadRichText(deep)), "abc");
}

TEST(Reading, WhatIsNoRtfIsPlainText) {
  EXPECT_EQ(PlainText(TestDocument("plain-text.txt")), "First line\n\ncafé {\\b no}");
  EXPECT_EQ(PlainText(ReadRichText("\xEF\xBB\xBFÜ\rz")), "Ü\nz");
  EXPECT_TRUE(ReadRichText("").blocks.empty());
  EXPECT_EQ(PlainText(ReadRichText("\r\n {\\rtf1 x}")), "x");
}

// As other readers take it: a paragraph whose group ends first has what was said of it in there.
TEST(Reading, AParagraphKeepsTheIndentsOfTheGroupThatItsTextStoodIn) {
  const struct {
    const char* body;
    std::vector<int> indents;
  } cases[] = {
      {"{\\pard\\li720 one\\par two}", {720, 720}},
      {"{\\pard\\li720 one\\par{two}}\\par three", {720, 720, 0}},
      {"\\pard\\li720{one\\par}{\\listtext 2.\\tab}{two\\par}\\pard three\\par", {720, 720, 0}},
      {"{\\pard\\li720 one}\\pard\\par", {0}},
      {"{\\pard\\li720}one\\par", {0}},
      {"\\pard\\li90{\\b one}\\par", {90}},
  };
  for (const auto& c : cases) {
    std::vector<int> indents;
    for (const Block& block : ReadRichText(std::string("{\\rtf1") + c.body + "}").blocks) {
      indents.push_back(std::get<Paragraph>(block).format.left_indent);
    }
    EXPECT_EQ(indents, c.indents) << c.body;
  }
}

}  // namespace
}  // namespace tarnwell::richtext
