#include "storage/redo_note.h"

#include <gtest/gtest.h>

#include "storage/record_file.h"
#include "support/failing_file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::storage {
namespace {

using tarnwell::testing::FailingFileSystem;
using tarnwell::testing::TemporaryFolder;

constexpr int kLength = 900;
constexpr std::size_t kStored = 850;
constexpr int kRecord = 5;  // bytes 3600 to 4449
constexpr std::size_t kInFirstPage = 496;
// Number 8, length 4, "day.fil" 2 + 7, offset 8, bytes 2 + 850, number 8.
constexpr std::size_t kNote = 889;

const std::string kOld(kStored, 'o');
const std::string kNew(kStored, 'n');

// The disk after a write that ended behind so many bytes, those of its note counted too.
void WriteOnly(TemporaryFolder& disk, std::size_t bytes) {
  ProgramFolder folder(RealFileSystem(), disk.path());
  ASSERT_TRUE(RecordFile(folder, "day.fil", kLength).PutStructure(kRecord, kOld));
  FailingFileSystem files(RealFileSystem());
  files.AllowBytes(bytes);
  ProgramFolder failing(files, disk.path());
  RecordFile(failing, "day.fil", kLength).PutStructure(kRecord, kNew);
}

std::string RecordAfterRecovery(TemporaryFolder& disk) {
  ProgramFolder folder(RealFileSystem(), disk.path());
  folder.Recover();
  EXPECT_EQ(disk.Names(), std::vector<std::string>{"day.fil"});
  return RecordFile(folder, "day.fil", kLength).GetStructure(kRecord, kStored);
}

TEST(RedoNoteTest, AWriteThatEndedBetweenTwoPagesIsFinished) {
  struct {
    const char* ended;
    std::size_t bytes;
    const std::string& left;
  } const cases[] = {
      {"inside the note", 400, kOld},
      {"behind the note", kNote, kOld},
      {"behind the first page", kNote + kInFirstPage, kNew},
      {"behind the record", kNote + kStored, kNew},
  };
  for (const auto& c : cases) {
    TemporaryFolder disk;
    WriteOnly(disk, c.bytes);
    EXPECT_EQ(RecordAfterRecovery(disk), c.left) << c.ended;
  }
}

TEST(RedoNoteTest, AFileThatWasExchangedSinceStaysAsItIs) {
  TemporaryFolder disk;
  WriteOnly(disk, kNote + kInFirstPage);
  disk.Write("day.fil", std::string(5 * kLength, 'x'));
  EXPECT_EQ(RecordAfterRecovery(disk), std::string(kStored, 'x'));
}

TEST(RedoNoteTest, AWriteThatWasMadeIsNotMadeAgain) {
  TemporaryFolder disk;
  ProgramFolder folder(RealFileSystem(), disk.path());
  ASSERT_TRUE(RecordFile(folder, "day.fil", kLength).PutStructure(kRecord, kNew));
  EXPECT_FALSE(RedoNote(RealFileSystem(), disk.path() + "/.tarnwell-redo").Read());
  // A later write of the first page alone must hold.
  ASSERT_TRUE(RecordFile(folder, "day.fil", kLength).PutStructure(kRecord, "later"));
  EXPECT_EQ(RecordAfterRecovery(disk), "later" + kNew.substr(5));
}

TEST(RedoNoteTest, ARecordInsideOnePageNeedsNoNote) {
  TemporaryFolder disk;
  ProgramFolder folder(RealFileSystem(), disk.path());
  RecordFile(folder, "day.fil", kLength).PutStructure(1, kNew);
  EXPECT_EQ(disk.Names(), std::vector<std::string>{"day.fil"});
}

}  // namespace
}  // namespace tarnwell::storage
