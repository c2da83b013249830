#include "print/rich_text.h"

#include <gmock/gmock.h>

#include "richtext/rich_text_reader.h"
#include "support/fixed_metrics.h"

namespace tarnwell::print {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class RichTextTest : public ::testing::Test {
 protected:
  // Ten lines of ten points, 40 characters wide, inside margins of 100.
  void Start(int paper_width = 4200) {
    engine.Start({paper_width, 2600, false, {}}, {.name = "Ours"});
  }
  // Lays out the body of a document in which texts have ten points.
  void Print(const std::string& body) {
    const std::string head =
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}{\\f1 Courier;}}"
        "{\\colortbl;\\red255\\green0\\blue0;\\red255\\green255\\blue0;}\\fs20 ";
    AddRichText(engine, richtext::ReadRichText(head + body + "\\par}"));
  }
  const forms::Page& page(std::size_t index) { return engine.document().pages.at(index); }

  template <typename MarkType>
  std::vector<MarkType> All(std::size_t index = 0) {
    std::vector<MarkType> marks;
    for (const forms::Mark& mark : page(index)) {
      if (const auto* one = std::get_if<MarkType>(&mark)) marks.push_back(*one);
    }
    return marks;
  }
  // "x,y text" for each text of a page.
  std::vector<std::string> Texts(std::size_t index = 0) {
    std::vector<std::string> texts;
    for (const auto& text : All<forms::PlacedText>(index)) {
      texts.push_back(std::to_string(text.x) + "," + std::to_string(text.y) + " " + text.text);
    }
    return texts;
  }
  const forms::Font& FontOf(const forms::PlacedText& text) {
    return engine.document().fonts.at(static_cast<std::size_t>(text.font));
  }

  testing::FixedMetrics metrics;
  PageEngine engine{metrics};
};

using Lines = std::vector<std::string>;

TEST_F(RichTextTest, WordsBreakWhereAReaderExpectsIt) {
  const struct {
    const char* what;
    const char* rtf;
    Lines lines;
  } cases[] = {
      {"blanks at a line's end are swallowed",
       "one two   three",
       {"100,100 one two", "100,340 three"}},
      {"blanks at the beginning stay", "   one", {"100,100    one"}},
      {"behind a hyphen", "abcdef-ghijk", {"100,100 abcdef-", "100,340 ghijk"}},
      {"a minus stays with its number", "abcdefg -1234", {"100,100 abcdefg", "100,340 -1234"}},
      {"a soft hyphen shows where it breaks",
       "abcdef\\-ghijk",
       {"100,100 abcdef-", "100,340 ghijk"}},
      {"and nowhere else", "abc\\-def", {"100,100 abcdef"}},
      {"not at a fixed blank", "abcdef gh\\~ijk", {"100,100 abcdef", "100,340 gh\u00A0ijk"}},
      {"inside a word that is too long",
       "abcdefghijklm no",
       {"100,100 abcdefghij", "100,340 klm no"}},
      {"not where only the format changes",
       "abcdef ghij{\\i klm}",
       {"100,100 abcdef", "100,340 ghij", "500,340 klm"}},
      {"between ideographs",
       "\\u20013?\\u25991?\\u20013?\\u25991? abcdefg\\u20013?",
       {"100,100 中文中文", "100,340 abcdefg中"}},
      {"at a line break", "a\\line b\\line\\par c", {"100,100 a", "100,340 b", "100,820 c"}},
      {"an empty paragraph is a line", "a\\par\\par b", {"100,100 a", "100,580 b"}},
      {"hidden text isn't there", "a{\\v hidden}b", {"100,100 ab"}},
      {"a field shows its result",
       "{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt link}}.",
       {"100,100 link."}},
  };
  for (const auto& c : cases) {
    Start(1200);
    Print(c.rtf);
    EXPECT_EQ(Texts(), c.lines) << c.what;
  }
}

TEST_F(RichTextTest, ParagraphsAreAlignedIndentedAndSpaced) {
  const struct {
    const char* what;
    const char* rtf;
    Lines lines;
  } cases[] = {
      {"right", "\\qr four  ", {"3700,100 four"}},
      {"centre", "\\qc four", {"1900,100 four"}},
      {"left indent and first line",
       "\\li500\\ri2500\\fi200 ab cd ef gh ij",
       {"800,100 ab cd ef", "600,340 gh ij"}},
      {"hanging", "\\li500\\ri3000\\fi-300 abcd efgh", {"300,100 abcd", "600,340 efgh"}},
      {"indents that leave no room", "\\li5000\\ri5000 abcd", {"3800,100 abc", "3800,340 d"}},
      {"space before and after", "\\sb100\\sa50 a\\par b", {"100,200 a", "100,590 b"}},
      {"double spacing", "\\sl480\\slmult1 a\\par b", {"100,100 a", "100,580 b"}},
      {"at least", "\\sl300 a\\par b", {"100,160 a", "100,460 b"}},
      {"at least, with larger letters", "\\sl100 a\\par b", {"100,100 a", "100,340 b"}},
      {"exactly", "\\sl-200 a\\par b", {"100,60 a", "100,260 b"}},
      {"a bullet hangs left of its text",
       "{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt}\\fi-300\\li500\\ri2500 ab cd ef gh",
       {"300,100 \u00B7", "600,100 ab cd ef", "600,340 gh"}},
  };
  for (const auto& c : cases) {
    Start();
    Print(c.rtf);
    EXPECT_EQ(Texts(), c.lines) << c.what;
  }
}

TEST_F(RichTextTest, TabsGoToTheirStops) {
  const struct {
    const char* what;
    const char* rtf;
    Lines lines;
  } cases[] = {
      {"every half inch", "a\\tab b\\tab c", {"100,100 a", "820,100 b", "1540,100 c"}},
      {"named ones first", "\\tx1000 a\\tab b\\tab c", {"100,100 a", "1100,100 b", "1540,100 c"}},
      {"right", "\\tqr\\tx2000 a\\tab bcd", {"100,100 a", "1800,100 bcd"}},
      {"centre", "\\tqc\\tx2000 a\\tab bcde", {"100,100 a", "1900,100 bcde"}},
      {"decimal", "\\tqdec\\tx2000 a\\tab 12.50", {"100,100 a", "1900,100 12.50"}},
      {"decimal without a point", "\\tqdec\\tx2000 a\\tab 125", {"100,100 a", "1800,100 125"}},
      {"a right one past the margin", "\\tqr\\tx9000 a\\tab b", {"100,100 a", "4000,100 b"}},
      {"too long for a right one", "\\tqr\\tx300 a\\tab bcd", {"100,100 a", "200,100 bcd"}},
      {"dots form columns", "\\tldot\\tx550 ab\\tab c", {"100,100 ab", "300,100 ...", "650,100 c"}},
      {"past the last stop the line breaks",
       "1234567890123456789012345678901234567\\tab b",
       {"100,100 1234567890123456789012345678901234567", "820,340 b"}},
  };
  for (const auto& c : cases) {
    Start();
    Print(c.rtf);
    EXPECT_EQ(Texts(), c.lines) << c.what;
  }
  Start();
  Print("\\tb1000\\tlul\\tx2000 a\\tab b\\par\\pard\\ul c\\tab ");
  EXPECT_THAT(All<forms::PlacedLine>(), ElementsAre(forms::PlacedLine{1100, 100, 1100, 340},
                                                    forms::PlacedLine{200, 298, 2100, 298},
                                                    forms::PlacedLine{200, 538, 820, 538}));
}

TEST_F(RichTextTest, AJustifiedLineStretchesItsBlanksButNotTheLastOne) {
  Start(2200);
  Print("\\qj abc def ghi jkl mno pqr\\line st uv");
  const auto texts = All<forms::PlacedText>();
  ASSERT_THAT(texts, SizeIs(3));
  EXPECT_EQ(texts[0].text, "abc def ghi jkl mno");
  EXPECT_FLOAT_EQ(texts[0].stretch, 25);
  EXPECT_EQ(texts[1].stretch, 0);
  EXPECT_EQ(texts[2].stretch, 0);
}

TEST_F(RichTextTest, CharactersLookAsTheDocumentSaysAndShareABase) {
  Start();
  Print("a{\\f1\\fs40\\b\\i\\strike\\ul\\cf1 B}{\\super 2}{\\sub 3}{\\highlight2 h}");
  const auto texts = All<forms::PlacedText>();
  ASSERT_THAT(texts, SizeIs(5));
  EXPECT_EQ(FontOf(texts[0]), (forms::Font{.name = "Arial", .size = 10}));
  EXPECT_EQ(FontOf(texts[1]), (forms::Font{"Courier", 20, true, true, true, true, 0x0000FF}));
  EXPECT_EQ(FontOf(texts[2]).size, 6);
  // Base at 360 below the line's top, letters of ten points 180 above it, of six points 108.
  EXPECT_EQ(texts[1].y, 100);
  EXPECT_EQ(texts[0].y, 100 + 360 - 180);
  EXPECT_LT(texts[2].y, 100 + 360 - 108);
  EXPECT_GT(texts[3].y, 100 + 360 - 108);
  EXPECT_THAT(All<forms::PlacedBox>(),
              ElementsAre(forms::PlacedBox{560, 280, 100, 240, std::nullopt, 0x00FFFF}));
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(texts[i].goes_on, i > 0);
    EXPECT_TRUE(texts[i].utf8);
  }
}

TEST_F(RichTextTest, ADocumentWithoutFontsTakesTheEnginesOne) {
  Start();
  AddRichText(engine, richtext::ReadRichText("{\\rtf1 a}"));
  EXPECT_EQ(engine.document().fonts.back(), (forms::Font{.name = "Ours", .size = 12}));
}

TEST_F(RichTextTest, PagesBeginWhereTheDocumentSays) {
  const struct {
    const char* what;
    const char* rtf;
    std::vector<Lines> pages;
  } cases[] = {
      {"break inside a paragraph", "a\\page b", {{"100,100 a"}, {"100,100 b"}}},
      {"break in a line of its own", "a\\par\\page\\par b", {{"100,100 a"}, {"100,100 b"}}},
      {"two breaks leave an empty page", "a\\page\\page b", {{"100,100 a"}, {}, {"100,100 b"}}},
      {"a break at the end begins nothing", "a\\page", {{"100,100 a"}}},
      {"before a paragraph", "a\\par\\pagebb b", {{"100,100 a"}, {"100,100 b"}}},
      {"not before the first one", "\\pagebb a", {{"100,100 a"}}},
      {"a section", "a\\sect b", {{"100,100 a"}, {"100,100 b"}}},
      {"a section on the same page", "a\\sect\\sbknone b", {{"100,100 a", "100,340 b"}}},
  };
  for (const auto& c : cases) {
    Start();
    Print(c.rtf);
    std::vector<Lines> pages;
    for (int i = 0; i < engine.page_count(); ++i)
      pages.push_back(Texts(static_cast<std::size_t>(i)));
    EXPECT_EQ(pages, c.pages) << c.what;
  }
}

TEST_F(RichTextTest, LongTextRunsOnFromTheEnginesPositionOverItsPages) {
  engine.on_new_page = [&] { engine.Line("head"); };
  Start();
  engine.Line("first");
  std::string body;
  for (int i = 0; i < 20; ++i) body += (i > 0 ? "\\par " : "\\sb60 ") + std::to_string(i);
  Print(body);
  EXPECT_EQ(engine.page_count(), 3);
  EXPECT_THAT(Texts(0), SizeIs(2 + 6));
  // The space before a paragraph is dropped at the head of a page.
  EXPECT_EQ(Texts(1).at(1), "100,340 6");
  EXPECT_EQ(engine.font().name, "Ours");
}

TEST_F(RichTextTest, ATableStandsInItsEdgesWithItsBorders) {
  Start();
  Print(
      "x\\par\\trowd\\trgaph50\\clbrdrt\\brdrs\\brdrw20\\brdrcf1\\cellx1000\\clcbpat2\\cellx2000"
      "\\pard\\intbl ab cd efgh\\cell\\pard\\intbl\\qr r\\cell\\row\\pard y");
  EXPECT_EQ(Texts(),
            (Lines{"100,100 x", "150,340 ab cd", "150,580 efgh", "1950,340 r", "100,820 y"}));
  EXPECT_THAT(All<forms::PlacedLine>(),
              ElementsAre(forms::PlacedLine{100, 340, 1100, 340, 0x0000FF, 20}));
  const forms::Mark fill = forms::PlacedBox{1100, 340, 1000, 480, std::nullopt, 0x00FFFF};
  EXPECT_EQ(page(0).at(1), fill) << "it lies below the text of its cell";
}

TEST_F(RichTextTest, ARowMovesWholeUnlessItIsTallerThanAPage) {
  const std::string row = "\\trowd\\cellx1000\\cellx2000\\pard\\intbl ";
  Start();
  for (int i = 0; i < 8; ++i) engine.Line("line");
  Print(row + "1\\line 2\\line 3\\cell b\\cell\\row");
  EXPECT_THAT(Texts(0), SizeIs(8));
  EXPECT_EQ(Texts(1), (Lines{"100,100 1", "100,340 2", "100,580 3", "1100,100 b"}));

  Start();
  for (int i = 0; i < 8; ++i) engine.Line("line");
  std::string tall;
  for (int i = 0; i < 25; ++i) tall += std::to_string(i) + "\\line ";
  Print(row + tall + "end\\cell b\\cell\\row\\pard after");
  ASSERT_EQ(engine.page_count(), 4);
  EXPECT_THAT(Texts(0), SizeIs(8 + 2 + 1));
  EXPECT_EQ(Texts(1).front(), "100,100 2");
  EXPECT_EQ(Texts(3),
            (Lines{"100,100 22", "100,340 23", "100,580 24", "100,820 end", "100,1060 after"}));
}

TEST_F(RichTextTest, ARowIsAsHighAsToldAndItsCellsAreFilledAndCentred) {
  Start();
  Print(
      "\\trowd\\trrh720\\clcbpat2\\clvertalc\\cellx1000\\clvertalb\\cellx2000"
      "\\pard\\intbl a\\cell b\\cell\\row\\pard y");
  EXPECT_EQ(Texts(), (Lines{"100,340 a", "1100,580 b", "100,820 y"}));
  EXPECT_THAT(All<forms::PlacedBox>(),
              ElementsAre(forms::PlacedBox{100, 100, 1000, 720, std::nullopt, 0x00FFFF}));
}

TEST_F(RichTextTest, ATablesHeadComesAgainAtTheHeadOfEachColumn) {
  Start();
  const std::string row = "\\trowd\\cellx1000\\pard\\intbl ";
  std::string body = "\\trowd\\trhdr\\cellx1000\\pard\\intbl Day\\cell\\row ";
  for (int i = 0; i < 12; ++i) body += row + std::to_string(i) + "\\cell\\row ";
  body += row +
          "a\\line b\\line c\\line d\\line e\\line f\\line g\\line h\\line i\\line j\\line k\\line "
          "l\\cell\\row ";
  Print(body + "\\pard z");
  ASSERT_EQ(engine.page_count(), 3);
  EXPECT_EQ(Texts(1).at(0), "100,100 Day");
  EXPECT_EQ(Texts(1).at(1), "100,340 9");
  EXPECT_EQ(Texts(2).at(0), "100,100 Day");
  EXPECT_EQ(Texts(2).at(1), "100,340 g");
}

TEST_F(RichTextTest, AHeadingStaysWithWhatItHeads) {
  for (const char* next : {"text", "\\trowd\\cellx1000\\pard\\intbl text\\cell\\row\\pard "}) {
    Start();
    for (int i = 0; i < 8; ++i) engine.Line("line");
    Print(std::string("{\\pard\\keepn\\sb60 One\\par\\keepn Two\\par}\\pard ") + next);
    EXPECT_THAT(Texts(0), SizeIs(8));
    EXPECT_EQ(Texts(1), (Lines{"100,100 One", "100,400 Two", "100,640 text"})) << next;
  }
  Start();
  std::string all;
  for (int i = 0; i < 25; ++i) all += "\\keepn x\\par ";
  Print(all);
  EXPECT_EQ(engine.page_count(), 3);
}

// A heading and the table that it heads go to the next page together, where a page can hold them.
TEST_F(RichTextTest, RowsThatStayWithTheNextOneAreNotPartedFromItOrTheirHeading) {
  const auto row = [](const std::string& text, bool stays) {
    return "\\trowd\\cellx1000\\pard\\intbl" + std::string(stays ? "\\keepn " : " ") + text +
           "\\cell\\row ";
  };
  Start();
  for (int i = 0; i < 7; ++i) engine.Line("line");
  Print("\\pard\\keepn Head\\par " + row("a", true) + row("b", true) + row("c", false) +
        row("d", false));
  EXPECT_THAT(Texts(0), SizeIs(7));
  EXPECT_EQ(Texts(1), (Lines{"100,100 Head", "100,340 a", "100,580 b", "100,820 c", "100,1060 d"}));

  Start();
  std::string tall;
  for (int i = 0; i < 14; ++i) tall += row(std::to_string(i), true);
  Print("\\pard Text\\par " + tall + "\\pard z");
  EXPECT_THAT(Texts(0), SizeIs(10)) << "more than a page is parted where it ends";
  EXPECT_EQ(Texts(1).front(), "100,100 9");
  EXPECT_EQ(Texts(1).size(), 6U);
}

TEST_F(RichTextTest, NarrowAndBrokenTablesStillEnd) {
  for (const char* rtf :
       {"\\trowd\\cellx0\\cellx0\\pard\\intbl abc\\cell def\\cell\\row",
        "\\trowd\\trgaph900\\cellx10\\cellx5\\pard\\intbl abc\\cell def\\cell\\row",
        "\\trowd\\trleft-5000\\cellx-4000\\cellx900000\\pard\\intbl abc\\cell def\\cell\\row",
        "\\trowd\\cellx3000\\pard\\intbl\\fs4000 abc\\cell\\row"}) {
    Start();
    Print(rtf);
    std::string all;
    for (int i = 0; i < engine.page_count(); ++i) {
      for (const auto& text : All<forms::PlacedText>(static_cast<std::size_t>(i))) {
        all += text.text;
        EXPECT_GE(text.x, 0) << rtf;
      }
    }
    EXPECT_EQ(all.substr(0, 3), "abc") << rtf;
  }
}

// The first bytes of a PNG file of 40 by 20 pixels.
const char kPicture[] = "89504e470d0a1a0a0000000d49484452000000280000001408060000";

TEST_F(RichTextTest, PicturesStandOnTheLineAndShrinkToThePage) {
  const struct {
    const char* what;
    const char* words;
    forms::PlacedImage place;
  } cases[] = {
      {"as large as told", "\\picwgoal500\\pichgoal300", {200, 100, 500, 300, {}}},
      {"scaled", "\\picwgoal500\\pichgoal300\\picscalex200", {200, 100, 1000, 300, {}}},
      {"by its pixels", "", {200, 100, 600, 300, {}}},
      {"too wide", "\\picwgoal8000\\pichgoal400", {100, 340, 4000, 200, {}}},
      {"too high", "\\picwgoal400\\pichgoal4800", {200, 100, 200, 2400, {}}},
  };
  for (const auto& c : cases) {
    Start();
    Print(std::string("a{\\pict\\pngblip") + c.words + " " + kPicture + "}");
    auto pictures = All<forms::PlacedImage>(static_cast<std::size_t>(engine.page_count()) - 1);
    ASSERT_THAT(pictures, SizeIs(1)) << c.what;
    ASSERT_NE(pictures[0].bytes, nullptr);
    EXPECT_EQ(pictures[0].bytes->substr(1, 3), "PNG");
    pictures[0].bytes = nullptr;
    EXPECT_EQ(pictures[0], c.place) << c.what;
  }
}

}  // namespace
}  // namespace tarnwell::print
