#include "desktop/widgets/rich_text_visible.h"

#include <gtest/gtest.h>

#include <QTextDocument>
#include <QTextTable>
#include <algorithm>

namespace tarnwell::desktop {
namespace {

constexpr double kLine = 20;
constexpr double kTop = 4005;
constexpr double kBottom = 4505;

// Another layout, and how often it was asked for a block.
class CountingLayout : public QAbstractTextDocumentLayout {
 public:
  explicit CountingLayout(QTextDocument& document)
      : QAbstractTextDocumentLayout(&document), real_(*document.documentLayout()) {}

  QRectF blockBoundingRect(const QTextBlock& block) const override {
    ++asked;
    return real_.blockBoundingRect(block);
  }
  void draw(QPainter*, const PaintContext&) override {}
  int hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const override {
    return real_.hitTest(point, accuracy);
  }
  int pageCount() const override { return 1; }
  QSizeF documentSize() const override { return real_.documentSize(); }
  QRectF frameBoundingRect(QTextFrame* frame) const override {
    return real_.frameBoundingRect(frame);
  }

  mutable int asked = 0;

 protected:
  void documentChanged(int, int, int) override {}

 private:
  QAbstractTextDocumentLayout& real_;
};

struct Case {
  const char* what;
  int rows;
  int columns;
  int lines;  // in each cell
  int behind;
};

void Write(int lines, QTextCursor cursor) {
  QTextBlockFormat line;
  line.setLineHeight(kLine, QTextBlockFormat::FixedHeight);
  cursor.setBlockFormat(line);
  for (int i = 1; i < lines; ++i) cursor.insertBlock();
}

void Make(const Case& c, QTextDocument& document) {
  document.setTextWidth(600);
  QTextCursor cursor(&document);
  if (c.rows > 0) {
    const QTextTable* const table = cursor.insertTable(c.rows, c.columns);
    for (int i = 0; i < c.rows * c.columns; ++i) {
      const QTextTableCell cell = table->cellAt(i / c.columns, i % c.columns);
      Write(c.lines, cell.firstCursorPosition());
    }
    cursor.movePosition(QTextCursor::End);
  }
  Write(c.behind, cursor);
}

TEST(VisibleBlocks, AreFoundWithoutALookAtTheRest) {
  const Case cases[] = {{"lines", 0, 0, 0, 2000},
                        {"a long table", 1000, 6, 1, 1},
                        {"a table and lines", 205, 3, 1, 2000},
                        {"a long cell", 1, 3, 2000, 1}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    QTextDocument document;
    Make(c, document);
    const auto& real = *document.documentLayout();
    ASSERT_GT(real.documentSize().height(), 2 * kBottom);  // lays all of it out
    const CountingLayout layout(document);
    QTextCursor first(&document);
    first.setPosition(layout.hitTest({0, kTop}, Qt::FuzzyHit));
    std::size_t seen = 0;
    const std::vector<QTextBlock> blocks = BlocksBetween(kTop, kBottom, first, layout);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
      const QRectF place = real.blockBoundingRect(block);
      if (place.bottom() <= kTop || place.top() >= kBottom) continue;
      ++seen;
      EXPECT_NE(std::ranges::find(blocks, block), blocks.end()) << block.blockNumber();
    }
    EXPECT_GE(seen, 20u);
    EXPECT_LE(blocks.size(), seen + 12);
    EXPECT_LE(layout.asked, static_cast<int>(2 * seen) + 60);
  }
}

}  // namespace
}  // namespace tarnwell::desktop
