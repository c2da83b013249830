// Writes the example of each page of docs/formats/ and compares the bytes, then reads it back.

#include <gmock/gmock.h>

#include "storage/file_names.h"
#include "storage/record_file.h"
#include "storage/sequential_file.h"
#include "storage/structure.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"

namespace tarnwell::storage {
namespace {

using namespace std::string_literals;
using tarnwell::testing::FileOf;
using tarnwell::testing::ReadFormatExample;
using tarnwell::testing::TemporaryFolder;
using ::testing::ElementsAre;

class FormatPagesTest : public ::testing::Test {
 protected:
  void ExpectBytesOfPage(const std::string& name, const std::string& page) {
    const auto example = ReadFormatExample(page);
    ASSERT_FALSE(example.runs.empty()) << page;
    const std::string content = disk_.Read(name);
    EXPECT_EQ(content.size(), example.size) << page;
    for (const auto& [offset, bytes] : example.runs) {
      EXPECT_EQ(content.substr(std::min<std::size_t>(offset, content.size()), bytes.size()), bytes)
          << page << " at " << offset;
    }
  }
  void WriteFileOfPage(const std::string& name, const std::string& page) {
    disk_.Write(name, FileOf(ReadFormatExample(page)));
  }

  TemporaryFolder disk_;
  ProgramFolder folder_{RealFileSystem(), disk_.path()};
};

TEST_F(FormatPagesTest, RecordFile) {
  RecordFile file(folder_, "a.fil", 10);
  file.PutText(1, "Yes");
  file.PutInteger(2, -2);
  file.PutTagged(3, std::int32_t{16711680});
  file.PutTagged(5, "Def"s);
  ExpectBytesOfPage("a.fil", "record-file.md");

  WriteFileOfPage("b.fil", "record-file.md");
  RecordFile page(folder_, "b.fil", 10);
  EXPECT_EQ(page.GetText(1), "Yes");
  EXPECT_EQ(page.GetInteger(2), -2);
  EXPECT_EQ(page.GetTagged(3), TaggedValue(std::int32_t{16711680}));
  EXPECT_TRUE(IsEmpty(page.GetTagged(4)));
  EXPECT_EQ(page.GetTagged(5), TaggedValue("Def"s));
}

TEST_F(FormatPagesTest, SequentialFile) {
  SequentialWriter writer;
  writer.WriteLine({"Due", 12.5});
  writer.WriteText("a, b");
  writer.Save(folder_, "a.fil");
  ExpectBytesOfPage("a.fil", "sequential-file.md");

  WriteFileOfPage("b.fil", "sequential-file.md");
  EXPECT_THAT(ReadNameList(folder_, "b.fil").names, ElementsAre("Due", "12.5", "a, b"));
}

TEST_F(FormatPagesTest, PlannerYearFile) {
  StructureWriter day;
  day.FixedText("9:00 AM", 140).FixedText("Call the bank", 700).FixedText("Full", 10);
  const std::string name = file_names::PlannerYear(2026);
  EXPECT_EQ(name, " 2026.Cal");
  RecordFile(folder_, name, 900).PutStructure(93, day.bytes());
  ExpectBytesOfPage(name, "planner-year-file.md");
}

TEST_F(FormatPagesTest, CalendarOptions) {
  RecordFile file(folder_, file_names::kCalendarOptions, 20);
  file.PutInteger(14, 1);
  file.PutInteger(15, 0);
  file.PutInteger(16, 2);
  file.PutInteger(17, 1);
  ExpectBytesOfPage("CalOpt.fil", "calopt.md");
}

TEST_F(FormatPagesTest, ToDoList) {
  WriteNameList(folder_, file_names::kToDoList, {"Pay rent", "Mon - Mar 9, 26", "", "", ""});
  ExpectBytesOfPage("TODOActv.FIL", "todoactv.md");
}

}  // namespace
}  // namespace tarnwell::storage
