// What the store costs on top of the system calls that it can't do without.

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "planner/day_store.h"
#include "ratio_table.h"
#include "storage/program_folder.h"
#include "storage/record_file.h"
#include "storage/sequential_file.h"

namespace tarnwell::bench {
namespace {

using storage::ProgramFolder;
using storage::RecordFile;

// A contact list at its largest: every record visited, its name looked at.
void MeasureScan(RatioTable& table, ProgramFolder& folder) {
  constexpr int kLength = 1190;
  constexpr int kRecords = 20000;
  const std::string path = folder.path() + "/ADDBK1.Fil";
  std::string content(std::size_t{kLength} * kRecords, 'x');
  Check(folder.WriteWhole("ADDBK1.Fil", content), "write the records");
  std::size_t live = 0;
  table.Measure(
      "Scan 20,000 records of 1,190 bytes", 3, 21,
      [&] {
        RecordFile file(folder, "addbk1.fil", kLength);
        file.Scan(1, [&](int, std::string_view record) {
          live += !record.starts_with("****");
          return true;
        });
      },
      [&] {
        const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        Check(IsWhole(::read(descriptor, content.data(), content.size()), content.size()), "read");
        ::close(descriptor);
      });
  Check(live == std::size_t{22} * kRecords, "scan every record");
}

// A year of the budget: 500 rows of 13 values and 12 more.
void MeasureSave(RatioTable& table, ProgramFolder& folder) {
  constexpr int kValues = 6512;
  storage::SequentialWriter sample;
  for (int value = 0; value < kValues; ++value) sample.WriteText("1234.50");
  const std::string content = sample.content();
  const std::string target = folder.path() + "/bare.Fil";
  const std::string sibling = folder.path() + "/bare.tmp";
  table.Measure(
      "Save 6,512 quoted values as a whole file", 1.5, 41,
      [&] {
        storage::SequentialWriter writer;
        for (int value = 0; value < kValues; ++value) writer.WriteText("1234.50");
        Check(writer.Save(folder, "2026.Fil"), "save");
      },
      [&] {
        const int file = ::open(sibling.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
        Check(IsWhole(::write(file, content.data(), content.size()), content.size()), "write");
        Check(::fdatasync(file) == 0, "fdatasync");
        ::close(file);
        Check(std::rename(sibling.c_str(), target.c_str()) == 0, "rename");
        const int directory = ::open(folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        Check(::fsync(directory) == 0, "fsync of the folder");
        ::close(directory);
      });
}

// A year of the planner: each day read, then written, the file opened anew for either.
void MeasureDays(RatioTable& table, ProgramFolder& folder) {
  constexpr std::size_t kDayBytes = 850;
  std::vector<text::Date> days;
  for (auto day = text::MakeDate(2028, 1, 1); text::YearOf(day) == 2028;
       day = text::AddDays(day, 1))
    days.push_back(day);
  Check(days.size() == 366, "walk a leap year");
  planner::DayRows rows;
  rows[0] = {"9:30 AM", "Dentist"};
  for (const text::Date day : days) Check(planner::WriteDay(folder, day, rows), "write the days");
  Check(folder.Copy(" 2028.Cal", " 2027.Cal"), "copy the year");
  const std::string path = folder.path() + "/ 2027.Cal";
  table.Measure(
      "Read and write the 366 days of a planner year", 1.5, 41,
      [&] {
        for (const text::Date day : days) {
          const auto stored = planner::ReadDay(folder, day);
          Check(stored && planner::WriteDay(folder, day, stored->rows), "rewrite a day");
        }
      },
      [&] {
        std::string day(kDayBytes, '\0');
        for (const text::Date date : days) {
          const off_t place =
              900 * (planner::DayRecordNumber(text::MonthOf(date), text::DayOf(date)) - 1);
          int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
          Check(IsWhole(::pread(file, day.data(), day.size(), place), day.size()), "pread");
          ::close(file);
          file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
          Check(IsWhole(::pwrite(file, day.data(), day.size(), place), day.size()), "pwrite");
          ::close(file);
        }
      });
}

int Run(const std::string& parent) {
  const BenchFolder disk(parent);
  ProgramFolder folder(storage::RealFileSystem(), disk.path());
  RatioTable table;
  MeasureScan(table, folder);
  MeasureSave(table, folder);
  MeasureDays(table, folder);
  return table.Print() ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::Run(count > 1 ? arguments[1] : ".");
}
