#include <gtest/gtest.h>

#include "richtext/editor.h"
#include "richtext/fragment.h"
#include "richtext/rich_text_writer.h"
#include "richtext/selection.h"
#include "richtext/sketch.h"

namespace tarnwell::richtext {
namespace {

TEST(Sketches, AreReadAsTheyAreWritten) {
  for (const char* sketch : {"a|b", "a*b*c{}d|[a,b/c;d,e]|x", "1.>a|2.>b|c", "[a]", "#|[a,b]"}) {
    EXPECT_EQ(Sketch(FromSketch(sketch)), sketch);
  }
}

TEST(Erasing, JoinsParagraphsAndNeverBreaksATable) {
  const struct {
    const char* before;
    Range range;
    const char* after;
  } cases[] = {
      {"abcd|x", {{0, 1}, {0, 3}}, "ad|x"},
      {"ab{}cd", {{0, 1}, {0, 3}}, "a{}d"},
      {"ab{}|c{}d", {{0, 1}, {1, 1}}, "a{}d"},
      {"ab|middle|cd", {{0, 1}, {2, 1}}, "ad"},
      {"ab|[c,d]|ef", {{0, 1}, {3, 1}}, "af"},
      {"[a/b,c]", {{0, 1}, {1, 0}}, "[ab,c]"},
      {"[ab,c;d,ef]|x", {{0, 1}, {3, 0}}, "[,;,]|x"},
      {"[ab/x,c,d;e,f,g]", {{1, 1}, {5, 1}}, "[,,d;,,g]"},
      {"[ab,c,d;e,f,g]", {{1, 1}, {3, 1}}, "[,,d;,,g]"},
      {"ab|[cd,e]|f", {{0, 1}, {1, 1}}, "a|f"},
      {"ab|[cd,e]|fg", {{0, 2}, {3, 0}}, "ab|fg"},
      {"ab|[cd,e]|fg", {{0, 2}, {3, 1}}, "ab|g"},
      {"ab|[cd,e]|fg", {{0, 1}, {3, 0}}, "a|fg"},
      {"ab|c|[d,e;f,g]", {{0, 1}, {4, 0}}, "a"},
      {"[a,bc/d]|ef", {{1, 1}, {3, 1}}, "f"},
      {"[a,b]|c|d|[e,f]", {{1, 0}, {4, 1}}, ""},
      {"a|[b,c]", {{0, 0}, {3, 0}}, ""},
      {"a|[b,c]", {{1, 0}, {3, 0}}, "a|"},
      {"|[b,c]|", {{0, 0}, {3, 0}}, ""},
      {"1.>a|2.>b|3.>c|x|3.>y", {{0, 1}, {1, 0}}, "1.>ab|2.>c|x|3.>y"},
      {"(1)>a|-|(2)>b", {{0, 1}, {1, 1}}, "(1)>a|(2)>b"},
  };
  for (const auto& c : cases) {
    RichDocument document = FromSketch(c.before);
    Editor(document).Erase(c.range);
    EXPECT_EQ(Sketch(document), c.after) << c.before;
  }
}

TEST(Erasing, TheFormatIsThatOfTheFirstParagraphOfWhichSomethingIsLeft) {
  const std::string rtf = "{\\rtf1\\pard\\qc Title\\par\\pard\\qr Body\\par\\pard End\\par}";
  const struct {
    Range range;
    Alignment alignment;
  } cases[] = {{{{0, 2}, {1, 2}}, Alignment::kCenter}, {{{0, 0}, {1, 0}}, Alignment::kRight}};
  for (const auto& c : cases) {
    RichDocument document = ReadRichText(rtf);
    Editor(document).Erase(c.range);
    EXPECT_EQ(ParagraphAt(document, 0).format.alignment, c.alignment);
    EXPECT_EQ(ParagraphAt(document, 1), ParagraphAt(ReadRichText(rtf), 2));
  }
}

TEST(Erasing, ASectionKeepsItsBreak) {
  RichDocument document = ReadRichText("{\\rtf1\\pard ab\\par cd\\sect\\sectd\\cols2 ef\\par}");
  Editor(document).Erase({{1, 1}, {2, 1}});
  EXPECT_EQ(Sketch(document), "ab|cf$");
}

TEST(Breaking, AParagraphPartsAndAListGoesOn) {
  const struct {
    const char* before;
    Position at;
    const char* after;
    Position cursor;
  } cases[] = {
      {"abc", {0, 1}, "a|bc", {1, 0}},
      {"a{}b", {0, 1}, "a{}|b", {1, 0}},
      {"{}ab", {0, 0}, "|{}ab", {1, 0}},
      {"1.>ab|2.>c|d", {0, 1}, "1.>a|2.>b|3.>c|d", {1, 0}},
      {"9.>a|9.>b", {0, 1}, "9.>a|10.>|10.>b", {1, 0}},
      {"a)>x|b)>y", {1, 1}, "a)>x|b)>y|c)>", {2, 0}},
      {"1.>a|2.>|3.>c", {1, 0}, "1.>a||2.>c", {1, 0}},
      {"[a,b]", {1, 1}, "[a,b/]", {2, 0}},
      {"[a,b]", {0, 0}, "|[a,b]", {0, 0}},
      {"[a]", {1, 0}, "[a]||", {2, 0}},
      {"", {0, 0}, "|", {1, 0}},
  };
  for (const auto& c : cases) {
    RichDocument document = *c.before == '\0' ? RichDocument{} : FromSketch(c.before);
    EXPECT_EQ(Editor(document).BreakParagraph(c.at), c.cursor) << c.before;
    EXPECT_EQ(Sketch(document), c.after) << c.before;
  }
}

TEST(Breaking, APageBegunByAParagraphIsBegunOnce) {
  RichDocument document = FromSketch("ab");
  std::get<Paragraph>(document.blocks[0]).format.page_break_before = true;
  Editor(document).BreakParagraph({0, 1});
  EXPECT_TRUE(std::get<Paragraph>(document.blocks[0]).format.page_break_before);
  EXPECT_FALSE(std::get<Paragraph>(document.blocks[1]).format.page_break_before);
}

// A long paste is one change, not one for each line.
TEST(Breaking, LinesDoWhatEachOfThemWouldAtOneGo) {
  for (const char* before : {"", "abc", "a{}b", "1.>a|2.>c|d", "1.>|2.>c", "[a,b]|c", "$a$"}) {
    for (const char* lines : {"x\ny", "\n", "x\n", "\nx", "x\n\ny", "\n\n\n", "x\n\n\ny\nz"}) {
      for (const Position at : {Position{0, 0}, Position{0, 1}, Position{1, 0}}) {
        RichDocument at_once = FromSketch(before);
        RichDocument one_by_one = at_once;
        Editor editor(at_once);
        Editor steps(one_by_one);
        const Position from = Clamped(at_once, at);
        Position to = from;
        for (const char* c = lines; *c != '\0'; ++c) {
          to = *c == '\n' ? steps.BreakParagraph(to) : steps.InsertText(to, {c, 1}, {});
        }
        EXPECT_EQ(editor.InsertLines(from, lines, {}), to) << before << " + " << lines;
        EXPECT_EQ(Sketch(at_once), Sketch(one_by_one)) << before << " + " << lines;
        EXPECT_LE(editor.changes().size(), 2U + (from == Position{})) << before << " + " << lines;
      }
    }
  }
}

TEST(Selecting, CellsAreTheOnesThatAGridHasBetweenTheTwo) {
  const std::string rtf =
      "{\\rtf1\\trowd\\cellx1000\\cellx2000\\cellx3000\\pard\\intbl a\\cell b\\cell c\\cell\\row"
      "\\trowd\\cellx2030\\cellx3000\\pard\\intbl d\\cell e\\cell\\row"
      "\\trowd\\cellx1000\\cellx2000\\cellx3000\\pard\\intbl f\\par g\\cell\\cell "
      "h\\cell\\row\\pard x}";
  const struct {
    Range range;
    const char* text;
  } cases[] = {
      {{{0, 1}, {1, 0}}, "a\nb"},
      {{{1, 0}, {2, 0}}, "b\nc"},
      {{{1, 0}, {5, 1}}, "a\nb\nd\nf\ng\n"},
      {{{2, 0}, {4, 0}}, "c\ne"},
      {{{1, 1}, {7, 0}}, "b\n"},
      {{{2, 1}, {5, 0}}, "a\nb\nc\nd\ne\nf\ng\n\nh"},
      {{{5, 0}, {6, 1}}, "f\ng"},
      {{{4, 1}, {9, 1}}, "a\nb\nc\nd\ne\nf\ng\n\nh\nx"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SelectedText(ReadRichText(rtf), c.range), c.text);
  }
  const RichDocument cells = Slice(ReadRichText(rtf), {{1, 0}, {2, 0}});
  const TableRow& row = std::get<Table>(cells.blocks.front()).rows.front();
  EXPECT_EQ(row.cells[1].right_edge - row.left_edge, 2000);
}

TEST(Inserting, AFragmentGoesInlineOrPartsTheParagraph) {
  const struct {
    const char* before;
    Position at;
    const char* fragment;
    const char* after;
    Position cursor;
  } cases[] = {
      {"abcd", {0, 2}, "*x*", "ab*x*cd", {0, 3}},
      {"abcd", {0, 2}, "x|y", "abx|ycd", {1, 1}},
      {"abcd", {0, 2}, "x|[p,q]", "abx|[p,q]|cd", {3, 0}},
      {"abcd|e", {0, 2}, "[p,q]|y", "ab|[p,q]|ycd|e", {3, 1}},
      {"[ab,c]", {0, 1}, "x|[p,q]|y", "[ax/p\tq/yb,c]", {2, 1}},
      {"[a]", {1, 0}, "x", "[a]|x", {1, 1}},
      {"1.>ab|2.>c", {0, 1}, "x|y", "1.>ax|2.>yb|3.>c", {1, 1}},
      {"a#b", {0, 4}, "#", "a##b", {0, 7}},
  };
  for (const auto& c : cases) {
    RichDocument document = FromSketch(c.before);
    EXPECT_EQ(Editor(document).Insert(c.at, FromSketch(c.fragment)), c.cursor) << c.before;
    EXPECT_EQ(Sketch(document), c.after) << c.before;
  }
}

TEST(Inserting, LinksOfAFragmentBecomeLinksOfTheDocument) {
  const std::string link =
      "{\\rtf1\\pard {\\field{\\*\\fldinst HYPERLINK \"https://a.example\"}{\\fldrslt x}}\\par}";
  RichDocument document = ReadRichText(link);
  Editor(document).Insert({0, 1}, ReadRichText(link));
  EXPECT_EQ(document.fields.size(), 2u);
  EXPECT_EQ(ReadRichText(WriteRichText(document)), document);
}

TEST(Slicing, TakesWhatTheRangeShows) {
  const struct {
    const char* document;
    Range range;
    const char* slice;
  } cases[] = {
      {"ab{}cd|ef", {{0, 1}, {0, 3}}, "bc"},
      {"ab|cd", {{0, 1}, {1, 1}}, "b|c"},
      {"[ab/cd,e]", {{0, 1}, {1, 1}}, "b|c"},
      {"[a,b;c,d;e,f]|g", {{3, 0}, {6, 1}}, "[a,b;c,d;e,f]|g"},
      {"x|[a,b;c,d]", {{0, 0}, {3, 0}}, "x|[a,b;c,d]"},
      {"x|[a,b;c,d]|y", {{0, 1}, {5, 0}}, "[a,b;c,d]"},
      {"[a,b,c;d,e,f;g,h,i]", {{2, 1}, {4, 0}}, "[b,c;e,f]"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Sketch(Slice(FromSketch(c.document), c.range)), c.slice) << c.document;
  }
}

TEST(Slicing, ADetachedFragmentNamesNothingOfItsDocument) {
  RichDocument fragment = ReadRichText(
      "{\\rtf1\\deff3{\\fonttbl{\\f3 Arial;}}{\\stylesheet{\\s2 Heading;}}"
      "\\pard\\s2\\keepn{\\listtext 1.\\tab}\\ls4\\lang1033 a{\\*\\bkmkstart b}c\\par}");
  Detach(fragment);
  const Paragraph& paragraph = ParagraphAt(fragment, 0);
  EXPECT_EQ(Sketch(fragment), "1.>ac");
  EXPECT_EQ(paragraph.format.style, 0);
  EXPECT_EQ(paragraph.format.other + paragraph.runs[0].format.other, "");
  EXPECT_EQ(paragraph.format.list->list_number, 0);
  EXPECT_EQ(paragraph.runs[0].format.font, "Arial");
}

TEST(Finding, IsExactAndCrossesRunsButNotParagraphs) {
  const RichDocument document = FromSketch("a*b*c|bc|[x,bc]");
  const auto found = [&document](const char* text, Position from) {
    const std::optional<Range> range = FindText(document, text, from);
    return range ? range->from : Position{-1, 0};
  };
  EXPECT_EQ(found("bc", {}), (Position{0, 1}));
  EXPECT_EQ(found("bc", {0, 2}), (Position{1, 0}));
  EXPECT_EQ(found("bc", {1, 1}), (Position{3, 0}));
  EXPECT_EQ(found("cb", {}).paragraph, -1);
  EXPECT_EQ(found("BC", {}).paragraph, -1);
}

TEST(Positions, AreClampedToCharacters) {
  const RichDocument document = FromSketch("a\\'e9|[b]");
  EXPECT_EQ(Clamped(document, Position{0, 2}), (Position{0, 1}));
  EXPECT_EQ(Clamped(document, Position{0, 9}), (Position{0, 3}));
  EXPECT_EQ(Clamped(document, Position{9, 9}), (Position{2, 0}));
  EXPECT_EQ(Clamped(document, Position{-1, 9}), (Position{0, 0}));
  EXPECT_EQ(Clamped(RichDocument{}, Position{3, 3}), (Position{0, 0}));
}

}  // namespace
}  // namespace tarnwell::richtext
