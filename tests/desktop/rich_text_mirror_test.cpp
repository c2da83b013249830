// That the widget's text stays in step with the document that it mirrors.

#include <QTextBlock>
#include <QTextTable>
#include <random>

#include "desktop/rich_text_rig.h"
#include "richtext/rich_text_files.h"

namespace tarnwell::desktop {
namespace {

using richtext::FromSketch;
using richtext::Position;
using richtext::Range;
using richtext::Sketch;

class RichTextMirrorTest : public testing::RichTextRig {};

TEST_F(RichTextMirrorTest, ALongDocumentIsShownInPartsAndWholeForAKey) {
  std::string sketch = "first";
  for (int i = 0; i < 1000; ++i) sketch += i % 100 == 99 ? "|[a,b]" : "|line";
  Show(sketch.c_str());
  const int at_first = view_->document()->blockCount();
  EXPECT_LT(at_first, 500);
  box_.Replace({{0, 0}, {0, 5}}, "x");
  EXPECT_EQ(view_->document()->blockCount(), at_first);
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(box_.selection().to, (Position{box_.paragraph_count() - 1, 0}));
  EXPECT_TRUE(view_->textCursor().hasSelection());
  EXPECT_TRUE(IsShownWhole());
  EXPECT_EQ(view_->textCursor().selectionEnd(), view_->document()->characterCount() - 1);
  const QStringList shown = Shown(*view_->document());
  box_.SetDocument(FromSketch(("x" + sketch.substr(5)).c_str()));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(*view_->document()) == shown; }));
}

TEST_F(RichTextMirrorTest, TypingInALongDocumentDoesntWaitForTheRest) {
  std::string sketch = "first";
  for (int i = 0; i < 1000; ++i) sketch += i % 10 == 9 ? "|[a,b]" : "|line";
  Show(sketch.c_str(), {0, 2});
  const int at_first = view_->document()->blockCount();
  Key(Qt::Key_X);
  Key(Qt::Key_Return);
  Key(Qt::Key_Return);
  Key(Qt::Key_Backspace);
  box_.Erase({{4, 1}, {7, 2}});
  box_.Replace({{10, 0}, {10, 1}}, "in a cell");
  EXPECT_LT(view_->document()->blockCount(), at_first + 5);
  QStringList shown;
  EXPECT_TRUE(QTest::qWaitFor([&] {
    shown = Shown(*view_->document());
    return shown.size() >= box_.paragraph_count();
  }));
  box_.SetDocument(richtext::RichDocument(box_.document()));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(*view_->document()) == shown; }));
}

TEST_F(RichTextMirrorTest, BlocksStayInStepWithTheParagraphsOfAnUnevenTable) {
  const std::string rtf =
      "{\\rtf1\\trowd\\cellx1000\\cellx3000\\pard\\intbl a\\cell b\\cell\\row"
      "\\trowd\\cellx2000\\cellx2030\\cellx4000\\pard\\intbl c\\cell d\\cell e\\cell\\row"
      "\\trowd\\cellx500\\pard\\intbl f\\par g\\cell\\row\\pard h\\par}";
  box_.SetDocument(richtext::ReadRichText(rtf));
  for (int i = 0; i < box_.paragraph_count(); ++i) {
    box_.Select({{i, 0}, {i, 1}});
    EXPECT_EQ(view_->textCursor().selectedText().toStdString(), box_.ParagraphText(i)) << i;
  }
}

// Whether something in the paragraph's place has the colour of a selection.
bool IsPainted(RichTextView& view, int paragraph) {
  const QTextBlock block = view.document()->findBlockByNumber(paragraph);
  const QRect place = view.document()->documentLayout()->blockBoundingRect(block).toRect();
  const QImage image = view.viewport()->grab().toImage().copy(place);
  const QRgb color = view.palette().color(QPalette::Highlight).rgb();
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) == color) return true;
    }
  }
  return false;
}

TEST_F(RichTextMirrorTest, TheCellsPaintedAreTheCellsSelected) {
  const auto mouse = [this](QEvent::Type type, int paragraph, Qt::MouseButtons buttons) {
    const QTextBlock block = view_->document()->findBlockByNumber(paragraph);
    const QPointF place = view_->cursorRect(QTextCursor(block)).center() + QPointF(3, 0);
    QMouseEvent event(type, place, view_->viewport()->mapToGlobal(place),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, {});
    QCoreApplication::sendEvent(view_->viewport(), &event);
  };
  const char* const sketch = "xx|[aa,bb,cc;dd,ee,ff;gg,hh,ii]|yy";
  const struct {
    int from;
    int to;
    const char* selected;
    const char* erased;
  } drags[] = {
      {1, 5, "aa\nbb\ndd\nee", "xx|[,,cc;,,ff;gg,hh,ii]|yy"},
      {5, 1, "aa\nbb\ndd\nee", "xx|[,,cc;,,ff;gg,hh,ii]|yy"},
      {3, 8, "bb\ncc\nee\nff\nhh\nii", nullptr},
      {8, 3, "bb\ncc\nee\nff\nhh\nii", nullptr},
      {1, 3, "aa\nbb\ncc", "xx|[,,;dd,ee,ff;gg,hh,ii]|yy"},
      {5, 10, nullptr, nullptr},
      {10, 5, nullptr, nullptr},
      {0, 5, nullptr, nullptr},
  };
  for (const auto& drag : drags) {
    SCOPED_TRACE(std::to_string(drag.from) + " to " + std::to_string(drag.to));
    Show(sketch);
    mouse(QEvent::MouseButtonPress, drag.from, Qt::LeftButton);
    mouse(QEvent::MouseMove, drag.to, Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, drag.to, Qt::NoButton);
    if (drag.selected != nullptr) {
      EXPECT_EQ(box_.SelectedText(), drag.selected);
    }
    ASSERT_FALSE(box_.selection().empty());
    Key(Qt::Key_B, Qt::ControlModifier);
    const richtext::RichDocument bold = box_.document();
    for (int i = 1; i < 10; ++i) {
      const bool is_bold = richtext::ParagraphAt(bold, i).runs.front().format.bold;
      EXPECT_EQ(IsPainted(*view_, i), is_bold) << i;
    }
    if (!drag.erased) continue;
    Key(Qt::Key_Z, Qt::ControlModifier);
    Key(Qt::Key_Delete);
    EXPECT_EQ(text(), drag.erased);
  }
}

class RandomEditsInAWidgetTest : public RichTextMirrorTest,
                                 public ::testing::WithParamInterface<const char*> {
 protected:
  int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
  Range SomeRange() {
    const int paragraph = Below(box_.paragraph_count());
    const int more = Below(4) == 0 ? Below(5) : 0;
    return {{paragraph, Below(12)}, {paragraph + more, Below(12)}};
  }
  void Edit() {
    box_.MoveSelection(SomeRange());
    switch (Below(10)) {
      case 0:
        return box_.Type("\n");
      case 1:
        return box_.Erase(box_.selection());
      case 2:
        return box_.Paste(FromSketch(Below(2) == 0 ? "x|1.>y" : "x|[y,z]|1.>v"));
      case 3:
        return box_.ToggleBold();
      case 4:
        return box_.SetSelectionAlignment(richtext::Alignment::kRight);
      case 5:
        return box_.MoveText(SomeRange(), box_.selection().from);
      case 6:
        box_.Undo();
        return Below(2) == 0 ? box_.Undo() : box_.Redo();
      default:
        box_.Type("e\u0301\U0001F600\f");
    }
  }

  std::mt19937 random_{7};
};

TEST_P(RandomEditsInAWidgetTest, ShowWhatAFreshWidgetShows) {
  box_.SetDocument(richtext::TestDocument(GetParam()));
  for (int i = 0; i < 150; ++i) {
    Edit();
    ASSERT_EQ(Shown(*view_->document()), ShownAnew()) << "after edit " << i;
    ASSERT_EQ(view_->textCursor().hasSelection(), !box_.selection().empty());
  }
}

INSTANTIATE_TEST_SUITE_P(Documents, RandomEditsInAWidgetTest,
                         ::testing::Values("character-formats.rtf", "lists-of-old-style.rtf",
                                           "pictures.rtf", "table.rtf", "table-inside-a-cell.rtf"));

}  // namespace
}  // namespace tarnwell::desktop
