#include <gmock/gmock.h>

#include "print/rich_text.h"
#include "richtext/rich_text_reader.h"
#include "support/fixed_metrics.h"

namespace tarnwell::print {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Pattern = forms::PlacedLine::Pattern;
using Pages = std::vector<std::vector<std::string>>;

class RichPagesTest : public ::testing::Test {
 protected:
  // On paper with room for ten lines of ten points, 40 characters wide, inside margins of 100.
  void Print(const std::string& body, const RichPaper& paper = {}) {
    engine.Start({}, {});
    AddRichPages(engine, richtext::ReadRichText(kHead + body + "}"), paper);
  }
  // "x,y text" for each text.
  Pages Texts() const {
    Pages pages;
    for (const forms::Page& page : engine.document().pages) {
      auto& texts = pages.emplace_back();
      for (const forms::Mark& mark : page) {
        if (const auto* const text = std::get_if<forms::PlacedText>(&mark)) {
          texts.push_back(std::to_string(text->x) + "," + std::to_string(text->y) + " " +
                          text->text);
        }
      }
    }
    return pages;
  }
  template <typename MarkType>
  std::vector<MarkType> All(std::size_t page = 0) const {
    std::vector<MarkType> marks;
    for (const forms::Mark& mark : engine.document().pages.at(page)) {
      if (const auto* one = std::get_if<MarkType>(&mark)) marks.push_back(*one);
    }
    return marks;
  }

  static constexpr char kHead[] =
      "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red255\\green0\\blue0;}"
      "\\paperw4200\\paperh2600\\margl100\\margr100\\margt100\\margb100\\headery0\\footery0";
  testing::FixedMetrics metrics;
  PageEngine engine{metrics};
};

TEST_F(RichPagesTest, HeadersAndFootersStandOnThePagesThatTheyAreFor) {
  const struct {
    const char* what;
    const char* rtf;
    Pages pages;
  } cases[] = {
      {"numbers, and the text makes room",
       "{\\header\\pard\\fs20 Head\\par}{\\footer\\pard\\qr\\fs20 "
       "{\\field{\\*\\fldinst PAGE}{\\fldrslt 9}}/{\\field{\\*\\fldinst { NUMPAGES }}}\\par}"
       "\\pard\\fs20 a\\page b\\par",
       {{"100,240 a", "100,0 Head", "3800,2360 1/2"},
        {"100,240 b", "100,0 Head", "3800,2360 2/2"}}},
      {"first, left and right pages",
       "\\facingp\\titlepg{\\headerf\\fs20 F\\par}{\\headerl\\fs20 L\\par}{\\headerr\\fs20 R\\par}"
       "\\pard\\fs20 a\\page b\\page c\\par",
       {{"100,240 a", "100,0 F"}, {"100,240 b", "100,0 L"}, {"100,240 c", "100,0 R"}}},
      {"a section counts anew and has its own, or goes on with the old one",
       "{\\footer\\fs20 \\chpgn\\par}\\pard\\fs20 a\\sect\\sectd\\headery0\\footery0\\pgnrestart"
       "\\pgnstarts7\\pgnlcrm b\\sect\\sectd\\headery0\\footery0{\\footer\\fs20 x\\chpgn}c\\par",
       {{"100,100 a", "100,2360 1"}, {"100,100 b", "100,2360 vii"}, {"100,100 c", "100,2360 x8"}}},
      {"an odd page leaves one empty",
       "\\pard\\fs20 a\\sect\\sectd\\sbkodd b\\par",
       {{"100,100 a"}, {}, {"100,100 b"}}},
      {"a section that goes on where the last one ended",
       "\\pard\\fs20 a\\sect\\sectd\\sbknone b\\par",
       {{"100,100 a", "100,340 b"}}},
      {"columns that end level",
       "\\pard\\fs20 a\\sect\\sectd\\sbknone\\cols2\\colsx200 b\\par c\\par d\\par "
       "e\\sect\\sectd\\sbknone f\\par",
       {{"100,100 a", "100,340 b", "100,580 c", "2200,340 d", "2200,580 e", "100,820 f"}}},
      {"of which one is longer",
       "\\pard\\fs20 a\\sect\\sectd\\sbknone\\cols2\\colsx200 b\\par c\\par "
       "d\\sect\\sectd\\sbknone "
       "e\\par",
       {{"100,100 a", "100,340 b", "100,580 c", "2200,340 d", "100,820 e"}}},
      {"with a table and a note",
       "\\pard\\fs20 a\\sect\\sectd\\sbknone\\cols2\\colsx200\\trowd\\cellx1000\\pard\\intbl\\fs20 "
       "b\\cell\\row\\trowd\\cellx1000\\pard\\intbl c\\cell\\row\\pard d{\\footnote\\pard\\fs20 "
       "n}\\par e\\sect\\sectd\\sbknone f\\par",
       {{"100,100 a", "100,340 b", "100,580 c", "2200,340 d", "2200,580 e", "100,820 f",
         "2200,2260 n"}}},
  };
  for (const auto& c : cases) {
    Print(c.rtf);
    EXPECT_EQ(Texts(), c.pages) << c.what;
  }
}

TEST_F(RichPagesTest, EachSectionHasItsOwnPaperUnlessAPersonChoseOne) {
  const char* const rtf =
      "\\pard\\fs20 a\\par\\sect\\sectd\\lndscpsxn\\pgwsxn5200\\pghsxn2000\\marglsxn300 "
      "b\\sect\\sectd c\\par";
  Print(rtf);
  const forms::PageSetup usual{2600, 4200, true, {}};
  const forms::PageSetup wide{2000, 5200, true, {300, 100, 100, 100}};
  EXPECT_THAT(engine.document().setups, ElementsAre(usual, wide, usual));
  EXPECT_EQ(Texts(), (Pages{{"100,100 a"}, {"300,100 b"}, {"100,100 c"}}));
  const forms::PageSetup chosen{3000, 4000, false, {500, 600, 500, 600}};
  Print(rtf, {chosen});
  EXPECT_THAT(engine.document().setups, ElementsAre(chosen, chosen, chosen));
  EXPECT_EQ(Texts(), (Pages{{"500,600 a"}, {"500,600 b"}, {"500,600 c"}}));
  Print(rtf, {std::nullopt, 350});
  EXPECT_EQ(Texts()[0], (std::vector<std::string>{"100,350 a"}));
}

// Marks of notes are raised: at ten points by 65 twips, in six points.
TEST_F(RichPagesTest, NotesStandAtTheFootOfTheColumnThatNamesThem) {
  const struct {
    const char* what;
    const char* rtf;
    Pages pages;
  } cases[] = {
      {"two on a page",
       "\\pard\\fs20 a{\\super\\chftn}{\\footnote\\pard\\fs20\\chftn  one} b{\\super "
       "\\chftn{\\*\\footnote\\fs20\\chftn\\pard two}}\\par",
       {{"100,100 a", "200,107 1", "260,100  b", "460,107 2", "100,2020 1 one", "100,2260 2two"}}},
      {"a sign of its own",
       "\\pard\\fs20 a*{\\footnote\\pard\\fs20 * one}\\par",
       {{"100,100 a*", "100,2260 * one"}}},
      {"a line goes where its note has room",
       "\\pard\\fs20 a\\par b\\par c\\par d\\par e\\par f\\par g\\par h\\par i\\par "
       "j{\\footnote\\pard\\fs20 n}\\par",
       {{"100,100 a", "100,340 b", "100,580 c", "100,820 d", "100,1060 e", "100,1300 f",
         "100,1540 g", "100,1780 h", "100,2020 i"},
        {"100,100 j", "100,2260 n"}}},
      {"a long one goes on",
       "\\pard\\fs20 a{\\footnote\\pard\\fs20 1\\par 2\\par 3\\par 4\\par 5\\par 6\\par 7\\par "
       "8\\par "
       "9\\par 0}\\par",
       {{"100,100 a", "100,580 1", "100,820 2", "100,1060 3", "100,1300 4", "100,1540 5",
         "100,1780 6", "100,2020 7", "100,2260 8"},
        {"100,2020 9", "100,2260 0"}}},
      {"endnotes at the end",
       "\\pard\\fs20 a{\\super\\chftn{\\footnote\\ftnalt\\pard\\fs20\\chftn  one}} b\\par",
       {{"100,100 a", "200,107 i", "260,100  b", "100,340 i one"}}},
      {"alone on a page",
       "\\pard\\fs20{\\footnote\\pard\\fs20 n}\\page b\\par",
       {{"100,2260 n"}, {"100,100 b"}}},
      {"in a table",
       "\\trowd\\cellx2000\\pard\\intbl\\fs20 a{\\footnote\\pard\\fs20 n}\\cell\\row",
       {{"100,100 a", "100,2260 n"}}},
  };
  for (const auto& c : cases) {
    Print(c.rtf);
    EXPECT_EQ(Texts(), c.pages) << c.what;
  }
}

TEST_F(RichPagesTest, FramesAreDrawnAroundTheParagraphsThatShareThem) {
  Print(
      "\\pard\\brdrt\\brdrs\\brdrw20\\brsp80\\brdrb\\brdrs\\brdrw20\\brsp80\\cbpat1\\fs20 a\\par "
      "b\\par"
      "\\pard\\fs20 c\\par");
  EXPECT_EQ(Texts(), (Pages{{"100,200 a", "100,440 b", "100,780 c"}}));
  const auto boxes = All<forms::PlacedBox>();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0], (forms::PlacedBox{100, 100, 4000, 340, std::nullopt, 0x0000FF}));
  EXPECT_EQ(boxes[1], (forms::PlacedBox{100, 440, 4000, 340, std::nullopt, 0x0000FF}));
  const auto lines = All<forms::PlacedLine>();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], (forms::PlacedLine{100, 100, 4100, 100, forms::kBlack, 20}));
  EXPECT_EQ(lines[1], (forms::PlacedLine{100, 780, 4100, 780, forms::kBlack, 20}));

  Print(
      "\\pard\\brdrbtw\\brdrs\\brdrw20\\brsp80\\fs20 "
      "a\\par\\pard\\brdrbtw\\brdrs\\brdrw20\\brsp80\\sb60 b\\par\\pard c\\par");
  EXPECT_EQ(Texts(), (Pages{{"100,100 a", "100,500 b", "100,740 c"}}));
  EXPECT_THAT(All<forms::PlacedLine>(),
              ElementsAre(forms::PlacedLine{100, 400, 4100, 400, forms::kBlack, 20}));
}

TEST_F(RichPagesTest, UnderlinesAndCapitalsLookAsTheyAreCalled) {
  const struct {
    const char* word;
    std::vector<forms::PlacedLine> lines;
  } cases[] = {
      {"\\ul", {}},
      {"\\uldb",
       {{100, 298, 400, 298, forms::kBlack, 10}, {100, 318, 400, 318, forms::kBlack, 10}}},
      {"\\ulth", {{100, 298, 400, 298, forms::kBlack, 20}}},
      {"\\uld", {{100, 298, 400, 298, forms::kBlack, 10, Pattern::kDots}}},
      {"\\ulwave", {{100, 298, 400, 298, forms::kBlack, 10, Pattern::kWave}}},
      {"\\ulw", {{100, 298, 200, 298, forms::kBlack, 10}, {300, 298, 400, 298, forms::kBlack, 10}}},
  };
  for (const auto& c : cases) {
    Print("\\pard\\fs20{" + std::string(c.word) + " a b}\\par");
    EXPECT_EQ(All<forms::PlacedLine>(), c.lines) << c.word;
  }
  Print("\\pard\\fs20{\\caps ab\\'e9}{\\scaps Ab\\u1078?1}{\\scaps0 x}\\par");
  EXPECT_EQ(Texts(), (Pages{{"100,100 AB\u00C9A", "500,136 B\u0416", "660,100 1x"}}));
}

// The lines of a table's borders as "x1,y1 x2,y2".
TEST_F(RichPagesTest, MergedCellsAndTablesInsideCellsAreDrawnAsOne) {
  const std::string row = "\\pard\\intbl\\fs20 ";
  Print("\\trowd\\clvmgf\\clbrdrb\\brdrs\\cellx1000\\clmgf\\cellx2000\\clmrg\\cellx3000" + row +
        "a\\par b\\par c\\cell "
        "d\\cell\\cell\\row\\trowd\\clvmrg\\clbrdrb\\brdrs\\cellx1000\\cellx3000" +
        row + "\\cell e\\cell\\row\\pard\\fs20 f\\par");
  EXPECT_EQ(
      Texts(),
      (Pages{{"100,100 a", "100,340 b", "100,580 c", "1100,100 d", "1100,340 e", "100,820 f"}}));
  EXPECT_THAT(All<forms::PlacedLine>(), ElementsAre(forms::PlacedLine{100, 820, 1100, 820}));

  Print("\\trowd\\cellx3000" + row +
        "a\\par\\pard\\intbl\\itap2\\fs20 n\\nestcell m\\nestcell"
        "{\\*\\nesttableprops\\trowd\\clbrdrl\\brdrs\\cellx1000\\cellx2000\\nestrow}{"
        "\\nonesttables\\par}"
        "\\pard\\intbl\\fs20 b\\cell\\row\\pard\\fs20 c\\par");
  EXPECT_EQ(Texts(), (Pages{{"100,100 a", "100,340 n", "1100,340 m", "100,580 b", "100,820 c"}}));
  EXPECT_THAT(All<forms::PlacedLine>(), ElementsAre(forms::PlacedLine{100, 340, 100, 580}));

  Print("\\trowd\\clpadt200\\clpadfl3\\clpadl50\\clpadft3\\clpadb60\\clpadfb3\\cellx2000" + row +
        "a\\cell\\row\\pard\\fs20 b\\par");
  EXPECT_EQ(Texts(), (Pages{{"300,150 a", "100,450 b"}}));
}

TEST_F(RichPagesTest, TrackedChangesPrintAsIfTheyWereAccepted) {
  Print(
      "\\pard\\fs20 a{\\deleted\\revauthdel1 gone}{\\revised\\revauth1  new}{\\*\\annotation no} "
      "b\\par");
  std::string text;
  for (const auto& one : All<forms::PlacedText>()) text += one.text;
  EXPECT_EQ(text, "a new b");
}

TEST_F(RichPagesTest, TextBoxesAndFloatingPicturesStandAboveTheirParagraphs) {
  const std::string place = "\\shpleft500\\shptop0\\shpright1500\\shpbottom600";
  const std::string box = "{\\shp{\\*\\shpinst" + place;
  const std::string text = "{\\shptxt\\pard\\fs20 box\\par}}}";
  const struct {
    const char* what;
    std::string rtf;
    Pages pages;
    std::size_t lines;
  } cases[] = {
      {"a box", "\\pard\\fs20 a" + box + text + "b\\par", {{"744,100 box", "100,340 ab"}}, 4},
      {"from the edge, without lines",
       "\\pard\\fs20 " + box + "\\shpbxpage{\\sp{\\sn fLine}{\\sv 0}}" + text + "a\\par",
       {{"644,100 box", "100,340 a"}},
       0},
      {"of the older kind",
       "\\pard\\fs20 {\\*\\do\\dptxbx{\\dptxbxtext\\pard\\fs20 "
       "box\\par}\\dpx500\\dpy0\\dpxsize1000\\dpysize600}a\\par",
       {{"744,100 box", "100,340 a"}},
       4},
      {"in a header",
       "{\\header\\pard\\fs20 " + box + text + "h\\par}\\pard\\fs20 a\\par",
       {{"100,480 a", "744,0 box", "100,240 h"}},
       4},
      {"a drawing without a text", "\\pard\\fs20 " + box + "}}a\\par", {{"100,100 a"}}, 0},
  };
  for (const auto& c : cases) {
    Print(c.rtf);
    EXPECT_EQ(Texts(), c.pages) << c.what;
    EXPECT_EQ(All<forms::PlacedLine>().size(), c.lines) << c.what;
  }
  Print("\\pard\\fs20 " + box +
        "{\\sp{\\sn pib}{\\sv {\\pict\\pngblip "
        "89504e470d0a1a0a0000000d49484452000003e80000000a}}}}}a\\par");
  const auto pictures = All<forms::PlacedImage>();
  ASSERT_EQ(pictures.size(), 1u);
  EXPECT_EQ(pictures[0].x, 600);
  EXPECT_EQ(pictures[0].width, 1000);
  EXPECT_EQ(pictures[0].height, 600);
  EXPECT_EQ(Texts(), (Pages{{"100,700 a"}}));
}

}  // namespace
}  // namespace tarnwell::print
