#include "storage/sequential_file.h"

#include <gmock/gmock.h>

#include <cmath>

#include "support/temporary_folder.h"

namespace tarnwell::storage {
namespace {

using namespace std::string_literals;
using tarnwell::testing::TemporaryFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Values = std::vector<std::string>;

Values AllValues(std::string content) {
  Values values;
  for (SequentialReader reader(std::move(content)); !reader.AtEnd();) {
    values.push_back(reader.Next());
  }
  return values;
}

TEST(SequentialReaderTest, TakesQuotedTextsAndUnquotedRunsAsTheFileHasThem) {
  const std::pair<std::string, Values> cases[] = {
      {"", {}},
      {"\"one\"\r\n\"two\"\r\n", {"one", "two"}},
      {"\"no line end\"", {"no line end"}},
      {"\"a, b\",\"line\r\nend\"\n", {"a, b", "line\r\nend"}},
      {"  \" blanks stay inside \"\r\n", {" blanks stay inside "}},
      {"\"cut\" here\",12\r\n", {"cut", "12"}},
      {"\"\"\r\n\"\"\r\n", {"", ""}},
      {"\"never closed, to the end\r\n", {"never closed, to the end\r\n"}},
      {" 12 , 3.5 x \r\n", {"12", "3.5 x"}},
      {"inner \"quotes\" count as text\r\n", {"inner \"quotes\" count as text"}},
      {"cr\ronly\rlf\nonly\n", {"cr", "only", "lf", "only"}},
      {"a\n\rb", {"a", "", "b"}},
      {"\r\n\r\n", {"", ""}},
      {"a,\r\n", {"a", ""}},
      {"   ", {""}},
      {"\"", {""}},
      {"\xE9t\xE9\0x\r\n"s, {"\xE9t\xE9\0x"s}},
  };
  for (const auto& [content, values] : cases) EXPECT_EQ(AllValues(content), values) << content;
}

TEST(SequentialReaderTest, GivesEmptyTextsAtTheEnd) {
  SequentialReader reader("last"s);
  reader.Next();
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_EQ(reader.Next(), "");
  EXPECT_TRUE(reader.AtEnd());
}

TEST(SequentialWriterTest, WritesOneLineACallTextsInQuotesNumbersBare) {
  SequentialWriter writer;
  writer.WriteText("one");
  writer.WriteLine({"two", 2.0, "", -0.5});
  writer.WriteText("say \"hi\"");
  EXPECT_EQ(writer.content(), "\"one\"\r\n\"two\",2,\"\",-0.5\r\n\"say \"hi\"\"\r\n");
}

TEST(SequentialWriterTest, WritesTheShortestNumberThatReadsBack) {
  const std::pair<double, const char*> cases[] = {
      {0, "0\r\n"},
      {-0.0, "0\r\n"},
      {100000, "100000\r\n"},
      {0.1, "0.1\r\n"},
      {1.0 / 3, "0.3333333333333333\r\n"},
      {-1234.56, "-1234.56\r\n"},
      {1e15, "1e+15\r\n"},
      {NAN, "0\r\n"},
      {INFINITY, "0\r\n"},
      {-1.7976931348623157e308, "-1.7976931348623157e+308\r\n"},
  };
  for (const auto& [value, line] : cases) {
    SequentialWriter writer;
    writer.WriteLine({value});
    EXPECT_EQ(writer.content(), line);
  }
}

TEST(NameListTest, KeepsItsOrderAndCutsATitleAtItsQuote) {
  TemporaryFolder disk;
  ProgramFolder folder(RealFileSystem(), disk.path());
  EXPECT_THAT(ReadNameList(folder, "JobHold.Fl5").names, IsEmpty());
  EXPECT_THAT(disk.Names(), IsEmpty());
  EXPECT_TRUE(WriteNameList(folder, "JobHold.Fl5", {"Driver", "15\" screen", "Accountant"}));
  EXPECT_THAT(ReadNameList(folder, "JOBHOLD.FL5").names, ElementsAre("Driver", "15", "Accountant"));
  EXPECT_TRUE(WriteNameList(folder, "JobHold.Fl5", {"Driver", "Accountant"}));
  EXPECT_EQ(disk.Read("JobHold.Fl5"), "\"Driver\"\r\n\"Accountant\"\r\n");
}

}  // namespace
}  // namespace tarnwell::storage
