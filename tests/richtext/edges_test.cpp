// Single rules of the reader and of the pieces below it.

#include <gtest/gtest.h>

#include "richtext/code_pages.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_files.h"
#include "richtext/rich_text_writer.h"
#include "richtext/rtf_tokenizer.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

RichDocument ReadBody(const std::string& body) {
  return ReadRichText("{\\rtf1\\ansi " + body + "}");
}

TEST(Tokenizer, ABlankEndsAWordAndANumberBelongsToIt) {
  Tokenizer tokenizer("\\li-360 x\\b1y\\fs\\'e9\\\\{\\bin3 }\\x}\\'e");
  const struct {
    TokenKind kind;
    const char* text;
    int number;
  } expected[] = {
      {TokenKind::kWord, "li", -360},  {TokenKind::kText, "x", 0},
      {TokenKind::kWord, "b", 1},      {TokenKind::kText, "y", 0},
      {TokenKind::kWord, "fs", 0},     {TokenKind::kByte, "e9", 0xE9},
      {TokenKind::kSymbol, "\\", 0},   {TokenKind::kGroupStart, "{", 0},
      {TokenKind::kBinary, "}\\x", 0}, {TokenKind::kGroupEnd, "}", 0},
      {TokenKind::kEnd, "", 0},
  };
  for (const auto& want : expected) {
    const Token token = tokenizer.Next();
    EXPECT_EQ(token.kind, want.kind) << want.text;
    EXPECT_EQ(token.text, want.text);
    EXPECT_EQ(token.number, want.number) << want.text;
  }
}

TEST(CodePages, AByteIsTheCharacterThatItsCodePageHasThere) {
  const struct {
    int code_page;
    const char* bytes;
    const char* utf8;
  } cases[] = {
      {1252, "\x80\xE9", "€é"},
      {1250, "\x8A\xB9", "Šą"},
      {1251, "\xC0\xFF", "Ая"},
      {1253, "\xC1\xF9", "Αω"},
      {1254, "\xD0\xFE", "Ğş"},
      {1255, "\xE0", "א"},
      {1256, "\xC7", "ا"},
      {1257, "\xC0\xFE", "Ąž"},
      {437, "\x80\xE1", "Çß"},
      {850, "\x80\xE1", "Çß"},
      {10000, "\x80\xD5", "Ä’"},
      {932, "\x93\xFA\x95\\\xB1", "日表ｱ"},
      {936, "\xD6\xD0\x80", "中€"},
      {949, "\xC7\xD1\x94\xEE", "한뷁"},
      {950, "\xA4\xA4\xA5\\", "中功"},
      {1361, "\xD0\x65", "한"},
      {1258, "\xD0\xD2", "Đ\u0309"},
      {874, "\xA1", "ก"},
      {932, "\x93 \x93\x01\xFD", "? ??"},
      {4711, "\xE9", "?"},
      {1253, "\xD2", "?"},
      {1252, "a\tb\x01\n", "a\tb"},
      {kSymbolCodePage, "a b", "\uF061 \uF062"},
  };
  for (const auto& c : cases) {
    std::string utf8;
    ByteDecoder decoder;
    for (const char byte : std::string_view(c.bytes)) {
      decoder.Take(std::string_view(&byte, 1), c.code_page, utf8);
    }
    decoder.Flush(utf8);
    EXPECT_EQ(utf8, c.utf8) << c.code_page;
  }
}

TEST(Utf8, AByteThatCannotStandGivesTheReplacementCharacter) {
  for (std::string_view bytes : {"\xC0\xAF", "\xE2\x82", "\xED\xA0\x80", "\xF5", "\x80"}) {
    EXPECT_EQ(text::TakeUtf8(bytes), text::kReplacementCharacter);
  }
  std::string_view euro = "€x";
  EXPECT_EQ(text::TakeUtf8(euro), U'€');
  EXPECT_EQ(euro, "x");
}

TEST(Reading, OnlyTheGroupsThatAreTextAreShown) {
  const struct {
    const char* body;
    const char* text;
  } cases[] = {
      {"\\pard a{\\unknown b}{\\*\\unknown c}d", "abd"},
      {"\\pard a{\\footnote n}{\\header h}{\\object{\\result r}}d", "ad"},
      {"\\footnote a", "a"},  // in no group of its own
      {"{\\uc2\\u8364 ab}c", "€c"},
      {"{\\uc0\\u8364 ab}c", "€abc"},
      {"\\u8364{x}y", "€xy"},  // a group ends what stands for the character
      {"\\u8364\\'80\\'80", "€€"},
      {"a\\\nb", "a\nb"},
      {"a\r\nb\\par\\par", "ab\n"},
      {"{\\field{\\*\\fldinst X}}a", "a"},
      {"{\\pntext 1.\\tab}a", "a"},
  };
  for (const auto& c : cases) EXPECT_EQ(PlainText(ReadBody(c.body)), c.text) << c.body;
}

TEST(Reading, FormatsEndWithTheirGroup) {
  const RichDocument document = ReadBody("\\pard{\\b\\qc a\\par b}c\\par d\\par");
  EXPECT_EQ(ParagraphAt(document, 0).format.alignment, Alignment::kCenter);
  EXPECT_EQ(ParagraphAt(document, 2).format.alignment, Alignment::kLeft);
  EXPECT_TRUE(FormatOf(ParagraphAt(document, 1), "b").bold);
  EXPECT_FALSE(FormatOf(ParagraphAt(document, 1), "c").bold);
}

TEST(Reading, ALastParagraphWithoutItsEndKeepsItsFormat) {
  for (const char* rtf : {"{\\rtf1 a\\par\\pard\\qr b}", "{\\rtf1 a\\par\\pard\\qr b"}) {
    const RichDocument document = ReadRichText(rtf);
    EXPECT_EQ(ParagraphAt(document, 1).format.alignment, Alignment::kRight) << rtf;
  }
}

TEST(Reading, WordsOutsideTheModelStayWithWhatTheyConcern) {
  const Paragraph paragraph = ParagraphAt(
      ReadBody("\\pard\\keepn\\brdrt\\brdrs\\brdrw10\\lang1033\\lang1031 a\\kerning2 b\\par"), 0);
  EXPECT_EQ(paragraph.format.other, "\\keepn\\brdrt\\brdrs\\brdrw10");
  EXPECT_EQ(FormatOf(paragraph, "a").other, "\\lang1031");
  EXPECT_EQ(FormatOf(paragraph, "b").other, "\\lang1031\\kerning2");
}

TEST(Reading, ARowTakesItsCellsAsTheyCome) {
  const Table table = std::get<Table>(
      ReadBody("\\trowd\\trleft100\\cellx1000\\cellx2000\\cellx3000\\pard\\intbl a\\cell\\row"
               "\\trowd\\cellx1000\\pard\\intbl a\\cell b\\cell\\row")
          .blocks.at(0));
  ASSERT_EQ(table.rows.size(), 2u);
  EXPECT_EQ(table.rows[0].cells.size(), 3u);  // two of them empty
  EXPECT_TRUE(table.rows[0].cells[2].paragraphs.at(0).runs.empty());
  EXPECT_EQ(table.rows[1].cells.at(1).right_edge, 2440);  // not defined: an inch
}

// A cell's words are written before its fill and its sides.
TEST(Reading, ABorderWordThatNamesNoSideStaysWithTheWordBeforeIt) {
  const struct {
    const char* words;
    const char* of_row;
    const char* of_cell;
  } cases[] = {
      {"\\clcbpat1\\brdrw5", "", ""},
      {"\\clbrdrt\\brdrs\\clcbpat1\\brdrw5", "", ""},
      {"\\clvertalt\\brdrw5\\clcbpat1", "", "\\clvertalt\\brdrw5"},
      {"\\brdrw5\\clcbpat1", "\\brdrw5", ""},
  };
  for (const auto& c : cases) {
    const RichDocument document =
        ReadBody("\\trowd" + std::string(c.words) + "\\cellx9\\pard\\intbl a\\cell\\row");
    const TableRow& row = std::get<Table>(document.blocks.at(0)).rows.at(0);
    EXPECT_EQ(row.other, c.of_row) << c.words;
    EXPECT_EQ(row.cells.at(0).other, c.of_cell) << c.words;
    EXPECT_EQ(ReadRichText(WriteRichText(document)), document) << c.words;
  }
}

TEST(Reading, ANestedTableIsReadOnceHoweverItsLevelsAreSaid) {
  const RichDocument document =
      ReadBody("\\pard\\itap2 a\\cell\\row b\\itap2 c\\cell\\row\\pard\\itap2\\itap2 d\\par e");
  EXPECT_LE(document.blocks.size(), 3u);
}

TEST(Reading, AFieldDoesNotGoOnIntoAnotherCell) {
  const RichDocument document = ReadBody(
      "\\trowd\\cellx1000\\cellx2000\\pard\\intbl{\\field{\\*\\fldinst X}{\\fldrslt a"
      "\\cell b}}\\cell\\row");
  const TableRow& row = std::get<Table>(document.blocks.at(0)).rows.at(0);
  EXPECT_EQ(row.cells.at(0).paragraphs.at(0).runs.at(0).field, 0);
  EXPECT_EQ(row.cells.at(1).paragraphs.at(0).runs.at(0).field, kNoField);
}

TEST(Writing, TextInAFontOfSymbolsIsNotTakenForItsBytes) {
  const RichDocument document =
      ReadBody("{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Symbol;}}\\pard a \\f1 a \\u97?\\par");
  EXPECT_EQ(PlainText(document), "a \uF061 a");
  EXPECT_EQ(PlainText(ReadRichText(WriteRichText(document))), "a \uF061 a");
}

TEST(Writing, AStyledParagraphNamesWhatItsStyleWouldChange) {
  const std::string rtf = WriteRichText(
      ReadBody("{\\stylesheet{\\s3\\qc\\li720\\b Head;}}\\pard\\plain\\s3\\ql\\li0\\sb9\\b0 x\\par"
               "\\pard\\plain\\s4 y\\par"));
  EXPECT_NE(rtf.find("\\pard\\s3\\ql\\li0\\sb9\\plain x\\par"), std::string::npos) << rtf;
  // Nobody knows what this one says.
  EXPECT_NE(rtf.find("\\pard\\s4\\ql\\fi0\\li0\\ri0\\sb0\\sa0\\sl0\\slmult0\\plain y\\par"),
            std::string::npos)
      << rtf;
}

TEST(Writing, APageBreakBeforeIsTheParagraphsOwnAndNeverSwitchedOff) {
  const RichDocument document = ReadBody(
      "{\\stylesheet{\\s3\\pagebb Chapter;}}"
      "\\pard\\s3 without\\par\\pard\\s3\\pagebb with\\par\\pard\\pagebb\\s3 before it\\par");
  EXPECT_FALSE(ParagraphAt(document, 0).format.page_break_before);
  EXPECT_TRUE(ParagraphAt(document, 1).format.page_break_before);
  EXPECT_TRUE(ParagraphAt(document, 2).format.page_break_before);
  const std::string rtf = WriteRichText(document);
  EXPECT_EQ(rtf.find("\\pagebb0"), std::string::npos) << rtf;
  EXPECT_EQ(ReadRichText(rtf), document);
}

}  // namespace
}  // namespace tarnwell::richtext
