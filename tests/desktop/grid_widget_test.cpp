// Grids, walked, edited and scrolled by keys and by the mouse.

#include <gmock/gmock.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPaintEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include "desktop/shown_widget.h"
#include "desktop/widgets/grid_view.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/menus.h"

namespace tarnwell::desktop {
namespace {

using ::testing::ElementsAre;

class GridWidget : public ShownWidget {
 protected:
  // A sheet of five rows with a fixed column, two that are edited and one that isn't.
  void SetUp() override {
    grid.SetColumns({{"No"},
                     {.title = "Item", .share = 0.3, .editable = true, .max_length = 4},
                     {.title = "Jan", .editable = true, .choices = {"10", "Oil"}},
                     {"Used"}},
                    1);
    grid.SetRows(6);
    grid.on_select = [this] {
      selected.push_back(grid.current().row * 10 + grid.current().column);
    };
  }
  void ShowGrid() { table = Show<QTableView>(Widget(grid, pictures_)); }
  QPoint PlaceOf(int row, int column) {
    return table->visualRect(table->model()->index(row - 1, column)).center();
  }
  void Click(int row, int column, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, keys, PlaceOf(row, column));
  }
  void Press(int key, Qt::KeyboardModifiers keys = {}) {
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), keys);
  }
  void Type(const char* text) {
    for (; *text; ++text) QTest::keyClick(QApplication::focusWidget(), *text);
  }
  // Those before it may wait to be deleted.
  QLineEdit* Editor() {
    const auto editors = table->viewport()->findChildren<QLineEdit*>();
    return editors.isEmpty() ? nullptr : editors.last();
  }
  bool IsEditing() { return Editor() && QApplication::focusWidget() != table; }
  QString Shown(int row, int column) {
    return table->model()->index(row - 1, column).data().toString();
  }

  forms::Grid grid{form_, "VSGd1", "Month"};
  QTableView* table = nullptr;
  std::vector<int> selected;
};

TEST_F(GridWidget, AGridShowsItsCellsInColumnsOfTheirShares) {
  grid.SetColumns({{"Day", 0.25}, {"Text", 0.5, forms::GridAlign::kRight}, {"Rest", 0.25}});
  grid.SetRows(2);
  grid.SetText(1, 1, "Caf\xE9");
  ShowGrid();
  EXPECT_EQ(table->model()->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "Text");
  EXPECT_EQ(Shown(1, 1), QStringLiteral("Café"));
  const int width = table->viewport()->width();
  EXPECT_EQ(table->columnWidth(0), width / 4);
  EXPECT_EQ(table->columnWidth(1), width / 2);
  grid.SetRows(5);
  EXPECT_EQ(table->model()->rowCount(), 4);
  grid.SetLook({forms::kPureBlue, {}});
  EXPECT_EQ(PixelAt(200, 250), QColor(Qt::blue));
  grid.SetLook({std::nullopt, "WP1.jpg"});
  EXPECT_EQ(PixelAt(200, 250), QColor(Qt::red));
}

TEST_F(GridWidget, AColumnThatWasDraggedKeepsItsWidthAndTheOthersTheirShares) {
  ShowGrid();
  QWidget* header = table->horizontalHeader()->viewport();
  const int edge = table->columnViewportPosition(2) - 1;
  QTest::mousePress(header, Qt::LeftButton, {}, {edge, 5});
  QTest::mouseMove(header, {edge + 20, 5});
  QTest::mouseMove(header, {edge + 40, 5});
  QTest::mouseRelease(header, Qt::LeftButton, {}, {edge + 40, 5});
  const int dragged = table->columnWidth(1);
  EXPECT_GT(dragged, table->viewport()->width() * 3 / 10 + 20);
  const int other = table->columnWidth(2);
  grid.SetText(1, 1, std::string(100, 'W'));
  grid.SetText(1, 2, std::string(100, 'W'));
  grid.SetTitle(2, "February");
  EXPECT_EQ(table->columnWidth(2), other);
  table->resize(800, 300);
  EXPECT_EQ(table->columnWidth(1), dragged);
  EXPECT_EQ(table->columnWidth(2), table->viewport()->width() / 10);
  grid.SetColumns({{"Day", 0.25}, {"Text", 0.5}, {"Rest", 0.25}});
  EXPECT_EQ(table->columnWidth(1), table->viewport()->width() / 2);
  grid.SetColumns({{"No"}, {"Item"}, {"Jan"}, {"Used"}});
  EXPECT_EQ(table->columnWidth(1), dragged) << "as many columns as when it was dragged";
}

TEST_F(GridWidget, AGridIsWalkedAndEditedWhereItsColumnsAllow) {
  ShowGrid();
  Press(Qt::Key_Down);
  EXPECT_EQ(grid.current(), (forms::GridPlace{1, 1})) << "a key goes in, past the fixed column";
  Click(2, 0);
  Press(Qt::Key_Down);
  EXPECT_THAT(selected, ElementsAre(11, 21));
  Type("12345");
  EXPECT_EQ(grid.typed(), "1234");
  EXPECT_EQ(Shown(2, 1), "");
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(2, 1), "1234");
  EXPECT_EQ(QApplication::focusWidget(), table);
  Type("x");
  Press(Qt::Key_Escape);
  EXPECT_EQ(grid.text(2, 1), "1234");
  Click(2, 3);
  Type("x");
  EXPECT_FALSE(grid.typed());
  grid.SetCurrent({1, 1});
  EXPECT_EQ(table->currentIndex().row(), 0);
  EXPECT_THAT(selected, ElementsAre(11, 21, 23));
}

TEST_F(GridWidget, AScreenReaderHearsACellWithItsRowAndColumn) {
  grid.SetText(2, 0, "Rent");
  grid.SetText(2, 1, "300");
  ShowGrid();
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(table);
  ASSERT_TRUE(spoken && spoken->tableInterface());
  const auto name_of = [&](int row, int column) {
    return spoken->tableInterface()->cellAt(row, column)->text(QAccessible::Name);
  };
  EXPECT_EQ(name_of(1, 1), QStringLiteral("Rent, Item: 300"));
  EXPECT_EQ(name_of(1, 2), QStringLiteral("Rent, Jan: empty"));
  EXPECT_EQ(name_of(0, 1), QStringLiteral("Row 1, Item: empty"));
}

TEST_F(GridWidget, TabGoesOnEditingInTheNextCellThatCanBe) {
  ShowGrid();
  Click(1, 1);
  Type("a");
  Press(Qt::Key_Tab);
  EXPECT_EQ(grid.current(), (forms::GridPlace{1, 2}));
  ASSERT_TRUE(IsEditing());
  Type("b");
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  ASSERT_TRUE(IsEditing());
  EXPECT_EQ(Editor()->text(), "a");
  Press(Qt::Key_Down);
  EXPECT_FALSE(IsEditing());
  EXPECT_EQ(grid.current(), (forms::GridPlace{2, 1}));
  EXPECT_EQ(Shown(1, 2), "b");
}

TEST_F(GridWidget, ARefusedEditStaysOpenWhateverThePersonDoes) {
  int asked = 0;
  grid.on_validate = [&](int, int, std::string&) {
    ++asked;
    return false;
  };
  auto* button = new QPushButton(QStringLiteral("Save"));
  int saved = 0;
  QObject::connect(button, &QPushButton::clicked, [&] { ++saved; });
  auto* view = Widget(grid, pictures_);
  table = qobject_cast<QTableView*>(view);
  Show<QWidget>(Column({view, button}));
  Click(2, 1);
  Type("bad");
  selected.clear();
  const std::pair<const char*, std::function<void()>> kWays[] = {
      {"Tab", [&] { Press(Qt::Key_Tab); }},
      {"Backtab", [&] { Press(Qt::Key_Backtab, Qt::ShiftModifier); }},
      {"Enter", [&] { Press(Qt::Key_Return); }},
      {"Up", [&] { Press(Qt::Key_Up); }},
      {"Down", [&] { Press(Qt::Key_Down); }},
      {"Page Down", [&] { Press(Qt::Key_PageDown); }},
      {"another cell", [&] { Click(4, 2); }},
      {"a fixed cell", [&] { Click(4, 0); }},
      {"a button", [&] { QTest::mouseClick(button, Qt::LeftButton); }},
      {"a command", [&] { EXPECT_FALSE(EndEditUnderKeys()); }},
  };
  for (const auto& [name, go] : kWays) {
    asked = 0;
    go();
    EXPECT_EQ(asked, 1) << name;
    EXPECT_EQ(grid.current(), (forms::GridPlace{2, 1})) << name;
    EXPECT_EQ(table->currentIndex(), table->model()->index(1, 1)) << name;
    EXPECT_TRUE(IsEditing()) << name;
    EXPECT_EQ(Editor()->text(), "bad") << name;
    QApplication::processEvents();
  }
  EXPECT_EQ(saved, 0);
  EXPECT_TRUE(selected.empty());
  grid.on_validate = nullptr;
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(saved, 1);
  EXPECT_EQ(grid.text(2, 1), "bad");
}

TEST_F(GridWidget, AFormPutsTheCursorBackFromAnEdit) {
  grid.on_edit = [this](int row, int column) {
    grid.SetText(row, column, "");
    grid.SetCurrent({row, column});
  };
  ShowGrid();
  const std::function<void()> kWays[] = {[&] { Press(Qt::Key_Tab); }, [&] { Press(Qt::Key_Down); },
                                         [&] { Click(4, 2); }};
  for (const auto& go : kWays) {
    Click(2, 1);
    Type("bad");
    go();
    EXPECT_EQ(table->currentIndex(), table->model()->index(1, 1));
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(grid.text(2, 1), "");
  }
}

TEST_F(GridWidget, ACommandFindsInTheGridWhatWasTyped) {
  std::string found;
  forms::MenuItem top("", "");
  forms::MenuItem& menu = top.AddSubmenu("mO", "&Options");
  menu.AddEntry("mOS", "&Save", [&] { found = grid.text(1, 1); });
  const auto shown = MakeMenu(menu);
  ShowGrid();
  Click(1, 1);
  Type("new");
  shown->actions().front()->trigger();
  EXPECT_EQ(found, "new");
}

TEST_F(GridWidget, ChoicesArePickedByKeysAndWhatIsTypedStaysAsTyped) {
  ShowGrid();
  Click(1, 2);
  Type("1");
  Press(Qt::Key_Return);
  EXPECT_EQ(grid.text(1, 2), "1") << "not made into a choice that begins so";
  Press(Qt::Key_F2);
  Type("o");
  EXPECT_EQ(Editor()->text(), "o") << "in place of what was there";
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  EXPECT_EQ(grid.text(1, 2), "Oil");
  grid.SetChoices(2, {"New"});
  Press(Qt::Key_F2);
  Press(Qt::Key_Down);
  Press(Qt::Key_Tab);
  EXPECT_EQ(grid.text(1, 2), "New");
}

TEST_F(GridWidget, AGridThatLeavesTheScreenAsksForNothing) {
  int asked = 0;
  grid.on_validate = [&](int, int, std::string&) {
    ++asked;
    return true;
  };
  ShowGrid();
  Click(1, 1);
  Type("a");
  ASSERT_TRUE(IsEditing());
  widget_.reset();
  EXPECT_EQ(asked, 0);
}

TEST_F(GridWidget, UndoAndRedoAreKeysOfTheGrid) {
  ShowGrid();
  Click(1, 1);
  Type("a");
  Press(Qt::Key_Return);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Shown(1, 1), "");
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Shown(1, 1), "a");
}

TEST_F(GridWidget, RowsAreMarkedByClicksAndByTheProgram) {
  grid.SetSelection(forms::GridSelection::kRows);
  ShowGrid();
  Click(1, 1);
  Click(3, 1, Qt::ControlModifier);
  EXPECT_THAT(grid.selected_rows(), ElementsAre(1, 3));
  Click(5, 1, Qt::ShiftModifier);
  EXPECT_THAT(grid.selected_rows(), ElementsAre(3, 4, 5));
  EXPECT_THAT(selected, ElementsAre(11, 31, 51));
  Press(Qt::Key_Up);
  EXPECT_THAT(grid.selected_rows(), ElementsAre(4));
  grid.SetSelectedRows({1, 2, 5});
  const auto is_marked = [&](int row) {
    return table->selectionModel()->isSelected(table->model()->index(row - 1, 3));
  };
  EXPECT_TRUE(is_marked(1) && is_marked(2) && !is_marked(3) && !is_marked(4) && is_marked(5));
  EXPECT_EQ(grid.current(), (forms::GridPlace{4, 1}));
}

TEST_F(GridWidget, ARowInHandAndASortedColumnAreSeen) {
  grid.on_heading = [this](int column) { grid.Sort(column, true); };
  ShowGrid();
  const QPoint place = table->viewport()->mapTo(table, QPoint(5, PlaceOf(4, 1).y()));
  const QColor before = PixelAt(place.x(), place.y());
  grid.SetHighlight(4);
  EXPECT_NE(PixelAt(place.x(), place.y()), before);
  grid.SetHighlight(0);
  EXPECT_EQ(PixelAt(place.x(), place.y()), before);
  QHeaderView* header = table->horizontalHeader();
  const int middle = header->sectionViewportPosition(2) + header->sectionSize(2) / 2;
  QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {middle, 5});
  EXPECT_TRUE(header->isSortIndicatorShown());
  EXPECT_EQ(header->sortIndicatorSection(), 2);
  EXPECT_EQ(header->sortIndicatorOrder(), Qt::DescendingOrder);
}

// Which part of a widget has been painted since.
class PaintedPart : public QObject {
 public:
  explicit PaintedPart(QWidget* widget) { widget->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) part += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion part;
};

TEST_F(GridWidget, OnlyWhatHasChangedIsPainted) {
  ShowGrid();
  Click(2, 1);
  const auto row_of = [&](int row) {
    const QRect cell = table->visualRect(table->model()->index(row - 1, 1));
    return QRegion(0, cell.top() - 2, table->viewport()->width(), cell.height() + 4);
  };
  const struct {
    const char* what;
    std::function<void()> change;
    QRegion most;
  } kCases[] = {
      {"a text", [&] { grid.SetText(4, 1, "x"); }, row_of(4)},
      {"a style",
       [&] {
         grid.SetStyle(4, 1, {0x0000FF, true});
       },
       row_of(4)},
      {"a key", [&] { Press(Qt::Key_Down); }, row_of(2) + row_of(3)},
      {"a row in hand", [&] { grid.SetHighlight(1); }, row_of(1)},
      {"a batch in a row",
       [&] {
         const forms::Grid::Batch batch(grid);
         for (int column = 0; column < 4; ++column) grid.SetText(5, column, "y");
       },
       row_of(5)},
  };
  for (const auto& [what, change, most] : kCases) {
    QApplication::processEvents();
    PaintedPart painted(table->viewport());
    change();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !painted.part.isEmpty(); })) << what;
    EXPECT_TRUE(painted.part.subtracted(most).isEmpty()) << what;
  }
}

TEST_F(GridWidget, HeldColumnsStayAtTheLeftWhenTheOthersAreScrolled) {
  std::vector<forms::GridColumn> columns = {{"No", 0.1}, {.title = "Item", .share = 0.2}};
  columns[1].editable = true;
  for (int i = 0; i < 8; ++i) columns.push_back({.title = "Month", .share = 0.3, .editable = true});
  grid.SetColumns(columns, 1, 2);
  grid.SetRows(4);
  ShowGrid();
  grid.SetCurrent({1, 9});
  ASSERT_GT(table->horizontalScrollBar()->value(), 0);
  const QModelIndex item = table->model()->index(1, 1);
  const QRect place = table->visualRect(item);
  EXPECT_EQ(place.left(), table->columnWidth(0));
  EXPECT_EQ(table->indexAt(place.center()), item);
  grid.SetStyle(2, 1, {0x0000FF, true});
  grid.SetText(2, 1, "MMM");
  const QImage image = table->viewport()->grab().toImage();
  bool has_red = false;
  for (int x = place.left(); x <= place.right(); ++x) {
    const QColor color = image.pixelColor(x, place.center().y());
    has_red = has_red || (color.red() > 200 && color.green() < 100);
  }
  EXPECT_TRUE(has_red);
  for (int i = 0; i < 6; ++i) Press(Qt::Key_Left);
  EXPECT_EQ(grid.current().column, 3);
  EXPECT_GE(table->visualRect(table->currentIndex()).left(), place.right());
  Click(2, 1);
  EXPECT_EQ(grid.current(), (forms::GridPlace{2, 1}));
  EXPECT_GT(table->horizontalScrollBar()->value(), 0) << "it was on show already";
}

}  // namespace
}  // namespace tarnwell::desktop
