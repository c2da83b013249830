// A report of 5,000 rows and a formatted document of 300 pages, laid out by our page engine and
// painted into PDF files, against Qt's own text document printing the same text. Also how much more
// memory a page takes in a report of four times as many. Runs where QT_QPA_PLATFORM says,
// "offscreen" if nothing does.

#include <QFileInfo>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <cstdio>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "desktop/services/page_output.h"
#include "desktop/widgets/page_fonts.h"
#include "desktop/widgets/text.h"
#include "held_memory.h"
#include "print/rich_text.h"
#include "print/table.h"
#include "ratio_table.h"
#include "windows.h"

namespace tarnwell::bench {
namespace {

constexpr int kRows = 5000;
constexpr qint64 kLeastBytes = 50'000;  // of a PDF with that many rows

std::vector<std::vector<print::Cell>> MakeRows(int count) {
  std::vector<std::vector<print::Cell>> rows;
  for (int row = 1; row <= count; ++row) {
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

void LayOutRows(const std::vector<std::vector<print::Cell>>& rows, print::PageEngine& engine) {
  engine.Start({}, {});
  const auto widths = print::Shares(engine.ColumnWidth(), {0.156, 0.2, 0.64});
  print::Table table(engine, {{"Day", widths[0]}, {"Time", widths[1]}, {"Activity", widths[2]}},
                     print::TableLines::kNone);
  for (const auto& row : rows) table.Row(row);
}

void PrintOurs(const std::vector<std::vector<print::Cell>>& rows, const QString& file) {
  desktop::PageMetrics metrics;
  print::PageEngine engine(metrics);
  LayOutRows(rows, engine);
  Check(desktop::WritePdf(engine.document(), file), "write a PDF");
}

void PrintBare(const QString& text, const QString& file) {
  QPdfWriter writer(file);
  writer.setPageSize(QPageSize(QPageSize::Letter));
  QTextDocument document;
  document.setDefaultFont(QFont(QStringLiteral("Times New Roman"), 10));
  document.setPlainText(text);
  document.print(&writer);
}

constexpr int kParagraphs = 4200;
constexpr int kLeastPages = 300;
constexpr forms::Margins kInch{1440, 1440, 1440, 1440};

// Paragraphs of three runs each, the middle one bold.
richtext::RichDocument MakeDocument() {
  richtext::RichDocument document;
  for (int i = 1; i <= kParagraphs; ++i) {
    richtext::Paragraph paragraph;
    paragraph.format.alignment = richtext::Alignment::kJustify;
    paragraph.format.space_after = 120;
    richtext::CharacterFormat plain;
    plain.font = "Times New Roman";
    richtext::CharacterFormat bold = plain;
    bold.bold = true;
    const std::string start = "Section " + std::to_string(i) + ". The employee agrees to follow ";
    const std::string rest =
        " on the use of what the company lends, keeps it in good order, reports what is lost "
        "or broken on the same day, and returns everything on the last day of work \u2013 "
        "unless both sides have put another day in writing.";
    paragraph.runs = {{plain, start}, {bold, "the equipment policy"}, {plain, rest}};
    document.blocks.emplace_back(std::move(paragraph));
  }
  return document;
}

void FillBare(const richtext::RichDocument& document, QTextDocument& bare) {
  QTextCursor cursor(&bare);
  QTextBlockFormat block;
  block.setAlignment(Qt::AlignJustify);
  block.setBottomMargin(6);
  for (const richtext::Block& one : document.blocks) {
    cursor.insertBlock(block);
    for (const richtext::Run& run : std::get<richtext::Paragraph>(one).runs) {
      QTextCharFormat format;
      format.setFont(QFont(QStringLiteral("Times New Roman"), run.format.half_points / 2));
      format.setFontWeight(run.format.bold ? QFont::Bold : QFont::Normal);
      cursor.insertText(QString::fromStdString(std::get<std::string>(run.content)), format);
    }
  }
}

void PrintRichText(const richtext::RichDocument& document, const QString& file) {
  desktop::PageMetrics metrics;
  print::PageEngine engine(metrics);
  engine.Start({.margins = kInch}, {});
  print::AddRichText(engine, document);
  Check(engine.page_count() >= kLeastPages, "lay out enough pages");
  Check(desktop::WritePdf(engine.document(), file), "write a PDF");
}

void PrintBareRichText(const QTextDocument& document, const QString& file) {
  QPdfWriter writer(file);
  writer.setPageSize(QPageSize(QPageSize::Letter));
  writer.setPageMargins(QMarginsF(1, 1, 1, 1), QPageLayout::Inch);
  document.print(&writer);
}

double BytesPerPage(int rows) {
  const auto content = MakeRows(rows);
  desktop::PageMetrics metrics;
  const std::size_t before = HeldMemory();
  print::PageEngine engine(metrics);
  LayOutRows(content, engine);
  return static_cast<double>(HeldMemory() - before) / engine.page_count();
}

// False when pages cost more the more there are.
bool MeasureMemory() {
  constexpr double kMostGrowth = 1.2;
  const double few = BytesPerPage(1000);
  const double many = BytesPerPage(4000);
  std::printf(
      "Bytes a page of a report: %.0f of 1,000 rows, %.0f of 4,000, ratio %.2f, aim %.2f%s\n", few,
      many, many / few, kMostGrowth, Verdict(many / few, kMostGrowth));
  return few > 0 && Stands(many / few, kMostGrowth);
}

int Run(const std::string& parent) {
  const BenchFolder folder(parent);
  const QString ours = QString::fromStdString(folder.path()) + "/ours.pdf";
  const QString bare = QString::fromStdString(folder.path()) + "/bare.pdf";
  const auto rows = MakeRows(kRows);
  const QString text = AsPlainText(rows);
  RatioTable table;
  table.Measure(
      "Report of 5,000 rows into a PDF", 1, 9, [&] { PrintOurs(rows, ours); },
      [&] { PrintBare(text, bare); });
  const richtext::RichDocument document = MakeDocument();
  QTextDocument bare_document;
  FillBare(document, bare_document);
  const QString our_pages = QString::fromStdString(folder.path()) + "/our-pages.pdf";
  const QString bare_pages = QString::fromStdString(folder.path()) + "/bare-pages.pdf";
  table.Measure(
      "Formatted document of 300 pages into a PDF", 1, 5,
      [&] { PrintRichText(document, our_pages); },
      [&] { PrintBareRichText(bare_document, bare_pages); });
  for (const QString& file : {ours, bare, our_pages, bare_pages}) {
    Check(QFileInfo(file).size() > kLeastBytes, "a whole PDF");
  }
  const bool is_fast = table.Print();
  return MeasureMemory() && is_fast ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::RunInWindows(count, arguments, tarnwell::bench::Run);
}
