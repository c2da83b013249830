#include <gmock/gmock.h>

#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>

#include "desktop/rich_text_rig.h"
#include "richtext/html.h"
#include "richtext/rich_text_files.h"

namespace tarnwell::desktop {
namespace {

using richtext::FromSketch;
using richtext::Position;
using richtext::Range;
using richtext::Sketch;

class RichTextWidgetTest : public testing::RichTextRig {
 protected:
  void Paste(std::unique_ptr<QMimeData> mime) {
    QGuiApplication::clipboard()->setMimeData(mime.release());
    Key(Qt::Key_V, Qt::ControlModifier);
  }
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

}  // namespace
}  // namespace tarnwell::desktop
