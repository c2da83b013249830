// A sheet of 20,000 rows and 16 columns and a list of as many names. Filling and sorting are
// measured against the same work on bare texts, a key against one frame of the screen. Runs where
// QT_QPA_PLATFORM says, "offscreen" if nothing does.

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/pictures.h"
#include "held_memory.h"
#include "idle_world.h"
#include "ratio_table.h"
#include "windows.h"

namespace tarnwell::bench {
namespace {

constexpr int kRows = 20000;
constexpr int kColumns = 16;
constexpr int kKeys = 300;
constexpr double kLongestInCore = 4;    // milliseconds
constexpr double kLongestPainted = 16;  // milliseconds, a frame of the screen
constexpr double kMostBytes = 100;      // a cell, beyond its text

using Texts = std::vector<std::vector<std::string>>;

Texts MakeTexts() {
  Texts texts;
  for (int row = 0; row < kRows; ++row) {
    std::vector<std::string>& cells = texts.emplace_back();
    cells.push_back("Company " + std::to_string(row * 7919 % kRows) + " of the long name");
    for (int column = 1; column < kColumns; ++column) {
      cells.push_back(std::to_string(row * column % 1000) + ".50");
    }
  }
  return texts;
}

double TextBytes(const Texts& texts) {
  double bytes = 0;
  for (const auto& row : texts) {
    for (const std::string& text : row) bytes += static_cast<double>(text.size());
  }
  return bytes;
}

class Sheet {
 public:
  explicit Sheet(forms::Container& parent) : grid(parent, "Grid1", "Sheet") {
    std::vector<forms::GridColumn> columns;
    for (int i = 0; i < kColumns; ++i) {
      columns.push_back({.title = "Column", .share = 0.06, .editable = true, .numeric = i > 0});
    }
    grid.SetColumns(std::move(columns));
  }
  void Fill(const Texts& texts) {
    const forms::Grid::Batch batch(grid);
    grid.SetRows(1);
    grid.SetRows(kRows + 1);
    for (int row = 0; row < kRows; ++row) {
      for (int column = 0; column < kColumns; ++column) {
        grid.SetText(row + 1, column,
                     texts[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
      }
    }
  }

  forms::Grid grid;
};

std::vector<double> Repeated(int times, const std::function<void(int)>& work) {
  std::vector<double> taken;
  for (int i = 0; i < times; ++i) taken.push_back(Milliseconds([&] { work(i); }));
  return taken;
}

void Press(QWidget* widget, int key) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(widget, &event);
  QApplication::processEvents();
}

bool MeasureMemory(forms::Form& form, const Texts& texts) {
  const auto before = static_cast<double>(HeldMemory());
  Sheet sheet(form);
  sheet.Fill(texts);
  const double beyond = static_cast<double>(HeldMemory()) - before - TextBytes(texts);
  return TellWorst("Memory of a cell beyond its text", {beyond / kRows / kColumns}, kMostBytes,
                   "bytes");
}

bool MeasureCore(Sheet& sheet) {
  const auto keys = Repeated(kKeys, [&](int i) { sheet.grid.SelectCell(i % 100 + 1, i % 16); });
  const auto edits =
      Repeated(kKeys, [&](int i) { sheet.grid.EditCell(i % 100 + 1, 3, std::to_string(i)); });
  const bool keys_are_quick = TellWorst("An arrow key, in the core", keys, kLongestInCore);
  return TellWorst("An edit, in the core", edits, kLongestInCore) && keys_are_quick;
}

bool MeasurePainted(Sheet& sheet) {
  desktop::PictureStore pictures{[](std::string_view) { return QByteArray(); }};
  const std::unique_ptr<QWidget> widget(desktop::Widget(sheet.grid, pictures));
  widget->resize(1000, 700);
  widget->show();
  sheet.grid.SelectCell(kRows / 2, 1);
  QApplication::processEvents();
  constexpr int kArrows[] = {Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Down};
  const auto keys = Repeated(kKeys, [&](int i) { Press(widget.get(), kArrows[i % 5]); });
  const auto edits = Repeated(kKeys, [&](int i) {
    sheet.grid.EditCell(sheet.grid.current().row, 3, std::to_string(i));
    QApplication::processEvents();
  });
  const bool keys_are_quick = TellWorst("An arrow key, painted", keys, kLongestPainted);
  return TellWorst("An edit, painted", edits, kLongestPainted) && keys_are_quick;
}

bool MeasureList(forms::Form& form) {
  std::vector<std::string> names;
  for (int i = 0; i < kRows; ++i) names.push_back("Company " + std::to_string(i) + " of the name");
  forms::ListBox list(form, "List1", "Names");
  forms::ComboBox combo(form, "Combo1", "Names");
  const std::unique_ptr<QWidget> list_widget(desktop::Widget(list));
  const std::unique_ptr<QWidget> combo_widget(desktop::Widget(combo));
  for (QWidget* widget : {list_widget.get(), combo_widget.get()}) widget->show();
  QApplication::processEvents();
  const auto refill = [&](auto& control) {
    control.SetItems({"None"});
    QApplication::processEvents();
    return Milliseconds([&] {
      control.SetItems(names);
      QApplication::processEvents();
    });
  };
  std::vector<double> fills;
  std::vector<double> combo_fills;
  for (int i = 0; i < 9; ++i) {
    fills.push_back(refill(list));
    combo_fills.push_back(refill(combo));
  }
  const auto one = [&](auto& control) {
    return Repeated(20, [&](int i) {
      control.InsertItem(i * 100, "One more");
      control.RemoveItem(i * 200 + 1);
      QApplication::processEvents();
    });
  };
  const bool are_met[] = {TellWorst("A list of 20,000 filled and painted", fills, 50),
                          TellWorst("A combo box of 20,000 filled and painted", combo_fills, 50),
                          TellWorst("One item in and one out of that list", one(list), 4),
                          TellWorst("One item in and one out of that combo box", one(combo), 4)};
  return std::ranges::all_of(are_met, [](bool is_met) { return is_met; });
}

bool MeasureFillingAndSorting(Sheet& sheet, const Texts& texts) {
  RatioTable table;
  table.Measure(
      "Fill 20,000 x 16", 3, 9, [&] { sheet.Fill(texts); },
      [&, copy = Texts()]() mutable { copy = Texts(texts); });
  const auto sort_bare = [&](std::size_t column) {
    return [&texts, column] {
      Texts copy(texts);
      std::ranges::stable_sort(copy, {}, [column](const auto& row) { return row[column]; });
    };
  };
  table.Measure(
      "Sort 20,000 rows by text", 3, 5, [&] { sheet.grid.Sort(0, false); }, sort_bare(0));
  table.Measure(
      "Sort 20,000 rows by number", 3, 5, [&] { sheet.grid.Sort(3, true); }, sort_bare(3));
  return table.Print();
}

int Run(const std::string& parent) {
  const BenchFolder disk(parent);
  storage::ProgramFolder folder(storage::RealFileSystem(), disk.path());
  IdleWorld<> world(folder);
  forms::Form& form = world.ShowBlank();
  const Texts texts = MakeTexts();
  bool is_good = MeasureMemory(form, texts);
  Sheet sheet(form);
  sheet.Fill(texts);
  is_good = MeasureCore(sheet) && is_good;
  is_good = MeasurePainted(sheet) && is_good;
  is_good = MeasureList(form) && is_good;
  return MeasureFillingAndSorting(sheet, texts) && is_good ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::RunInWindows(count, arguments, tarnwell::bench::Run);
}
