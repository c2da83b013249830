// Grids, lists, page previews and coloured fields, used by keys and by the mouse.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include "desktop/sample_form.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/pictures.h"

namespace tarnwell::desktop {
namespace {

using ::testing::ElementsAre;

// A picture of one colour stands for every file.
QByteArray RedPicture() {
  QImage image(4, 4, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, "PNG");
  return bytes;
}

class DataWidgets : public ::testing::Test {
 protected:
  template <typename WidgetClass>
  WidgetClass* Show(QWidget* widget) {
    widget_.reset(widget);
    widget->resize(400, 300);
    widget->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(widget));
    return qobject_cast<WidgetClass*>(widget);
  }
  QColor PixelAt(int x, int y) { return widget_->grab().toImage().pixelColor(x, y); }

  testing::SampleWorld world_;
  testing::SampleForm& form_ = world_.Show();
  PictureStore pictures_{[](std::string_view) { return RedPicture(); }};
  std::unique_ptr<QWidget> widget_;
};

TEST_F(DataWidgets, AGridShowsItsCellsInColumnsOfTheirShares) {
  forms::Grid grid(form_, "VSGd1", "Month");
  grid.SetColumns({{"Day", 0.25}, {"Text", 0.5, forms::GridAlign::kRight}, {"Rest", 0.25}});
  grid.SetRows(2);
  grid.SetText(1, 1, "Caf\xE9");
  auto* table = Show<QTableView>(Widget(grid, pictures_));
  const QAbstractItemModel& model = *table->model();
  EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "Text");
  EXPECT_EQ(model.index(0, 1).data().toString(), QStringLiteral("Café"));
  const int width = table->viewport()->width();
  EXPECT_EQ(table->columnWidth(0), width / 4);
  EXPECT_EQ(table->columnWidth(1), width / 2);
  grid.SetRows(5);
  EXPECT_EQ(model.rowCount(), 4);
  grid.SetLook({forms::kPureBlue, {}});
  EXPECT_EQ(PixelAt(200, 250), QColor(Qt::blue));
  grid.SetLook({std::nullopt, "WP1.jpg"});
  EXPECT_EQ(PixelAt(200, 250), QColor(Qt::red));
}

TEST_F(DataWidgets, AGridIsWalkedAndEditedWhereItsColumnsAllow) {
  forms::Grid grid(form_, "VSGd1", "Month");
  grid.SetColumns({{"Fixed"}, {"Free", 0.3, forms::GridAlign::kLeft, true, false, 4}, {"Dead"}}, 1);
  grid.SetRows(4);
  std::vector<int> selected;
  grid.on_select = [&] { selected.push_back(grid.current().row * 10 + grid.current().column); };
  auto* table = Show<QTableView>(Widget(grid, pictures_));
  const auto click = [&](int row, int column) {
    const QPoint place = table->visualRect(table->model()->index(row - 1, column)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
  };
  click(1, 1);
  click(2, 0);
  QTest::keyClick(table, Qt::Key_Down);
  EXPECT_THAT(selected, ElementsAre(11, 21));
  QTest::keyClicks(table, "1");
  ASSERT_TRUE(table->viewport()->findChild<QLineEdit*>());
  QTest::keyClicks(table->viewport()->findChild<QLineEdit*>(), "2345");
  QTest::keyClick(table->viewport()->findChild<QLineEdit*>(), Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return grid.text(2, 1) == "1234"; }, 1000));
  click(2, 2);
  QTest::keyClicks(table, "x");
  EXPECT_EQ(grid.text(2, 2), "");
  grid.SetCurrent({1, 1});
  EXPECT_EQ(table->currentIndex().row(), 0);
  EXPECT_THAT(selected, ElementsAre(11, 21, 22));
}

TEST_F(DataWidgets, AListIsPickedFromByAClickAndOpenedByEnter) {
  forms::ListBox box(form_, "Dir1", "Folders");
  box.SetItems({"..", "Caf\xE9"});
  std::string picked;
  std::string opened;
  box.on_pick = [&] { picked += box.text() + "."; };
  box.on_open = [&] {
    opened = box.text();
    box.SetItems({"Below"});
  };
  auto* list = Show<QListWidget>(Widget(box));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualItemRect(list->item(0)).center());
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(picked, "...Caf\xE9.");
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(opened, "Caf\xE9");
  EXPECT_EQ(list->count(), 1);
  EXPECT_EQ(list->currentRow(), -1);
}

TEST_F(DataWidgets, APreviewShowsItsPagesAndTurnsThem) {
  forms::PagePreview preview(form_, "VSP1", "Print preview");
  forms::Document document;
  document.setup.landscape = true;
  document.pages = {{forms::PlacedBox{0, 0, 15840, 12240, std::nullopt, forms::kPureBlue}},
                    {forms::PlacedPicture{0, 0, 15840, 12240, "WP1.jpg"}},
                    {}};
  preview.SetDocument(&document);
  preview.SetZoom(forms::Zoom::kWholePage);
  auto* view = Show<QAbstractScrollArea>(Widget(preview, pictures_));
  EXPECT_EQ(PixelAt(200, 100), QColor(Qt::blue));
  EXPECT_FALSE(view->verticalScrollBar()->maximum());
  QTest::keyClick(view, Qt::Key_PageDown);
  EXPECT_EQ(PixelAt(200, 100), QColor(Qt::red));
  QTest::mouseClick(view->findChildren<QToolButton*>().at(1), Qt::LeftButton);
  EXPECT_EQ(PixelAt(200, 100), QColor(Qt::white));
  EXPECT_EQ(view->findChild<QLabel*>()->text(), "Page 3 of 3");
  QTest::keyClick(view, Qt::Key_PageDown);
  EXPECT_EQ(preview.page(), 2);
  QTest::keyClick(view, Qt::Key_Home);
  EXPECT_EQ(preview.page(), 0);
  view->resize(900, 300);
  EXPECT_EQ(view->findChild<QLabel*>()->text(), "Pages 1 and 2 of 3");
  EXPECT_EQ(PixelAt(300, 100), QColor(Qt::blue));
  EXPECT_EQ(PixelAt(600, 100), QColor(Qt::red));
  QTest::keyClick(view, Qt::Key_PageDown);
  EXPECT_EQ(preview.page(), 2);
  preview.SetZoom(forms::Zoom::kEnlarged);
  EXPECT_EQ(view->findChild<QLabel*>()->text(), "Page 3 of 3");
  preview.SetDocument(nullptr);
  EXPECT_EQ(view->findChild<QLabel*>()->text(), "No pages");
}

TEST_F(DataWidgets, AFieldShowsItsTextInItsColour) {
  form_.city.SetText("MMMM");
  auto* edit = Show<QLineEdit>(Widget(form_.city));
  const auto has_red = [&] {
    const QImage image = edit->grab().toImage();
    for (int x = 0; x < image.width(); ++x) {
      const QColor color = image.pixelColor(x, image.height() / 2);
      if (color.red() > 200 && color.green() < 100) return true;
    }
    return false;
  };
  EXPECT_FALSE(has_red());
  form_.city.SetColor(0x0000FF);
  EXPECT_TRUE(has_red());
  form_.city.SetColor(std::nullopt);
  EXPECT_FALSE(has_red());
}

}  // namespace
}  // namespace tarnwell::desktop
