// Lists, page previews and coloured fields, used by keys and by the mouse.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include "desktop/shown_widget.h"

namespace tarnwell::desktop {
namespace {

using DataWidgets = ShownWidget;

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
  auto* list = Show<QListView>(Widget(box));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualRect(list->model()->index(0, 0)).center());
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(picked, "...Caf\xE9.");
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(opened, "Caf\xE9");
  EXPECT_EQ(list->model()->rowCount(), 1);
  EXPECT_FALSE(list->currentIndex().isValid());
}

TEST_F(DataWidgets, ALongListFollowsOneItemAndScrollsToTheEndOfItsWidest) {
  forms::ListBox box(form_, "List1", "Names");
  std::vector<std::string> names;
  for (int i = 0; i < 20000; ++i) names.push_back("Name " + std::to_string(i));
  box.SetItems(names);
  auto* list = Show<QListView>(Widget(box));
  int resets = 0;
  QObject::connect(list->model(), &QAbstractItemModel::modelReset, list, [&] { ++resets; });
  box.Select(10000);
  const int place = list->verticalScrollBar()->value();
  EXPECT_GT(place, 0);
  box.InsertItem(0, std::string(200, 'W'));
  box.RemoveItem(2);
  box.InsertItem(20000, "Last");
  EXPECT_EQ(list->model()->index(20000, 0).data().toString(), "Last");
  EXPECT_EQ(list->currentIndex().data().toString(), "Name 10000");
  EXPECT_TRUE(QTest::qWaitFor([&] { return list->horizontalScrollBar()->maximum() > 1000; }));
  EXPECT_EQ(resets, 0);
}

TEST_F(DataWidgets, ALongComboBoxKeepsWhatIsChosenWhenOneItemComes) {
  form_.country.SetItems(std::vector<std::string>(20000, "Name"));
  auto* box = Show<QComboBox>(Widget(form_.country));
  form_.country.Select(3);
  form_.country.InsertItem(0, "First");
  EXPECT_EQ(box->currentIndex(), 4);
  form_.country.RemoveItem(4);
  EXPECT_EQ(box->currentIndex(), -1);
  EXPECT_EQ(box->count(), 20000);
}

TEST_F(DataWidgets, APreviewShowsItsPagesAndTurnsThem) {
  forms::PagePreview preview(form_, "VSP1", "Print preview");
  forms::Document document;
  document.setup.landscape = true;
  document.pages = {{forms::PlacedBox{0, 0, 15840, 12240, std::nullopt, forms::kPureBlue}},
                    {forms::PlacedBox{0, 0, 15840, 12240, std::nullopt, 0x0000FF}},
                    {}};
  preview.SetDocument(&document);
  preview.SetZoom(forms::Zoom::kWholePage);
  auto* view = Show<QAbstractScrollArea>(Widget(preview));
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
