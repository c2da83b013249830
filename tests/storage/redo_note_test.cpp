#include "storage/redo_note.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <limits>

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
  RedoNote(RealFileSystem(), disk.path() + "/.tarnwell-redo").Settle([](const auto&) {
    ADD_FAILURE() << "still noted";
    return true;
  });
  // A later write of the first page alone must hold.
  ASSERT_TRUE(RecordFile(folder, "day.fil", kLength).PutStructure(kRecord, "later"));
  EXPECT_EQ(RecordAfterRecovery(disk), "later" + kNew.substr(5));
}

// The third write after the note and the record takes the record's beginning back.
TEST(RedoNoteTest, AWriteThatTheDiskBrokeOffIsUndoneOrStaysNotedUntilItsBytesOrNewerOnesStand) {
  const std::string other(kStored, 'x');
  const std::string newer = kNew.substr(0, kInFirstPage) + other.substr(kInFirstPage);
  constexpr int kOther = 14;  // bytes 11700 to 12549
  struct {
    const char* then;
    bool can_undo;
    std::function<void(RecordFile&)> act;
    std::string left;
  } const cases[] = {
      {"undone", true, [](RecordFile&) {}, kOld},
      {"nothing", false, [](RecordFile&) {}, kNew},
      {"another record", false, [&](RecordFile& file) { file.PutStructure(kOther, other); }, kNew},
      {"the same record", false, [&](RecordFile& file) { file.PutStructure(kRecord, newer); },
       newer},
      {"its beginning", false, [&](RecordFile& file) { file.PutStructure(kRecord, "later"); },
       "later" + kNew.substr(5)},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.then);
    TemporaryFolder disk;
    ProgramFolder old(RealFileSystem(), disk.path());
    ASSERT_TRUE(RecordFile(old, "day.fil", kLength).PutStructure(kRecord, kOld));
    constexpr auto kRoomAgain = std::numeric_limits<std::uint64_t>::max();
    FailingFileSystem files(RealFileSystem());
    files.AllowBytes(kNote + kInFirstPage);
    files.FailWhen([&](int) {
      if (c.can_undo && std::ranges::count(files.log(), "write") == 3) files.AllowBytes(kRoomAgain);
      return false;
    });
    ProgramFolder folder(files, disk.path());
    RecordFile file(folder, "day.fil", kLength);
    EXPECT_FALSE(file.PutStructure(kRecord, kNew));
    EXPECT_EQ(file.fault(), Fault::kFull);
    files.AllowBytes(kRoomAgain);
    c.act(file);
    ProgramFolder next(RealFileSystem(), disk.path());
    next.Recover();
    EXPECT_EQ(disk.Names(), std::vector<std::string>{"day.fil"});
    EXPECT_EQ(RecordFile(next, "day.fil", kLength).GetStructure(kRecord, kStored), c.left);
  }
}

TEST(RedoNoteTest, WhatCantBeFinishedAtTheStartStaysNotedForTheNext) {
  TemporaryFolder disk;
  WriteOnly(disk, kNote + kInFirstPage);
  FailingFileSystem files(RealFileSystem());
  files.AllowBytes(0);
  ProgramFolder(files, disk.path()).Recover();
  EXPECT_EQ(RecordAfterRecovery(disk), kNew);
}

TEST(RedoNoteTest, WhatIsNoNoteOfOursIsRemovedUnread) {
  for (const bool is_pipe : {true, false}) {
    TemporaryFolder disk;
    const std::string note = disk.path() + "/.tarnwell-redo";
    ASSERT_EQ(is_pipe ? ::mkfifo(note.c_str(), 0600) : ::symlink("/dev/zero", note.c_str()), 0);
    ProgramFolder(RealFileSystem(), disk.path()).Recover();
    EXPECT_EQ(disk.Names(), std::vector<std::string>{});
  }
}

TEST(RedoNoteTest, WhatIsNotedBehindASettlingIsFoundByTheNext) {
  TemporaryFolder disk;
  const std::string path = disk.path() + "/.tarnwell-redo";
  RedoNote note(RealFileSystem(), path);
  for (const char* file : {"one.fil", "two.fil"}) {
    ASSERT_TRUE(note.Set(file, 4090, "across the pages"));
    std::vector<std::string> found;
    RedoNote(RealFileSystem(), path).Settle([&](const RedoNote::Write& write) {
      found.push_back(write.file);
      return false;
    });
    EXPECT_EQ(found, std::vector<std::string>{file});
    note.Settle([](const auto&) { return true; });
  }
}

TEST(RedoNoteTest, TheNoteIsClosedBeforeTheNextGesture) {
  TemporaryFolder disk;
  ProgramFolder folder(RealFileSystem(), disk.path());
  ASSERT_TRUE(RecordFile(folder, "day.fil", kLength).PutStructure(kRecord, kNew));
  folder.CloseNote();
  for (const auto& open : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code gone;
    EXPECT_NE(std::filesystem::read_symlink(open, gone), disk.path() + "/.tarnwell-redo");
  }
}

TEST(RedoNoteTest, ARecordInsideOnePageNeedsNoNote) {
  TemporaryFolder disk;
  ProgramFolder folder(RealFileSystem(), disk.path());
  RecordFile(folder, "day.fil", kLength).PutStructure(1, kNew);
  EXPECT_EQ(disk.Names(), std::vector<std::string>{"day.fil"});
}

TEST(RedoNoteTest, AWriteThatChangesOneOfTwoPagesNeedsNoNoteEither) {
  std::string in_first = kOld;
  std::string in_next = kOld;
  in_first[kInFirstPage - 1] = in_next[kInFirstPage] = 'n';
  for (const std::string& changed : {in_first, in_next, kOld}) {
    for (const std::size_t bytes : {std::size_t{0}, kInFirstPage, kStored}) {
      TemporaryFolder disk;
      WriteOnly(disk, 0);
      ASSERT_EQ(RecordAfterRecovery(disk), kOld);
      FailingFileSystem files(RealFileSystem());
      files.AllowBytes(bytes);
      ProgramFolder killed(files, disk.path());
      RecordFile(killed, "day.fil", kLength).PutStructure(kRecord, changed);
      if (bytes == kStored) {
        EXPECT_EQ(disk.Names(), std::vector<std::string>{"day.fil"});
      }
      const std::string left = RecordAfterRecovery(disk);
      EXPECT_TRUE(left == kOld || left == changed) << bytes;
      EXPECT_TRUE(bytes < kStored || left == changed);
    }
  }
}

}  // namespace
}  // namespace tarnwell::storage
