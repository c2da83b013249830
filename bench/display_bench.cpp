// The display grid of 20,000 contacts: an option filled against the bare read of the records' file,
// an option and a key of the search painted, memory of the cells, and the complete report built and
// as PDF against Qt's own text document. Runs where QT_QPA_PLATFORM says, "offscreen" if nothing
// does.

#include <fcntl.h>
#include <unistd.h>

#include <QPdfWriter>
#include <QTextDocument>
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "contacts/addbkdisplay.h"
#include "contacts/contact_book.h"
#include "desktop/desktop.h"
#include "desktop/services/page_output.h"
#include "desktop/widgets/page_fonts.h"
#include "desktop/widgets/text.h"
#include "employees/employee_book.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "held_memory.h"
#include "people.h"
#include "ratio_table.h"
#include "record_book/display_report.h"
#include "windows.h"

namespace tarnwell::bench {
namespace {

using record_book::DisplayOption;

constexpr int kTimes = 21;
constexpr int kTelephone = 7;
constexpr double kLongestFilled = 200;  // milliseconds
constexpr double kLongestKey = 16;      // likewise
constexpr double kLongestPages = 1000;  // likewise, for 1,000 pages
constexpr double kMostBytes = 100;      // a cell, beyond its text
constexpr DisplayOption kAddress{.caption = "Address", .entry = 2, .is_address = true};

double Slowest(const std::function<void(int)>& work) {
  double slowest = 0;
  for (int i = 0; i < kTimes; ++i) {
    slowest = std::max(slowest, Milliseconds([&] {
                         work(i);
                         QApplication::processEvents();
                       }));
  }
  return slowest;
}

bool MeasureReading(storage::ProgramFolder& folder) {
  RatioTable table;
  for (const auto* layout : {&contacts::ContactBook(), &employees::EmployeeBook()}) {
    const record_book::DisplayBook book{*layout, {&kAddress, 1}, kTelephone, false};
    const auto names = record_book::ReadNames(folder, *layout).entries;
    const std::string path = folder.path() + "/" + std::string(layout->records);
    std::string content(1u << 16, ' ');
    table.Measure(
        "Read the addresses of " + std::string(layout->records), 3, kTimes,
        [&] {
          const auto read = record_book::ReadDisplay(folder, book, kAddress, names);
          Check(read.rows.size() == kPeople, "read all rows");
        },
        [&] {
          const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
          while (::read(file, content.data(), content.size()) > 0) {
          }
          ::close(file);
        });
  }
  return table.Print();
}

bool MeasureScreen(record_book::DisplayScreen& form) {
  QApplication::processEvents();
  const int options = form.options.size();
  bool is_good = Tell("The slowest option filled and painted",
                      Slowest([&](int i) { form.options.Pick(i % options); }), kLongestFilled);
  const std::string sought = "person 19999 company";
  is_good &= Tell("The slowest key of the search, painted", Slowest([&](int i) {
                    const std::size_t typed = 1 + static_cast<std::size_t>(i) % sought.size();
                    form.search_text.Type(sought.substr(0, typed));
                  }),
                  kLongestKey);
  return is_good;
}

bool MeasureMemory(record_book::DisplayScreen& form) {
  form.options.Pick(1);  // from four columns to two: nothing of the first is kept
  form.search_text.Type("nobody");
  form.search_text.PressEnter();
  QApplication::processEvents();
  const std::size_t before = HeldMemory();
  form.view_all.Click();
  QApplication::processEvents();
  double text = 0;
  for (int row = 1; row < form.grid.rows(); ++row) {
    for (int i = 0; i < form.grid.columns(); ++i) {
      text += static_cast<double>(form.grid.text(row, i).size());
    }
  }
  const double cells = static_cast<double>(form.grid.rows() - 1) * form.grid.columns();
  return Tell("Memory of a cell beyond its text",
              (static_cast<double>(HeldMemory() - before) - text) / cells, kMostBytes, "bytes");
}

void BuildReport(storage::ProgramFolder& folder, print::PageEngine& engine, std::size_t people,
                 int times) {
  const record_book::DisplayBook book{contacts::ContactBook(), {&kAddress, 1}, kTelephone, false};
  auto names = record_book::ReadNames(folder, book.layout).entries;
  names.resize(people);
  engine.Start({}, {});
  const forms::ProgramVariables variables;
  record_book::CompleteReport report(engine, variables, "Complete Business Contacts Report", {});
  for (int i = 0; i < times; ++i) {
    const auto read = record_book::ReadDisplay(folder, book, kAddress, names);
    Check(read.rows.size() == people, "read all rows");
    report.AddSection("Address", read.rows, [](int) { return true; });
  }
}

bool MeasureReport(storage::ProgramFolder& folder) {
  desktop::PageMetrics metrics;
  print::PageEngine engine(metrics);
  const double taken = Milliseconds([&] { BuildReport(folder, engine, kPeople, 1); });
  std::printf("A section of the report with 20,000 addresses has %d pages\n", engine.page_count());
  bool is_good = Tell("1,000 pages of it built", taken * 1000 / engine.page_count(), kLongestPages);

  BuildReport(folder, engine, 2000, 1);
  QString text;
  for (const forms::Page& page : engine.document().pages) {
    for (const forms::Mark& mark : page) {
      if (const auto* one = std::get_if<forms::PlacedText>(&mark)) {
        text += desktop::FromCore(one->text) + '\n';
      }
    }
  }
  const QString path = QString::fromStdString(folder.path());
  RatioTable table;
  table.Measure(
      "2,000 addresses of the report as PDF", 0.5, 3,
      [&] {
        BuildReport(folder, engine, 2000, 1);
        Check(desktop::WritePdf(engine.document(), path + "/ours.pdf"), "write a PDF");
      },
      [&] {
        QPdfWriter writer(path + "/bare.pdf");
        writer.setPageSize(QPageSize(QPageSize::Letter));
        QTextDocument document;
        document.setDefaultFont(QFont(QStringLiteral("Times New Roman"), 10));
        document.setPlainText(text);
        document.print(&writer);
      });
  return table.Print() && is_good;
}

int Run(const std::string& parent) {
  const BenchFolder disk(parent);
  WritePeople(disk.path(), contacts::ContactBook());
  WritePeople(disk.path(), employees::EmployeeBook());
  storage::ProgramFolder folder(storage::RealFileSystem(), disk.path());
  desktop::Desktop desktop({QString::fromStdString(disk.path()), QString()});
  desktop.navigator().Show(forms::form_names::kContactDisplay);
  auto& form = static_cast<record_book::DisplayScreen&>(*desktop.navigator().top());
  bool is_good = MeasureReading(folder);
  is_good &= MeasureScreen(form);
  is_good &= MeasureMemory(form);
  return MeasureReport(folder) && is_good ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::RunInWindows(count, arguments, tarnwell::bench::Run);
}
