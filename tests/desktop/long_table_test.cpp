#include <gtest/gtest.h>

#include <QTest>
#include <QTextBlock>
#include <QTextTable>

#include "desktop/sample_form.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/rich_text_view.h"
#include "richtext/rich_text_reader.h"

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

class LongTableTest : public ::testing::Test {
 protected:
  void SetUp() override {
    view_.resize(700, 500);
    view_.show();
    box_.SetDocument(richtext::ReadRichText(LongTable()));
    at_first_ = view_.document()->blockCount();
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return view_.document()->lastBlock().text() == QLatin1String("end"); }));
  }

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

}  // namespace
}  // namespace tarnwell::desktop
