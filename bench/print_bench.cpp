// A report of 5,000 rows laid out by our page engine and painted into a PDF file, against Qt's own
// text document printing the same text. Runs where QT_QPA_PLATFORM says, "offscreen" if nothing
// does.

#include <QApplication>
#include <QFileInfo>
#include <QPdfWriter>
#include <QTextDocument>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "desktop/services/page_output.h"
#include "desktop/widgets/page_fonts.h"
#include "desktop/widgets/text.h"
#include "print/table.h"
#include "ratio_table.h"

namespace tarnwell::bench {
namespace {

constexpr int kRows = 5000;
constexpr qint64 kLeastBytes = 50'000;  // of a PDF with that many rows

std::vector<std::vector<print::Cell>> MakeRows() {
  std::vector<std::vector<print::Cell>> rows;
  for (int row = 1; row <= kRows; ++row) {
    const std::string number = std::to_string(row);
    rows.push_back({number, "9:30 AM", "Call the office about invoice " + number + ", caf\xE9"});
  }
  return rows;
}

QString AsPlainText(const std::vector<std::vector<print::Cell>>& rows) {
  QString text;
  for (const auto& row : rows) {
    for (const print::Cell& cell : row) text += desktop::FromCore(cell.text) + '\t';
    text += '\n';
  }
  return text;
}

void PrintOurs(const std::vector<std::vector<print::Cell>>& rows, const QString& file) {
  desktop::PageMetrics metrics;
  print::PageEngine engine(metrics);
  engine.Start({}, {});
  const auto widths = print::Shares(engine.ColumnWidth(), {0.156, 0.2, 0.64});
  print::Table table(engine, {{"Day", widths[0]}, {"Time", widths[1]}, {"Activity", widths[2]}},
                     print::TableLines::kNone);
  for (const auto& row : rows) table.Row(row);
  const desktop::PictureStore no_pictures([](std::string_view) { return QByteArray(); });
  Check(desktop::WritePdf(engine.document(), no_pictures, file), "write a PDF");
}

void PrintBare(const QString& text, const QString& file) {
  QPdfWriter writer(file);
  writer.setPageSize(QPageSize(QPageSize::Letter));
  QTextDocument document;
  document.setDefaultFont(QFont(QStringLiteral("Times New Roman"), 10));
  document.setPlainText(text);
  document.print(&writer);
}

int Run(const std::string& parent) {
  const BenchFolder folder(parent);
  const QString ours = QString::fromStdString(folder.path()) + "/ours.pdf";
  const QString bare = QString::fromStdString(folder.path()) + "/bare.pdf";
  const auto rows = MakeRows();
  const QString text = AsPlainText(rows);
  RatioTable table;
  table.Measure(
      "Report of 5,000 rows into a PDF", 1, 9, [&] { PrintOurs(rows, ours); },
      [&] { PrintBare(text, bare); });
  for (const QString& file : {ours, bare}) {
    Check(QFileInfo(file).size() > kLeastBytes, "a whole PDF");
  }
  return table.Print() ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(count, arguments);
  return tarnwell::bench::Run(count > 1 ? arguments[1] : ".");
}
