// What a document's view shows beyond plain formatted text.

#include <QHelpEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <QToolTip>

#include "desktop/rich_text_rig.h"
#include "richtext/rich_text_reader.h"
#include "richtext/rich_text_writer.h"

namespace tarnwell::desktop {
namespace {

constexpr const char* kBorders = "\\clbrdrt\\brdrs\\clbrdrl\\brdrs\\clbrdrb\\brdrs\\clbrdrr\\brdrs";

class RichTextShownTest : public testing::RichTextRig {
 protected:
  RichTextShownTest() : RichTextRig({900, 700}) {}

  void Show(const std::string& body) {
    box_.SetDocument(richtext::ReadRichText(
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Liberation Serif;}}{\\colortbl;\\red255\\green0\\blue0;}"
        "\\paperh6000\\paperw9000\\margl1000\\margr1000\\margt1000\\margb1000 " +
        body + "}"));
  }
  QImage Image() { return view_->viewport()->grab().toImage(); }
  // How many points of the picture have exactly this colour.
  static int Count(const QImage& image, QColor color, QRect place) {
    int count = 0;
    place &= image.rect();
    for (int y = place.top(); y <= place.bottom(); ++y) {
      for (int x = place.left(); x <= place.right(); ++x) {
        count += image.pixelColor(x, y) == color ? 1 : 0;
      }
    }
    return count;
  }
  QRect PlaceOf(int block) {
    const QAbstractTextDocumentLayout& layout = *view_->document()->documentLayout();
    return layout.blockBoundingRect(view_->document()->findBlockByNumber(block)).toRect();
  }
};

TEST_F(RichTextShownTest, LooksThatQtHasNoWordForArePainted) {
  const QColor red(255, 0, 0);
  const struct {
    const char* what;
    const char* body;
    int least;  // red points in the first paragraph's place and a little around it
  } cases[] = {
      {"nothing", "\\pard plain\\par", 0},
      {"a frame", "\\pard\\box\\brdrs\\brdrw30\\brdrcf1\\brsp60 framed\\par", 600},
      {"a fill", "\\pard\\cbpat1 shaded\\par", 3000},
      {"a leader", "\\pard\\tlul\\tx5000\\cf1\\tab\\par", 200},
      {"double", "\\pard{\\cf1\\uldb \\~\\~\\~\\~\\~\\~\\~\\~\\~\\~}\\par", 40},
      {"thick", "\\pard{\\cf1\\ulth \\~\\~\\~\\~\\~\\~\\~\\~\\~\\~}\\par", 20},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    Show(c.body);
    const int points = Count(Image(), red, PlaceOf(0).adjusted(-10, -10, 900, 10));
    EXPECT_GE(points, c.least);
    EXPECT_EQ(points == 0, c.least == 0);
  }
}

TEST_F(RichTextShownTest, CapitalsShowInTheirLook) {
  Show("\\pard{\\scaps small}{\\caps all}{\\caps0 none}\\par");
  std::vector<QFont::Capitalization> shown;
  const QTextBlock block = view_->document()->begin();
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    shown.push_back(part.fragment().charFormat().fontCapitalization());
  }
  EXPECT_EQ(shown, (std::vector{QFont::SmallCaps, QFont::AllUppercase, QFont::MixedCase}));
  EXPECT_EQ(box_.ParagraphText(0), "smallallnone");
}

// What is kept shows as a sign; typing, erasing and moving go around it, and the file keeps it.
TEST_F(RichTextShownTest, ASignStandsForWhatIsKept) {
  const struct {
    const char* rtf;
    const char* tip;
  } cases[] = {
      {"{\\shp{\\*\\shpinst{\\shptxt\\pard Call us\\par}}}", "Text box, kept: Call us"},
      {"{\\shp{\\*\\shpinst{\\sp{\\sn a}{\\sv 1}}}}", "Drawing, kept"},
      {"{\\*\\atnauthor Ann}\\chatn{\\*\\annotation\\pard Why?}", "Comment by Ann, kept: Why?"},
      {"{\\field{\\*\\fldinst DATE}{\\fldrslt}}", "Field DATE, kept"},
      {"{\\object{\\*\\objdata 00}}", "Object, kept"},
      {"{\\v secret}", "Hidden text, kept: secret"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.tip);
    Show("\\pard ab" + std::string(c.rtf) + "cd\\par");
    const std::string kept = richtext::WriteRichText(box_.document());
    ASSERT_EQ(view_->document()->begin().text().size(), 5);
    EXPECT_EQ(view_->accessibleDescription().toStdString(),
              c.tip + std::string(". A text; Ctrl+Tab leaves it."));
    box_.Select({{0, 1}, {0, 1}});
    Key(Qt::Key_Right);
    Key(Qt::Key_Right);
    EXPECT_EQ(box_.selection().from, (richtext::Position{0, 3}));
    Key(Qt::Key_Left);
    Key(Qt::Key_X);
    EXPECT_EQ(box_.ParagraphText(0), "abxcd");
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Delete);
    EXPECT_EQ(box_.ParagraphText(0), "abd");
    while (box_.CanUndo()) Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(richtext::WriteRichText(box_.document()), kept);
  }
}

TEST_F(RichTextShownTest, NotesAreNumberedInTheTextAndStandBelowIt) {
  const std::string note = "{\\super\\chftn}{\\footnote\\pard{\\super\\chftn} Of red.\\par}";
  Show("\\pard one" + note + "\\par two" + note + "\\par");
  box_.Select({{0, 0}, {0, 0}});
  const int before = view_->verticalScrollBar()->maximum();
  Show("\\pard one\\par two\\par");
  EXPECT_GE(before, view_->verticalScrollBar()->maximum());
  Show("\\pard one" + note + "\\par\\cf1 two" + note + "\\par");
  EXPECT_EQ(view_->document()->begin().text().size(), 4);
  EXPECT_GT(Count(Image(), QColor(255, 0, 0), PlaceOf(1)), 0);
}

TEST_F(RichTextShownTest, MergedCellsAreOneAndTheCoveredOnesAreSteppedOver) {
  const std::string cell = kBorders;
  Show("\\pard a\\par\\trowd\\clvmgf" + cell + "\\cellx2000\\clmgf" + cell + "\\cellx4000\\clmrg" +
       cell + "\\cellx6000\\pard\\intbl b\\cell c\\cell\\cell\\row\\trowd\\clvmrg" + cell +
       "\\cellx2000" + cell + "\\cellx4000" + cell +
       "\\cellx6000\\pard\\intbl\\cell d\\cell e\\cell\\row\\pard f\\par");
  const QTextTable* const table =
      QTextCursor(view_->document()->findBlockByNumber(1)).currentTable();
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->cellAt(0, 0).rowSpan(), 2);
  EXPECT_EQ(table->cellAt(0, 1).columnSpan(), 2);
  for (const auto& [paragraph, text] : std::initializer_list<std::pair<int, const char*>>{
           {0, "a"}, {1, "b"}, {2, "c"}, {5, "d"}, {6, "e"}, {7, "f"}}) {
    box_.Select({{paragraph, 0}, {paragraph, 1}});
    EXPECT_EQ(view_->textCursor().selectedText().toStdString(), text);
  }
  box_.Select({{1, 0}, {1, 0}});
  for (const char letter : {'c', 'd', 'e'}) {
    Key(Qt::Key_Tab);
    EXPECT_EQ(box_.SelectedText(), std::string(1, letter));
  }
  Key(Qt::Key_X);
  EXPECT_EQ(box_.ParagraphText(6), "x");
}

TEST_F(RichTextShownTest, ATableInsideACellIsShownAndKept) {
  const std::string cell = kBorders;
  Show("\\trowd" + cell +
       "\\cellx4000\\pard\\intbl a\\par\\pard\\intbl\\itap2 in\\nestcell"
       "{\\*\\nesttableprops\\trowd" +
       cell +
       "\\cellx2000\\nestrow}\\pard\\intbl\\itap1 b\\cell"
       "\\row\\pard c\\par");
  EXPECT_TRUE(view_->accessibleDescription().startsWith("Table, kept. "));
  const QAbstractTextDocumentLayout& layout = *view_->document()->documentLayout();
  const QTextTable* const table =
      QTextCursor(view_->document()->findBlockByNumber(1)).currentTable();
  ASSERT_NE(table, nullptr);
  const double with = layout.frameBoundingRect(const_cast<QTextTable*>(table)).height();
  EXPECT_GT(with, 3 * QFontMetrics(QFont(QStringLiteral("Liberation Serif"), 12)).height() - 5);
}

TEST_F(RichTextShownTest, HeadersStandOnEachPageAndPagesHaveTheirOwnSize) {
  std::string body = "{\\header\\pard\\cf1 Head\\par}\\pard first\\par ";
  for (int i = 0; i < 60; ++i) body += "line\\par ";
  Show(body + "\\pagebb last\\par");
  ASSERT_TRUE(IsShownWhole());
  const double plain = view_->document()->documentLayout()->documentSize().height();
  const int width = view_->viewport()->width();
  box_.SetShowsPages(true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return view_->document()->pageCount() > 4; }));
  EXPECT_GT(view_->document()->documentLayout()->documentSize().height(), plain);
  EXPECT_NE(view_->viewport()->width(), width);
  const double page = view_->document()->pageSize().height();
  const QTextBlock last = view_->document()->findBlockByNumber(61);
  const double y = view_->document()->documentLayout()->blockBoundingRect(last).top();
  EXPECT_LT(y - std::floor(y / page) * page, page / 2);
  box_.SetShowsPages(false);
  EXPECT_EQ(view_->document()->documentLayout()->documentSize().height(), plain);
}

TEST_F(RichTextShownTest, TheSheetIsAsWideWithALongTextAsWithAShortOne) {
  Show("\\pard short\\par");
  const int width = view_->viewport()->width();
  std::string body = "\\pard ";
  for (int i = 0; i < 200; ++i) body += "line\\par ";
  Show(body);
  EXPECT_EQ(view_->viewport()->width(), width);
}

TEST_F(RichTextShownTest, TheBorderOfAColumnIsDragged) {
  const std::string cell = kBorders;
  Show("\\trowd\\trgaph100" + cell + "\\cellx2000" + cell +
       "\\cellx4000\\pard\\intbl a\\cell b\\cell\\row\\pard c\\par");
  const auto edges = [this] {
    const auto& cells = std::get<richtext::Table>(box_.document().blocks[0]).rows[0].cells;
    return std::pair(cells[0].right_edge, cells[1].right_edge);
  };
  const double twip = 2000 / (PlaceOf(2).left() - PlaceOf(1).left());
  const QPoint border(PlaceOf(2).left() - static_cast<int>(100 / twip), PlaceOf(2).center().y());
  const auto drag = [&](int by) {
    QTest::mousePress(view_->viewport(), Qt::LeftButton, {}, border);
    QTest::mouseMove(view_->viewport(), border + QPoint(by, 0));
    QTest::mouseRelease(view_->viewport(), Qt::LeftButton, {}, border + QPoint(by, 0));
  };
  drag(20);
  EXPECT_NEAR(edges().first, 2000 + 20 * twip, 3 * twip);
  EXPECT_EQ(edges().second, 4000);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edges(), (std::pair{2000, 4000}));
  drag(1000);
  EXPECT_EQ(edges(), (std::pair{4000 - 240, 4000}));
  box_.SetLocked(true);
  const auto before = edges();
  drag(-20);
  EXPECT_EQ(edges(), before);
}

// A change to a table is shown without showing the document anew.
TEST_F(RichTextShownTest, AChangedTableIsShownInItsPlace) {
  std::string body = "\\pard first\\par";
  const std::string row = "\\trowd\\cellx2000\\cellx4000\\pard\\intbl x\\cell y\\cell\\row";
  for (int i = 0; i < 40; ++i) body += "\\pard line\\par" + row + row;
  Show(body + "\\pard last\\par");
  ASSERT_TRUE(IsShownWhole());
  const QTextBlock first = view_->document()->begin();
  const int blocks = view_->document()->blockCount();
  const int row_start = 7;
  box_.Select({{row_start, 0}, {row_start + 3, 1}});
  Key(Qt::Key_Delete);
  box_.MoveSelection({{row_start - 1, 0}, {row_start + 4, 4}});
  Key(Qt::Key_Delete);
  EXPECT_EQ(view_->document()->begin(), first);
  EXPECT_LT(view_->document()->blockCount(), blocks);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(view_->document()->blockCount(), blocks);
  for (int i = 0; i < box_.paragraph_count(); ++i) {
    box_.Select({{i, 0}, {i, 100}});
    ASSERT_EQ(view_->textCursor().selectedText().toStdString(), box_.ParagraphText(i)) << i;
  }
}

}  // namespace
}  // namespace tarnwell::desktop
