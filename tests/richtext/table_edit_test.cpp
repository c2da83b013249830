#include "richtext/table_edit.h"

#include <gtest/gtest.h>

#include "richtext/editor.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_writer.h"
#include "richtext/sketch.h"
#include "richtext/table_shape.h"

namespace tarnwell::richtext {
namespace {

using enum TableEdit;

TEST(TableEdits, RowsAndColumnsComeAndGo) {
  const struct {
    const char* before;
    Range range;
    TableEdit edit;
    const char* after;
    Position cursor;
  } cases[] = {
      {"x|[a,b;c,d]", {{4, 0}, {4, 0}}, kRowAbove, "x|[a,b;,;c,d]", {3, 0}},
      {"x|[a,b;c,d]", {{4, 0}, {4, 0}}, kRowBelow, "x|[a,b;c,d;,]", {5, 0}},
      {"[a,b;c,d]", {{0, 0}, {3, 0}}, kRowBelow, "[a,b;c,d;,]", {4, 0}},
      {"[a,b;c,d]", {{1, 0}, {1, 1}}, kColumnLeft, "[a,,b;c,,d]", {1, 0}},
      {"[a,b;c,d]", {{1, 0}, {1, 1}}, kColumnRight, "[a,b,;c,d,]", {2, 0}},
      {"[a,b;c,d]|x", {{0, 0}, {0, 0}}, kDeleteRows, "[c,d]|x", {0, 0}},
      {"[a,b,c;d,e,f]", {{1, 0}, {2, 0}}, kDeleteColumns, "[a;d]", {0, 0}},
      {"x|[a,b;c,d]|y", {{1, 0}, {4, 0}}, kDeleteRows, "x|y", {1, 0}},
      {"x|[a,b]|y", {{1, 0}, {2, 1}}, kDeleteColumns, "x|y", {1, 0}},
      {"x|[a,b;c,d]|y", {{2, 0}, {2, 0}}, kDeleteTable, "x|y", {1, 0}},
      {"x|[a]", {{0, 0}, {0, 0}}, kDeleteTable, "x|[a]", {0, 0}},
  };
  for (const auto& c : cases) {
    RichDocument document = FromSketch(c.before);
    const Position cursor = Editor(document).EditTable(c.range, c.edit);
    EXPECT_EQ(Sketch(document), c.after) << c.before;
    EXPECT_EQ(cursor, c.cursor) << c.before << " " << static_cast<int>(c.edit);
  }
}

TEST(TableEdits, ATableIsNeverMadeWiderThanTheText) {
  RichDocument document = FromSketch("[a,b;c,d]");
  for (int i = 0; i < 20; ++i) Editor(document).EditTable({}, kColumnRight);
  const TableRow& row = std::get<Table>(document.blocks[0]).rows[1];
  ASSERT_EQ(row.cells.size(), 22u);
  EXPECT_LE(row.cells.back().right_edge, 12240 - 2 * 1800);
  EXPECT_GT(row.cells.back().right_edge, 8600);
}

// A table whose first cell stands over two rows and whose second over two columns.
RichDocument MergedTable() {
  return ReadRichText(
      "{\\rtf1\\trowd\\clvmgf\\cellx1000\\clmgf\\cellx2000\\clmrg\\cellx3000\\pard\\intbl "
      "A\\cell B\\cell\\cell\\row\\trowd\\clvmrg\\cellx1000\\cellx2000\\cellx3000\\pard\\intbl "
      "\\cell C\\cell D\\cell\\row\\trowd\\cellx1000\\cellx2000\\cellx3000\\pard\\intbl "
      "X\\cell Y\\cell Z\\cell\\row\\pard}");
}

// Of each cell its text and how many columns and rows it stands over; "-" under another one.
std::string Shown(const RichDocument& document) {
  const auto& table = std::get<Table>(document.blocks.at(0));
  const TableShape shape(table);
  std::string shown;
  for (std::size_t r = 0; r < table.rows.size(); ++r) {
    if (r > 0) shown += ';';
    for (std::size_t i = 0; i < table.rows[r].cells.size(); ++i) {
      const CellSpan& span = shape.SpanOf(r, i);
      if (i > 0) shown += ' ';
      const std::string text = ShownText(table.rows[r].cells[i].paragraphs[0]);
      shown += span.is_covered ? "-" + text : text.empty() ? "." : text;
      if (span.columns > 1 && !span.is_covered) shown += std::to_string(span.columns) + "c";
      if (span.rows > 1 && !span.is_covered) shown += std::to_string(span.rows) + "r";
    }
  }
  return shown;
}

TEST(TableEdits, MergedCellsStayWhole) {
  ASSERT_EQ(Shown(MergedTable()), "A2r B2c -;- C D;X Y Z");
  const struct {
    int paragraph;
    TableEdit edit;
    const char* after;
  } cases[] = {
      {1, kRowBelow, "A3r B2c -;- . .;- C D;X Y Z"},
      {0, kRowBelow, "A2r B2c -;- C D;. . .;X Y Z"},
      {0, kRowAbove, ". .2c -;A2r B2c -;- C D;X Y Z"},
      {1, kDeleteRows, "A C D;X Y Z"},
      {4, kDeleteRows, "A B2c -;X Y Z"},
      {0, kDeleteRows, "X Y Z"},
      {1, kColumnRight, "A2r B2c - .;- C D .;X Y Z ."},
      {5, kColumnLeft, "A2r B3c - -;- C . D;X Y . Z"},
      {4, kDeleteColumns, "A2r B;- D;X Z"},
      {5, kDeleteColumns, "A2r B;- C;X Y"},
      {0, kDeleteColumns, "B2c -;C D;Y Z"},
  };
  for (const auto& c : cases) {
    RichDocument document = MergedTable();
    Editor(document).EditTable({{c.paragraph, 0}, {c.paragraph, 0}}, c.edit);
    EXPECT_EQ(Shown(document), c.after) << c.paragraph << " " << static_cast<int>(c.edit);
    // So it is once it was stored, too.
    EXPECT_EQ(Shown(ReadRichText(WriteRichText(document))), c.after);
  }
}

TEST(TableEdits, AHeadRowIsRepeatedOnlyWithWhatStandsAboveIt) {
  const std::string rtf =
      "{\\rtf1\\trowd\\trhdr\\clwWidth1000\\cellx1000\\pard\\intbl "
      "H\\cell\\row\\trowd\\cellx1000\\pard\\intbl a\\cell\\row\\pard}";
  const std::pair<TableEdit, std::vector<bool>> cases[] = {{kRowAbove, {true, true, false}},
                                                           {kRowBelow, {true, false, false}}};
  for (const auto& [edit, heads] : cases) {
    RichDocument document = ReadRichText(rtf);
    Editor(document).EditTable({}, edit);
    for (std::size_t i = 0; i < heads.size(); ++i) {
      const TableRow& row = std::get<Table>(document.blocks[0]).rows[i];
      EXPECT_EQ(row.other.find("\\trhdr") != std::string::npos, heads[i]) << i;
    }
  }
}

TEST(TableEdits, ANewTableStandsWhereTheCursorIs) {
  const struct {
    const char* before;
    Position at;
    const char* after;
    Position cursor;
  } cases[] = {
      {"", {0, 0}, "[,;,]|", {0, 0}},        {"a||b", {1, 0}, "a|[,;,]||b", {1, 0}},
      {"abc", {0, 1}, "a|[,;,]|bc", {1, 0}}, {"[x]|", {1, 0}, "[x]||[,;,]|", {2, 0}},
      {"[x]", {0, 0}, "[x]", {0, 0}},
  };
  for (const auto& c : cases) {
    RichDocument document = FromSketch(c.before);
    EXPECT_EQ(Editor(document).InsertTable(c.at, 2, 2), c.cursor) << c.before;
    EXPECT_EQ(Sketch(document), c.after) << c.before;
  }
}

TEST(TableEdits, TheNextCellIsTheNextThatIsShown) {
  const RichDocument document = MergedTable();
  EXPECT_EQ(NextCell(document, {1, 0}, true), (Range{{4, 0}, {4, 1}}));
  EXPECT_EQ(NextCell(document, {4, 0}, false), (Range{{1, 0}, {1, 1}}));
  EXPECT_EQ(NextCell(document, {8, 0}, true), std::nullopt);
  EXPECT_EQ(NextCell(document, {0, 0}, false), std::nullopt);
}

}  // namespace
}  // namespace tarnwell::richtext
