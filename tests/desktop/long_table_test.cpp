#include <gtest/gtest.h>

#include <QTest>
#include <QTextBlock>
#include <QTextTable>

#include "desktop/sample_form.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/rich_text_view.h"
#include "richtext/rich_text_reader.h"
#include "richtext/selection.h"

namespace tarnwell::desktop {
namespace {

constexpr int kColumns = 5;
constexpr int kRows = 400;
constexpr int kCells = kRows * kColumns;
constexpr int kPart = static_cast<int>(kCellsOfPart);

// The number of each cell in it, and a line behind the table.
std::string LongTable() {
  std::string rtf = "{\\rtf1\\ansi\\pard ";
  for (int row = 0; row < kRows; ++row) {
    rtf += "\\trowd\\cellx1000\\cellx2000\\cellx3000\\cellx4000\\cellx5000\\pard\\intbl ";
    for (int i = 0; i < kColumns; ++i) rtf += std::to_string(row * kColumns + i) + "\\cell ";
    rtf += "\\row ";
  }
  return rtf + "\\pard end\\par}";
}

class PaintCounter : public QObject {
 public:
  int count = 0;

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
};

class LongTableTest : public ::testing::Test {
 protected:
  void SetUp() override {
    view_.resize(700, 500);
    view_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view_));
    view_.viewport()->installEventFilter(&paintings_);
    box_.SetDocument(richtext::ReadRichText(LongTable()));
    at_first_ = view_.document()->blockCount();
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return view_.document()->lastBlock().text() == QLatin1String("end"); }));
  }

  PaintCounter paintings_;
  testing::SampleWorld world_;
  testing::SampleForm& form_ = world_.Show();
  forms::RichTextBox box_{form_, "RichTextBox1", {.spoken_name = "Document"}};
  RichTextView view_{box_};
  forms::Subscription shown_ = box_.OnChanged([this] { view_.Show(); });
  int at_first_ = 0;
};

TEST_F(LongTableTest, ComesInPartsThatAreEachLaidOutAlone) {
  EXPECT_LE(at_first_, 2 * kPart + 4);
  for (QTextBlock block = view_.document()->begin(); block.isValid(); block = block.next()) {
    const QTextTable* const table = QTextCursor(block).currentTable();
    EXPECT_LE(table == nullptr ? 0 : table->rows() * table->columns(), kPart);
  }
  for (int i = 0; i <= kCells; i += 7) {
    box_.Select({{i, 0}, {i, 9}});
    EXPECT_EQ(view_.textCursor().selectedText().toStdString(), box_.ParagraphText(i)) << i;
  }
}

TEST_F(LongTableTest, ComesWithoutPaintingWhatIsOnTheScreenEachTime) {
  EXPECT_LT(paintings_.count, kCells / kPart / 2);
}

TEST_F(LongTableTest, IsOneTableForTheKeys) {
  const int last = kPart - 1;  // cell of the first part
  const struct {
    const char* what;
    int from;
    int key;
    Qt::KeyboardModifiers modifiers;
    int to;
  } cases[] = {
      {"Tab", last, Qt::Key_Tab, {}, last + 1},
      {"back", last + 1, Qt::Key_Backtab, Qt::ShiftModifier, last},
      {"down", last - 2, Qt::Key_Down, {}, last - 2 + kColumns},
      {"up", last + 3, Qt::Key_Up, {}, last + 3 - kColumns},
  };
  for (const auto& c : cases) {
    box_.Select({{c.from, 0}, {c.from, 0}});
    QTest::keyClick(&view_, static_cast<Qt::Key>(c.key), c.modifiers);
    EXPECT_EQ(box_.selection().to.paragraph, c.to) << c.what;
  }
}

TEST_F(LongTableTest, ShowsWhatIsTypedBehindAParagraphThatCame) {
  box_.Select({{3, 0}, {3, 0}});
  box_.Type("a\nb");
  box_.Select({{kCells - 1, 0}, {kCells - 1, 9}});
  EXPECT_EQ(view_.textCursor().selectedText().toStdString(), std::to_string(kCells - 2));
}

// A selection over a part's edge is shown and edited as the whole table.
TEST_F(LongTableTest, WhatIsShownAsSelectedIsWhatIsEdited) {
  const struct {
    int from;
    int to;
    bool is_all;
  } cases[] = {
      {3, 8, false},
      {kPart - 3, kPart + 3, true},
      {kPart + 3, kPart - 3, true},
      {kPart + 7, 3 * kPart + 3, true},
      {kCells - 3, kCells, true},
  };
  std::vector<int> places(kCells + 1);  // of the cells, and of the line behind them
  for (QTextBlock block = view_.document()->begin(); block.text() != QLatin1String("end");
       block = block.next()) {
    const int cell = block.text().toInt();
    if (!block.text().isEmpty()) places[static_cast<std::size_t>(cell)] = block.position();
  }
  places.back() = view_.document()->lastBlock().position();
  const auto place = [&places](int cell) { return places[static_cast<std::size_t>(cell)]; };
  for (const auto& c : cases) {
    QTextCursor cursor(view_.document());
    cursor.setPosition(place(c.from));
    cursor.setPosition(place(c.to), QTextCursor::KeepAnchor);
    view_.setTextCursor(cursor);
    const auto edited = richtext::SelectedBy(box_.document(), box_.selection());
    EXPECT_EQ(edited.Holds({0, 0}) && edited.Holds({kCells - 1, 0}), c.is_all) << c.from;
    const QTextCursor shown = view_.textCursor();
    const bool shows_all =
        shown.selectionStart() <= place(0) && shown.selectionEnd() >= place(kCells - 1);
    EXPECT_EQ(shows_all, c.is_all) << c.from;
  }
}

TEST_F(LongTableTest, ALongChangeComesInSteps) {
  constexpr int kLines = 8000;
  const auto shown = [this] { return view_.document()->lastBlock().text().toStdString(); };
  const auto caret = [this] { return view_.textCursor().block().text().toStdString(); };
  box_.SetDocument({});
  std::string lines;
  for (int i = 0; i < kLines; ++i) lines += "line\n";
  box_.Type(lines + "end");
  EXPECT_LT(view_.document()->blockCount(), kLines);
  ASSERT_TRUE(QTest::qWaitFor([&] { return shown() == "end"; }));
  EXPECT_EQ(view_.document()->blockCount(), kLines + 1);
  EXPECT_EQ(caret(), "end");
  box_.Undo();
  EXPECT_EQ(view_.document()->blockCount(), 1);
  // Few paragraphs, but long ones.
  constexpr int kLetters = 600'000;
  box_.Type(std::string(kLetters, 'x'));
  EXPECT_LT(view_.document()->characterCount(), kLetters);
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return view_.document()->characterCount() > kLetters; }, 60'000));
}

}  // namespace
}  // namespace tarnwell::desktop
