// Charts on the screen and on paper.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsView>
#include <QStandardPaths>

#include "desktop/pdf_lines.h"
#include "desktop/services/page_output.h"
#include "desktop/shown_widget.h"
#include "desktop/widgets/chart_colors.h"
#include "desktop/widgets/chart_drawing.h"
#include "desktop/widgets/text.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

using forms::ChartKind;
using ::testing::Contains;
using ::testing::HasSubstr;
using testing::LinesOf;
using testing::LinesOfPdf;

// A few large amounts and many small ones, as companies have them, and one below zero.
forms::ChartPicture ManyItems(int items, ChartKind kind, bool horizontal) {
  forms::ChartPicture picture{{}, kind, horizontal, 3};
  for (int i = 1; i <= items; ++i) {
    picture.points.push_back({"Expense number " + std::to_string(i), 90000.0 / (i * i) + 20});
  }
  picture.points.push_back({"Balance", -1234, true});
  return picture;
}

struct Shape {
  ChartKind kind;
  bool horizontal;
};
const Shape kShapes[] = {{ChartKind::kBar, false},
                         {ChartKind::kBar, true},
                         {ChartKind::kStacked, false},
                         {ChartKind::kStacked, true},
                         {ChartKind::kPie, false}};

TEST(Chart, WordsNeverLieOverEachOtherAndTheOneInHandIsThere) {
  for (const int items : {1, 7, 50, 500}) {
    for (const auto& [kind, horizontal] : kShapes) {
      for (const QSizeF size : {QSizeF(240, 160), QSizeF(560, 420), QSizeF(1100, 400)}) {
        SCOPED_TRACE(::testing::Message() << items << " " << static_cast<int>(kind) << horizontal
                                          << " " << size.width());
        forms::ChartPicture picture = ManyItems(items, kind, horizontal);
        picture.highlight = std::min(items - 1, 3);
        ChartDrawing drawing(picture, size, QApplication::font());
        std::vector<QGraphicsSimpleTextItem*> words;
        bool has_hand = false;
        for (QGraphicsItem* item : drawing.scene().items()) {
          auto* word = dynamic_cast<QGraphicsSimpleTextItem*>(item);
          if (!word) continue;
          words.push_back(word);
          has_hand |= word->font().bold();
        }
        EXPECT_TRUE(has_hand);
        EXPECT_GE(words.size(), 2U);
        for (std::size_t i = 0; i < words.size(); ++i) {
          // Letters lean over their own width a little.
          const QRectF one = words[i]->sceneBoundingRect().adjusted(1, 1, -1, -1);
          EXPECT_TRUE(drawing.scene().sceneRect().contains(one)) << words[i]->text().toStdString();
          for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(one.intersects(words[j]->sceneBoundingRect()))
                << words[i]->text().toStdString() << " and " << words[j]->text().toStdString();
          }
        }
      }
    }
  }
}

class ShownChart : public ShownWidget {
 protected:
  // Where that colour is painted; far outside where it isn't.
  QPoint PlaceOf(const QColor& color) {
    const QImage image = widget_->grab().toImage();
    for (int y = 2; y < image.height() - 2; ++y) {
      for (int x = 2; x < image.width() - 2; ++x) {
        const bool is_inside = image.pixelColor(x + 2, y + 2) == color;
        if (image.pixelColor(x, y) == color && is_inside) return {x + 1, y + 1};
      }
    }
    return {-1, -1};
  }
};

TEST_F(ShownChart, APointIsClickedInEveryKind) {
  for (const auto& [kind, horizontal] : kShapes) {
    SCOPED_TRACE(static_cast<int>(kind));
    forms::Chart chart(form_, "Chart2D1", "Chart");
    chart.SetPoints({{"Rent", 500}, {"Wages", 300}, {"Balance", -200, true}});
    chart.SetKind(kind);
    chart.SetHorizontal(horizontal);
    int clicked = forms::ChartPicture::kNone;
    chart.on_point = [&](int point) { chart.SetHighlight(clicked = point); };
    auto* view = Show<QGraphicsView>(Widget(chart));
    for (const int point : {2, 0}) {
      const QPoint place = PlaceOf(ChartBrush(chart.picture(), point).color());
      ASSERT_GE(place.x(), 0) << point;
      QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                        view->viewport()->mapFrom(view, place));
      EXPECT_TRUE(QTest::qWaitFor([&] { return clicked == point; })) << point;
    }
    widget_.reset();
  }
}

TEST(Chart, IsPrintedInLinesAndLettersAndNotAsAPicture) {
  if (QStandardPaths::findExecutable("pdfimages").isEmpty()) GTEST_SKIP() << "no pdfimages";
  const testing::TemporaryFolder folder;
  const QString file = QString::fromStdString(folder.path()) + "/chart.pdf";
  for (const auto& [kind, horizontal] : kShapes) {
    forms::Document document;
    document.pages = {{forms::PlacedChart{
        518, 1210, 10512, 5976,
        std::make_shared<forms::ChartPicture>(ManyItems(5, kind, horizontal))}}};
    ASSERT_TRUE(WritePdf(document, file));
    EXPECT_THAT(LinesOfPdf(file), Contains(HasSubstr("Expense number 4")));
    EXPECT_EQ(LinesOf("pdfimages", {"-list", file}).size(), 2U);  // the list's own head
  }
}

}  // namespace
}  // namespace tarnwell::desktop
