#include "richtext/kept_things.h"

#include <gtest/gtest.h>

#include "richtext/column_edges.h"
#include "richtext/limits.h"
#include "richtext/room.h"

namespace tarnwell::richtext {
namespace {

TEST(KeptThings, AreWhatAPersonWouldSee) {
  const struct {
    const char* rtf;
    std::vector<KeptKind> kinds;
    const char* text;  // of the first
  } cases[] = {
      {"{\\*\\bkmkstart a}{\\xe entry}", {}, ""},
      {"{\\field{\\*\\fldinst XE entry}{\\fldrslt}}", {}, ""},
      {"\\chftn {\\footnote\\pard Text}", {KeptKind::kNoteNumber}, ""},
      {"{\\shp{\\*\\shpinst{\\shptxt\\pard In\\par it}}}", {KeptKind::kTextBox}, "In it"},
      {"{\\do\\dptxbx{\\dptxbxtext Old}}", {KeptKind::kTextBox}, "Old"},
      {"{\\shp{\\*\\shpinst}}\\chpgn ", {KeptKind::kDrawing, KeptKind::kPageNumber}, ""},
      {"{\\field{\\*\\fldinst PAGE}{\\fldrslt}}", {KeptKind::kPageNumber}, ""},
      {"{\\*\\annotation\\pard So?}", {KeptKind::kComment}, "So?"},
      {"hidden", {KeptKind::kHiddenText}, "hidden"},
      {"{\\shp{\\*\\shpinst{\\shptxt", {KeptKind::kDrawing}, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.rtf);
    std::vector<KeptKind> kinds;
    const std::vector<KeptThing> things = KeptThings({c.rtf, false});
    for (const KeptThing& thing : things) kinds.push_back(thing.kind);
    EXPECT_EQ(kinds, c.kinds);
    if (!things.empty()) {
      EXPECT_EQ(TextOfPart(things.front().rtf, 100), c.text);
    }
  }
  EXPECT_EQ(KeptThings({"gone"}, "\\deleted\\revauthdel1")[0].kind, KeptKind::kDeletedText);
}

Table TableOf(const std::vector<std::vector<int>>& rows) {
  Table table;
  for (const std::vector<int>& edges : rows) {
    TableRow& row = table.rows.emplace_back();
    for (const int edge : edges) row.cells.emplace_back().right_edge = edge;
  }
  return table;
}

TEST(ColumnEdges, MoveAsFarAsEachRowHasRoom) {
  const struct {
    std::vector<std::vector<int>> rows;
    int from;
    int to;
    std::vector<std::vector<int>> after;
  } cases[] = {
      {{{1000, 2000}}, 1000, 1500, {{1500, 2000}}},
      {{{1000, 2000}}, 1000, 5000, {{1760, 2000}}},
      {{{1000, 2000}}, 1000, -10, {{240, 2000}}},
      {{{1000, 2000}}, 2000, 9000, {{1000, 9000}}},
      {{{1000, 2000}, {1030, 1500, 2000}}, 1000, 1900, {{1260, 2000}, {1260, 1500, 2000}}},
      {{{1000, 2000}, {2000}}, 1000, 1200, {{1200, 2000}, {2000}}},
      {{{1000, 2000}}, 1300, 1500, {{1000, 2000}}},
      {{{1000, 1100}}, 1000, 1050, {{1000, 1100}}},
  };
  for (const auto& c : cases) {
    const Table table = TableOf(c.rows);
    EXPECT_EQ(WithEdgeMoved(table, c.from, NearestEdge({&table}, c.from, c.to)), TableOf(c.after));
  }
}

TEST(Room, IsWhatTheLimitsLeave) {
  RichDocument document;
  document.blocks.assign(kMostParagraphs - 2, Paragraph());
  RichDocument two;
  two.blocks.assign(2, Paragraph());
  RichDocument three;
  three.blocks.assign(3, Paragraph());
  EXPECT_TRUE(HasRoomFor(document, two));
  EXPECT_FALSE(HasRoomFor(document, three));
  EXPECT_FALSE(HasRoomFor({}, std::string(kMostText + 1, 'a')));
  EXPECT_TRUE(HasRoomFor({}, std::string(kMostText, 'a')));
  two.is_part = true;
  EXPECT_FALSE(HasRoomFor({}, two));
}

}  // namespace
}  // namespace tarnwell::richtext
