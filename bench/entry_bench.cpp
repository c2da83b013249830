// The entry screen of 20,000 contacts: the index of names and the search for a free record against
// the bare reads of their files, the list filled and painted, and a key of the search painted. Runs
// where QT_QPA_PLATFORM says, "offscreen" if nothing does.

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include "bench_folder.h"
#include "contacts/contact_book.h"
#include "desktop/desktop.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "people.h"
#include "ratio_table.h"
#include "record_book/entry_screen.h"
#include "record_book/record_store.h"
#include "windows.h"

namespace tarnwell::bench {
namespace {

constexpr int kTimes = 21;
constexpr double kLongestOpening = 150;  // milliseconds
constexpr double kLongestKey = 16;       // likewise

void ReadBare(const std::string& path, std::string& content) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  while (::read(file, content.data(), content.size()) > 0) {
  }
  ::close(file);
}

bool MeasureFiles(storage::ProgramFolder& folder) {
  const record_book::BookLayout& book = contacts::ContactBook();
  const auto path = [&](std::string_view file) { return folder.path() + "/" + std::string(file); };
  std::string content(1u << 16, ' ');
  RatioTable table;
  table.Measure(
      "Read the index of 20,000 names", 3, kTimes,
      [&] {
        Check(record_book::ReadNames(folder, book).entries.size() == kPeople, "read the names");
      },
      [&] { ReadBare(path(book.index), content); });
  table.Measure(
      "Find no free record before the last", 3, kTimes,
      [&] {
        Check(record_book::FreeRecord(folder, book) == record_book::kOverflowRecord, "find none");
      },
      [&] { ReadBare(path(book.records), content); });
  return table.Print();
}

bool MeasureScreen(forms::Navigator& navigator) {
  navigator.Show(forms::form_names::kContactEntry);
  auto& form = static_cast<record_book::EntryScreen&>(*navigator.top());
  QApplication::processEvents();
  const auto painted = [](const std::function<void()>& work) {
    return Milliseconds([&] {
      work();
      QApplication::processEvents();
    });
  };
  bool is_good = Tell("The View Screen with its list, painted", painted([&] { form.mode.Click(); }),
                      kLongestOpening);
  const std::string sought = "person 19999 company";
  double slowest = 0;
  for (std::size_t typed = 1; typed <= sought.size(); ++typed) {
    slowest = std::max(slowest, painted([&] { form.search.Type(sought.substr(0, typed)); }));
  }
  is_good &= Tell("The slowest key of the search, painted", slowest, kLongestKey);
  return is_good;
}

int Run(const std::string& parent) {
  const BenchFolder disk(parent);
  WritePeople(disk.path(), contacts::ContactBook());
  storage::ProgramFolder folder(storage::RealFileSystem(), disk.path());
  desktop::Desktop desktop({QString::fromStdString(disk.path()), QString()});
  const bool is_good = MeasureFiles(folder);
  return MeasureScreen(desktop.navigator()) && is_good ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::RunInWindows(count, arguments, tarnwell::bench::Run);
}
