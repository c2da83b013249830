#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>
#include <QTextTable>
#include <random>

#include "desktop/sample_form.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/rich_text_view.h"
#include "richtext/html.h"
#include "richtext/rich_text_files.h"
#include "richtext/sketch.h"

namespace tarnwell::desktop {
namespace {

using richtext::FromSketch;
using richtext::Position;
using richtext::Range;
using richtext::Sketch;

// All that the text shows, block by block: place, formats, contents.
QStringList Shown(const QTextDocument& document) {
  QStringList shown;
  const auto describe = [](const QTextFormat& format) {
    QStringList properties;
    const QMap<int, QVariant> all = format.properties();
    for (auto it = all.begin(); it != all.end(); ++it) {
      if (it.key() == QTextFormat::ObjectIndex) continue;
      QString value;
      QDebug(&value) << it.value();
      properties << QString::number(it.key()) + '=' + value;
    }
    return properties.join(' ');
  };
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    const QTextCursor cursor(block);
    QString line = describe(block.blockFormat()) + '|' + describe(block.charFormat());
    if (const QTextTable* table = cursor.currentTable()) {
      const QTextTableCell cell = table->cellAt(cursor);
      line += QStringLiteral("|cell %1 %2 %3 ")
                  .arg(cell.row())
                  .arg(cell.column())
                  .arg(cell.columnSpan());
      line += describe(cell.format()) + describe(table->format());
    }
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      line += '|' + part.fragment().text() + ' ' + describe(part.fragment().charFormat());
    }
    shown << line;
  }
  return shown;
}

class RichTextWidgetTest : public ::testing::Test {
 protected:
  RichTextWidgetTest() { page_->resize(700, 500); }

  void SetUp() override {
    page_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(page_.get()));
    view_->setFocus();
  }
  void Show(const char* sketch, Position cursor = {}) {
    box_.SetDocument(FromSketch(sketch));
    box_.Select({cursor, cursor});
  }
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(view_, static_cast<Qt::Key>(key), modifiers);
  }
  std::string text() const { return Sketch(box_.document()); }
  void Paste(std::unique_ptr<QMimeData> mime) {
    QGuiApplication::clipboard()->setMimeData(mime.release());
    Key(Qt::Key_V, Qt::ControlModifier);
  }
  // What a view shows that has seen nothing but this document.
  QStringList ShownAnew() {
    const std::unique_ptr<QWidget> fresh(Widget(box_));
    auto& view = dynamic_cast<RichTextView&>(*fresh);
    view.SetZoom(view_->zoom());
    return Shown(*view.document());
  }

  testing::SampleWorld world_;
  testing::SampleForm& form_ = world_.Show();
  forms::RichTextBox box_{form_, "RichTextBox1", {.spoken_name = "Document"}};
  std::unique_ptr<QWidget> page_{Column({Widget(box_), Widget(form_.save)})};
  RichTextView* view_ = dynamic_cast<RichTextView*>(page_->findChild<QTextEdit*>("RichTextBox1"));
};

TEST_F(RichTextWidgetTest, KeysWriteEraseAndMove) {
  const auto ctrl = Qt::ControlModifier;
  const auto shift = Qt::ShiftModifier;
  const struct {
    const char* what;
    const char* before;
    Position cursor;
    std::vector<std::pair<int, Qt::KeyboardModifiers>> keys;
    const char* after;
  } cases[] = {
      {"letters", "ab", {0, 1}, {{Qt::Key_X, {}}, {Qt::Key_Y, shift}}, "axyb"},
      {"Enter", "ab", {0, 1}, {{Qt::Key_Return, {}}}, "a|b"},
      {"line break", "ab", {0, 1}, {{Qt::Key_Return, shift}}, "a\nb"},
      {"page break", "ab", {0, 1}, {{Qt::Key_Return, ctrl}}, "a\fb"},
      {"Tab", "ab", {0, 1}, {{Qt::Key_Tab, {}}}, "a\tb"},
      {"Backspace", "ab|c", {1, 0}, {{Qt::Key_Backspace, {}}, {Qt::Key_Backspace, {}}}, "ac"},
      {"Delete", "ab|c", {0, 1}, {{Qt::Key_Delete, {}}, {Qt::Key_Delete, {}}}, "ac"},
      {"word back", "one two", {0, 7}, {{Qt::Key_Backspace, ctrl}}, "one "},
      {"word on", "one two", {0, 0}, {{Qt::Key_Delete, ctrl}}, "two"},
      {"a selection", "abc", {0, 0}, {{Qt::Key_Right, shift}, {Qt::Key_X, {}}}, "xbc"},
      {"all", "a|b", {0, 0}, {{Qt::Key_A, ctrl}, {Qt::Key_Delete, {}}}, ""},
      {"a letter of two bytes", "\\'e9\\'e8", {0, 4}, {{Qt::Key_Backspace, {}}}, "é"},
      {"a picture", "a#b", {0, 4}, {{Qt::Key_Backspace, {}}}, "ab"},
      {"bold", "ab", {0, 1}, {{Qt::Key_B, ctrl}, {Qt::Key_X, {}}}, "a*x*b"},
      {"undo", "ab", {0, 1}, {{Qt::Key_X, {}}, {Qt::Key_Z, ctrl}}, "ab"},
      {"redo",
       "ab",
       {0, 1},
       {{Qt::Key_X, {}}, {Qt::Key_Z, ctrl}, {Qt::Key_Z, ctrl | shift}},
       "axb"},
      {"next cell", "[a,b]|c", {0, 0}, {{Qt::Key_Tab, {}}, {Qt::Key_X, {}}}, "[a,x]|c"},
      {"cell before", "[a,b]|c", {1, 0}, {{Qt::Key_Backtab, shift}, {Qt::Key_X, {}}}, "[x,b]|c"},
      {"new row", "[a,b]", {1, 1}, {{Qt::Key_Tab, {}}, {Qt::Key_X, {}}}, "[a,b;x,]"},
      {"in a cell", "[a,b]", {0, 1}, {{Qt::Key_Return, {}}, {Qt::Key_X, {}}}, "[a/x,b]"},
      {"at a table's edge", "a|[b]|c", {1, 0}, {{Qt::Key_Backspace, {}}}, "a|[b]|c"},
      {"the end of a list", "1.>a|2.>", {1, 0}, {{Qt::Key_Backspace, {}}}, "1.>a|"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    Show(c.before, c.cursor);
    for (const auto& [key, modifiers] : c.keys) Key(key, modifiers);
    EXPECT_EQ(text(), c.after);
    EXPECT_EQ(Shown(*view_->document()), ShownAnew());
  }
}

TEST_F(RichTextWidgetTest, ControlTabLeavesTheBox) {
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_FALSE(view_->hasFocus());
  EXPECT_EQ(text(), "");
}

TEST_F(RichTextWidgetTest, WhatAnInputMethodComposesIsTextOnceItIsCommitted) {
  Show("abc", {0, 1});
  box_.Select({{0, 1}, {0, 2}});
  QInputMethodEvent composing(QStringLiteral("ni"), {});
  QCoreApplication::sendEvent(view_, &composing);
  EXPECT_EQ(text(), "ac");
  QInputMethodEvent committing;
  committing.setCommitString(QStringLiteral("你"));
  QCoreApplication::sendEvent(view_, &committing);
  EXPECT_EQ(text(), "a你c");
  EXPECT_EQ(Shown(*view_->document()), ShownAnew());
  EXPECT_EQ(view_->textCursor().position(), 2);
}

TEST_F(RichTextWidgetTest, PastesTheRichestFormThatTheClipboardHolds) {
  const auto mime = [](const char* rtf, const char* html, const char* plain) {
    auto data = std::make_unique<QMimeData>();
    if (rtf) data->setData(QStringLiteral("text/rtf"), rtf);
    if (html) data->setHtml(QString::fromUtf8(html));
    if (plain) data->setText(QString::fromUtf8(plain));
    return data;
  };
  const struct {
    std::unique_ptr<QMimeData> mime;
    const char* after;
  } cases[] = {
      {mime("{\\rtf1\\pard\\b x\\par}", "<p>y</p>", "z"), "a*x*b"},
      {mime(nullptr, "<p>x<b>y</b></p>", "z"), "ax*y*b"},
      {mime(nullptr, "<ol><li>x</li><li>y</li><li>z</li></ol>", nullptr), "ax|2.>y|zb"},
      {mime(nullptr, "<p>x</p><table><tr><td>p</td><td>q</td></tr></table>", nullptr),
       "ax|[p,q]|b"},
      {mime(nullptr, "<img src=\"file:///etc/passwd\">x", nullptr), "axb"},
      {mime(nullptr, nullptr, "x\ny"), "ax|yb"},
  };
  for (const auto& c : cases) {
    Show("ab", {0, 1});
    auto copy = std::make_unique<QMimeData>();
    for (const QString& format : c.mime->formats()) copy->setData(format, c.mime->data(format));
    Paste(std::move(copy));
    EXPECT_EQ(text(), c.after);
    EXPECT_EQ(Shown(*view_->document()), ShownAnew());
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), "ab");
  }
}

TEST_F(RichTextWidgetTest, ATableOfHtmlKeepsItsMergedCellsBothWays) {
  auto mime = std::make_unique<QMimeData>();
  mime->setHtml(
      QStringLiteral("<table border=1><tr><td colspan=2>a</td><td rowspan=2>b</td></tr>"
                     "<tr><td>c</td><td>d</td></tr></table>"));
  Paste(std::move(mime));
  EXPECT_EQ(text(), "|[a,b;c,d,]|");
  const std::string html = richtext::ToHtml(box_.document());
  EXPECT_NE(html.find("<td colspan=\"2\" style"), std::string::npos) << html;
  EXPECT_NE(html.find("<td rowspan=\"2\" style"), std::string::npos) << html;
}

// Each thousand letters a line may break though no letter allows it; nothing of that is the text's.
TEST_F(RichTextWidgetTest, AWordWithoutAnEndIsWrittenInLikeAnyOther) {
  const std::string word(2500, 'x');
  const struct {
    int offset;
    std::vector<int> keys;
    std::size_t typed_at;
    std::size_t length;
  } cases[] = {
      {1000, {Qt::Key_A}, 1000, 2501},
      {2500, {Qt::Key_A}, 2500, 2501},
      {1000, {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_A}, 999, 2499},
      {1000, {Qt::Key_Left, Qt::Key_Delete, Qt::Key_A}, 999, 2500},
      {999, {Qt::Key_Right, Qt::Key_Right, Qt::Key_A}, 1001, 2501},
      {1001, {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_A}, 998, 2501},
  };
  for (const auto& c : cases) {
    Show(word.c_str(), {0, c.offset});
    EXPECT_EQ(view_->document()->toPlainText().count(QChar(0x200B)), 2);
    for (const int key : c.keys) Key(key);
    EXPECT_EQ(Shown(*view_->document()), ShownAnew());
    EXPECT_EQ(text().find('a'), c.typed_at) << c.offset;
    EXPECT_EQ(text().size(), c.length) << c.offset;
  }
}

TEST_F(RichTextWidgetTest, HtmlKeepsItsLook) {
  auto mime = std::make_unique<QMimeData>();
  mime->setHtml(QStringLiteral(
      "<p align=\"center\"><span style=\"font-family:Arial;font-size:18pt;color:#ff0000;"
      "background-color:#00ff00\"><i><u><s>x</s></u></i><sup>2</sup></span></p><p>y</p>"));
  Paste(std::move(mime));
  const richtext::Paragraph& paragraph = richtext::ParagraphAt(box_.document(), 0);
  const richtext::CharacterFormat format = richtext::FormatOf(paragraph, "x");
  EXPECT_EQ(paragraph.format.alignment, richtext::Alignment::kCenter);
  EXPECT_EQ(format.font, "Arial");
  EXPECT_EQ(format.half_points, 36);
  EXPECT_TRUE(format.italic && format.strike);
  EXPECT_EQ(format.underline, richtext::Underline::kSingle);
  EXPECT_EQ(format.color, (richtext::Color{255, 0, 0}));
  EXPECT_EQ(format.highlight, (richtext::Color{0, 255, 0}));
  EXPECT_EQ(richtext::FormatOf(paragraph, "2").script, richtext::Script::kSuperscript);
}

TEST_F(RichTextWidgetTest, CopiesAndCutsAsRichTextHtmlAndPlainText) {
  Show("a*bc*d|1.>e");
  box_.Select({{0, 1}, {1, 1}});
  Key(Qt::Key_C, Qt::ControlModifier);
  const QMimeData* const mime = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(Sketch(richtext::ReadRichText(mime->data("text/rtf").toStdString())), "*bc*d|1.>e");
  EXPECT_TRUE(mime->html().contains(QStringLiteral("font-weight:bold\">bc")));
  EXPECT_EQ(mime->text(), QStringLiteral("bcd\ne"));
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(text(), "a");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(text(), "a*bc*d|1.>e");
}

TEST_F(RichTextWidgetTest, ADropFromOutsideIsPastedWhereItFalls) {
  const auto drop = [this](QMimeData& mime, int position) {
    QTextCursor cursor(view_->document());
    cursor.setPosition(position);
    const QPoint place = view_->cursorRect(cursor).center();
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(place, actions, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view_->viewport(), &enter);
    QDropEvent event(place, actions, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view_->viewport(), &event);
  };
  Show("abc|d");
  QMimeData outside;
  outside.setText(QStringLiteral("xy"));
  drop(outside, 4);
  EXPECT_EQ(text(), "abc|xyd");
  EXPECT_EQ(Shown(*view_->document()), ShownAnew());
}

TEST_F(RichTextWidgetTest, ALockedBoxCanBeReadAndCopiedOnly) {
  Show("abc");
  box_.SetLocked(true);
  Key(Qt::Key_X);
  Key(Qt::Key_Delete);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(text(), "abc");
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(box_.SelectedText(), "abc");
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("abc"));
  Key(Qt::Key_Tab);
  EXPECT_FALSE(view_->hasFocus());
}

TEST_F(RichTextWidgetTest, TheContextMenuOffersWhatCanBeDone) {
  Show("abc");
  QTest::keyClicks(view_, QStringLiteral("x"));
  QGuiApplication::clipboard()->clear();
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), view_->mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(view_->viewport(), &event);
  auto* const menu = view_->findChild<QMenu*>();
  ASSERT_NE(menu, nullptr);
  QStringList enabled;
  for (QAction* action : menu->actions()) {
    if (!action->isSeparator() && action->isEnabled()) enabled << action->text();
  }
  EXPECT_EQ(enabled, (QStringList{QStringLiteral("&Undo"), QStringLiteral("Select &All")}));
  menu->actions().front()->trigger();
  EXPECT_EQ(text(), "abc");
  menu->close();
}

TEST_F(RichTextWidgetTest, AChangeOfQtsTextByAnybodyElseIsTakenBack) {
  Show("abc|d");
  QTextCursor cursor(view_->document());
  cursor.insertText(QStringLiteral("xyz"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(*view_->document()) == ShownAnew(); }));
  EXPECT_EQ(text(), "abc|d");
}

TEST_F(RichTextWidgetTest, AClickSelectsAndTheProgramScrolls) {
  std::string sketch = "first";
  for (int i = 0; i < 200; ++i) sketch += "|line";
  Show(sketch.c_str());
  int moves = 0;
  box_.on_selection = [&moves] { ++moves; };
  QTextCursor cursor(view_->document());
  cursor.setPosition(3);
  QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, view_->cursorRect(cursor).center());
  EXPECT_EQ(box_.selection().from, (Position{0, 3}));
  EXPECT_EQ(moves, 1);
  box_.Select({{150, 0}, {150, 4}});
  EXPECT_EQ(view_->textCursor().selectedText(), QStringLiteral("line"));
  EXPECT_TRUE(view_->viewport()->rect().intersects(view_->cursorRect()));
}

TEST_F(RichTextWidgetTest, ALongDocumentIsShownInPartsAndWholeForAKey) {
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
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return view_->document()->blockCount() >= box_.paragraph_count(); }));
  EXPECT_EQ(view_->textCursor().selectionEnd(), view_->document()->characterCount() - 1);
  const QStringList shown = Shown(*view_->document());
  box_.SetDocument(FromSketch(("x" + sketch.substr(5)).c_str()));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(*view_->document()) == shown; }));
}

TEST_F(RichTextWidgetTest, TypingInALongDocumentDoesntWaitForTheRest) {
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

TEST_F(RichTextWidgetTest, BlocksStayInStepWithTheParagraphsOfAnUnevenTable) {
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

TEST_F(RichTextWidgetTest, TheCellsPaintedAreTheCellsSelected) {
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

class RandomEditsInAWidgetTest : public RichTextWidgetTest,
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
