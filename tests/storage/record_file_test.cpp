#include "storage/record_file.h"

#include <gmock/gmock.h>

#include "support/failing_file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::storage {
namespace {

using namespace std::string_literals;
using tarnwell::testing::FailingFileSystem;
using tarnwell::testing::TemporaryFolder;
using ::testing::ElementsAre;

class RecordFileTest : public ::testing::Test {
 protected:
  TemporaryFolder disk_;
  FailingFileSystem files_{RealFileSystem()};
  ProgramFolder folder_{files_, disk_.path()};
};

TEST_F(RecordFileTest, OpeningMakesAnEmptyFileAndEveryRecordPastTheEndIsEmpty) {
  RecordFile file(folder_, "GColor3.Fil", 20);
  ASSERT_TRUE(file.is_open());
  EXPECT_EQ(file.GetText(35), "");
  EXPECT_TRUE(IsEmpty(file.GetTagged(36)));
  EXPECT_EQ(file.GetInteger(1), 0);
  EXPECT_EQ(file.GetStructure(431, 4), "\0\0\0\0"s);
  file.Scan(1, [](int, std::string_view) {
    ADD_FAILURE() << "a record in an empty file";
    return true;
  });
  EXPECT_TRUE(file.Close());
  EXPECT_THAT(disk_.Names(), ElementsAre("GColor3.Fil"));
  EXPECT_EQ(disk_.Read("GColor3.Fil"), "");
}

TEST_F(RecordFileTest, EachFormHasItsBytesAtItsRecordAndLeavesTheRestAlone) {
  disk_.Write("a.fil", std::string(32, '~'));
  RecordFile file(folder_, "a.fil", 8);
  EXPECT_TRUE(file.PutText(1, "Yes"));
  EXPECT_TRUE(file.PutTagged(2, std::int32_t{16711680}));
  EXPECT_TRUE(file.PutInteger(3, -2));
  EXPECT_TRUE(file.PutStructure(4, "Full "));
  EXPECT_TRUE(file.PutTagged(6, "Def"s));
  EXPECT_EQ(disk_.Read("a.fil"),
            "\x03\0Yes~~~"
            "\x03\0\0\0\xFF\0~~"
            "\xFE\xFF~~~~~~"
            "Full ~~~"
            "\0\0\0\0\0\0\0\0"
            "\x08\0\x03\0Def"s);
  EXPECT_EQ(file.GetText(1), "Yes");
  EXPECT_EQ(file.GetTagged(2), TaggedValue(std::int32_t{16711680}));
  EXPECT_EQ(file.GetInteger(3), -2);
  EXPECT_EQ(file.GetStructure(4, 5), "Full ");
  EXPECT_EQ(file.GetText(5), "");
  EXPECT_EQ(file.GetTagged(6), TaggedValue("Def"s));
}

TEST_F(RecordFileTest, AValueThatDoesNotFitIsNotStoredAndTheOldOneStays) {
  RecordFile file(folder_, "a.fil", 20);
  const std::string longest(18, 'x');
  EXPECT_TRUE(file.PutText(1, longest));
  EXPECT_FALSE(file.PutText(1, std::string(19, 'y')));
  EXPECT_EQ(file.GetText(1), longest);
  EXPECT_TRUE(file.PutTagged(2, std::string(16, 'x')));
  EXPECT_FALSE(file.PutTagged(2, std::string(17, 'y')));
  EXPECT_EQ(TextOf(file.GetTagged(2)), std::string(16, 'x'));
  EXPECT_FALSE(file.PutStructure(3, std::string(21, 'y')));
  EXPECT_FALSE(file.PutText(0, "no such record"));
  EXPECT_FALSE(file.PutText(-1, "nor this"));
  EXPECT_EQ(disk_.Read("a.fil").size(), 40u);

  RecordFile narrow(folder_, "b.fil", 10);
  EXPECT_TRUE(narrow.PutText(1, "12345678"));
  EXPECT_FALSE(narrow.PutText(1, "123456789"));
  RecordFile tiny(folder_, "c.fil", 1);
  EXPECT_FALSE(tiny.PutInteger(1, 7));
  RecordFile wide(folder_, "d.fil", 70000);
  EXPECT_FALSE(wide.PutText(1, std::string(65536, 'x')));
  EXPECT_FALSE(wide.PutTagged(1, std::string(65536, 'x')));
}

TEST_F(RecordFileTest, ATaggedValueReadsBackWithTheTypeOfItsLastRun) {
  RecordFile file(folder_, "HINV3.Fil", 10);
  const TaggedValue runs[] = {std::int32_t{255}, "Def"s, 15100.0f, std::int16_t{-1}, 2.5,
                              SerialDate{45000}, {}};
  for (const TaggedValue& value : runs) {
    EXPECT_TRUE(file.PutTagged(3, value));
    EXPECT_EQ(file.GetTagged(3), value);
  }
}

TEST_F(RecordFileTest, ScanShowsEachRecordOnceAndFillsUpTheLast) {
  const std::string first(900, 'a');
  disk_.Write("a.fil", first + std::string(900 * 400, 'b') + "tail");
  RecordFile file(folder_, "a.fil", 900);
  int next = 2;
  std::string last;
  file.Scan(2, [&](int record, std::string_view bytes) {
    EXPECT_EQ(record, next++);
    EXPECT_EQ(bytes.size(), 900u);
    last = bytes;
    return true;
  });
  EXPECT_EQ(next, 403);
  EXPECT_EQ(last, "tail" + std::string(896, '\0'));
  int seen = 0;
  file.Scan(1, [&](int, std::string_view) { return ++seen < 3; });
  EXPECT_EQ(seen, 3);
}

TEST_F(RecordFileTest, APutIsOneWriteAndAFailedOneIsTold) {
  RecordFile file(folder_, "a.fil", 900);
  const int before = files_.calls();
  EXPECT_TRUE(file.PutStructure(11, std::string(850, 'x')));
  EXPECT_EQ(files_.calls(), before + 1);
  files_.AllowBytes(0);
  EXPECT_FALSE(file.PutText(11, "y"));
  EXPECT_EQ(file.GetStructure(11, 850), std::string(850, 'x'));
}

TEST_F(RecordFileTest, AFileThatMayNotBeChangedCanBeRead) {
  disk_.Write("A.FIL", "\x03\0Yes"s);
  files_.MakeReadOnly();
  RecordFile file(folder_, "a.fil", 20);
  EXPECT_EQ(file.GetText(1), "Yes");
  RecordFile missing(folder_, "b.fil", 20);
  EXPECT_FALSE(missing.is_open());
  EXPECT_EQ(missing.GetText(1), "");
  EXPECT_FALSE(missing.PutText(1, "x"));
  EXPECT_FALSE(missing.Close());
}

TEST_F(RecordFileTest, LengthsThatCannotBeTrueGiveEmptyValues) {
  struct Case {
    const char* defect;
    std::string bytes;
  };
  const Case cases[] = {
      {"text longer than the record", "\x09\0"s + std::string(60, 'x')},
      {"text length of all ones", "\xFF\xFF"s + std::string(60, 'x')},
      {"text torn at the end of the file", "\x05\0Yes"s},
      {"half a length", "\x03"s},
  };
  for (const auto& [defect, bytes] : cases) {
    disk_.Write("a.fil", bytes);
    RecordFile file(folder_, "a.fil", 10);
    EXPECT_EQ(file.GetText(1), "") << defect;
  }
  const Case tagged[] = {
      {"text longer than the record", "\x08\0\x07\0"s + std::string(60, 'x')},
      {"text torn at the end of the file", "\x08\0\x03\0De"s},
      {"number torn at the end of the file", "\x05\0\0\0\0\0\0"s},
      {"unknown tag", "\x09\0\x01\0\0\0"s},
      {"tag alone", "\x02\0"s},
      {"half a tag", "\x02"s},
      {"float that is no number", "\x04\0\0\0\xC0\x7F"s},
      {"infinite date", "\x07\0\0\0\0\0\0\0\xF0\x7F"s},
  };
  for (const auto& [defect, bytes] : tagged) {
    disk_.Write("a.fil", bytes);
    RecordFile file(folder_, "a.fil", 10);
    EXPECT_TRUE(IsEmpty(file.GetTagged(1))) << defect;
  }
  disk_.Write("a.fil", "\x01");
  EXPECT_EQ(RecordFile(folder_, "a.fil", 10).GetInteger(1), 0);
}

}  // namespace
}  // namespace tarnwell::storage
