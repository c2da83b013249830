#include <gtest/gtest.h>

#include "richtext/editor.h"
#include "richtext/rich_text_reader.h"
#include "richtext/rich_text_writer.h"
#include "richtext/sketch.h"

namespace tarnwell::richtext {
namespace {

TEST(Lists, BeginGoOnAndEnd) {
  using enum ListKind;
  const struct {
    const char* before;
    Range range;
    ListKind kind;
    const char* after;
  } cases[] = {
      {"a|b|c", {{0, 1}, {1, 0}}, kNumbers, "1.>a|2.>b|c"},
      {"1.>a|b|c", {{1, 0}, {2, 1}}, kNumbers, "1.>a|2.>b|3.>c"},
      {"a|b|1.>c|2.>d", {{0, 0}, {1, 1}}, kNumbers, "1.>a|2.>b|3.>c|4.>d"},
      {"(a)>x|y", {{1, 0}, {1, 0}}, kNumbers, "(a)>x|(b)>y"},
      {"1.>a|2.>b|3.>c", {{1, 0}, {1, 1}}, kNone, "1.>a|b|2.>c"},
      {"1.>a|b", {{0, 0}, {1, 1}}, kBullets, "\u2022>a|\u2022>b"},
      {"x|[a/b,c]|y", {{0, 0}, {4, 1}}, kNumbers, "1.>x|[1.>a/2.>b,1.>c]|1.>y"},
      {"", {}, kBullets, "\u2022>"},
  };
  for (const auto& c : cases) {
    RichDocument document = FromSketch(c.before);
    Editor(document).SetList(Clamped(document, c.range), c.kind);
    EXPECT_EQ(Sketch(document), c.after) << c.before;
  }
}

TEST(Lists, AnItemGoesALevelInAndOutAndIsCountedThere) {
  RichDocument document = FromSketch("1.>a|2.>b|3.>c|4.>d");
  Editor(document).Indent({{1, 0}, {2, 0}}, 1);
  EXPECT_EQ(Sketch(document), "1.>a|a.>b|b.>c|2.>d");
  EXPECT_EQ(ParagraphAt(document, 1).format.list->level, 1);
  const std::string rtf = WriteRichText(document);
  EXPECT_NE(rtf.find("\\pnlcltr"), rtf.npos);
  document = ReadRichText(rtf);
  EXPECT_EQ(Sketch(document), "1.>a|a.>b|b.>c|2.>d");
  Editor(document).Indent({{2, 0}, {2, 0}}, 1);
  EXPECT_EQ(Sketch(document), "1.>a|a.>b|1.>c|2.>d");
  Editor(document).Indent({{2, 0}, {2, 0}}, -1);
  Editor(document).Indent({{1, 0}, {2, 0}}, -1);
  EXPECT_EQ(Sketch(document), "1.>a|2.>b|3.>c|4.>d");
  Editor(document).Indent({{0, 0}, {3, 0}}, -1);
  EXPECT_EQ(Sketch(document), "1.>a|2.>b|3.>c|4.>d");
}

TEST(Lists, ALevelGoesOnAsItCountsAlready) {
  RichDocument document = FromSketch("1.>a|1.>b|2.>c");
  std::get<Paragraph>(document.blocks[1]).format.list->level = 1;
  Editor(document).Indent({{2, 0}, {2, 0}}, 1);
  EXPECT_EQ(Sketch(document), "1.>a|1.>b|2.>c");
  EXPECT_EQ(ParagraphAt(document, 2).format.list->level, 1);
}

TEST(Lists, OtherParagraphsKeepSomeRoomHoweverOftenTheyAreIndented) {
  RichDocument document = FromSketch("a");
  Editor editor(document);
  editor.Indent({}, 1);
  EXPECT_EQ(ParagraphAt(document, 0).format.left_indent, 720);
  editor.Indent({}, 30);
  EXPECT_EQ(ParagraphAt(document, 0).format.left_indent, 12240 - 2 * 1800 - 1440);
  editor.Indent({}, -31);
  EXPECT_EQ(ParagraphAt(document, 0).format.left_indent, 0);
}

}  // namespace
}  // namespace tarnwell::richtext
