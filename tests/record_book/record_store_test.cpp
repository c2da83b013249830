#include "record_book/record_store.h"

#include <gtest/gtest.h>

#include "contacts/contact_book.h"
#include "employees/employee_book.h"
#include "record_book/name_index.h"
#include "storage/file_system.h"
#include "support/failing_file_system.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"

namespace tarnwell::record_book {
namespace {

BookRecord Blank(const BookLayout& book) {
  return {std::vector<std::string>(static_cast<std::size_t>(book.entries)), ""};
}

BookRecord Named(const BookLayout& book, std::string_view name, std::string_view picture = {}) {
  BookRecord record = Blank(book);
  record.entries[0] = name;
  record.picture = picture;
  return record;
}

// The page's example with blanks wherever it shows nothing, but in record 1.
std::string FileOfPage(const char* page, std::size_t record_length) {
  const testing::FormatExample example = testing::ReadFormatExample(page);
  std::string file(example.size, ' ');
  file.replace(0, record_length, record_length, '\0');
  for (const auto& [offset, bytes] : example.runs) file.replace(offset, bytes.size(), bytes);
  return file;
}

class RecordStoreTest : public ::testing::Test {
 protected:
  const BookLayout& contacts_ = contacts::ContactBook();
  const BookLayout& employees_ = employees::EmployeeBook();

  void Add(const BookRecord& record) {
    const auto free = FreeRecord(folder_, contacts_);
    ASSERT_TRUE(free);
    ASSERT_TRUE(WriteNew(folder_, contacts_, *free, record));
  }
  std::string NameAt(int record) { return ReadRecord(folder_, contacts_, record)->entries[0]; }
  std::string PictureAt(int record) { return ReadRecord(folder_, contacts_, record)->picture; }

  testing::TemporaryFolder disk_;
  storage::ProgramFolder folder_{storage::RealFileSystem(), disk_.path()};
};

TEST_F(RecordStoreTest, AContactLiesOnTheDiskAsItsPageSays) {
  BookRecord acme = Named(contacts_, "Acme Tools", "/home/ann/acme.jpg");
  acme.entries[4] = "Reno";
  acme.entries[23] = "Pays late";
  Add(acme);
  EXPECT_EQ(disk_.Read("ADDBK1.Fil"), FileOfPage("contacts.md", 1190));
  EXPECT_EQ(disk_.Read("ADDBK2.Fil"),
            testing::FileOf(testing::ReadFormatExample("record-book.md")).substr(0, 60 + 2 + 43));
  EXPECT_EQ(disk_.Read("ADDBK3.Fil"),
            std::string(250, '\0') + std::string("\x08\0\x12\0", 4) + "/home/ann/acme.jpg");
  EXPECT_EQ(ReadRecord(folder_, contacts_, 2)->entries, acme.entries);
  EXPECT_EQ(PictureAt(2), "/home/ann/acme.jpg");
}

TEST_F(RecordStoreTest, AnEmployeeLiesOnTheDiskAsItsPageSays) {
  BookRecord lee = Blank(employees_);
  lee.entries[0] = "Lee";
  lee.entries[1] = "Ann";
  lee.entries[8] = "3/9/1980";
  lee.entries[16] = "Key 7";
  ASSERT_TRUE(WriteNew(folder_, employees_, 2, lee));
  EXPECT_EQ(disk_.Read("Name1.Fil"), FileOfPage("employees.md", 1002));
  EXPECT_EQ(disk_.Read("Name2.Fil").substr(60),
            std::string("\x2b\0Lee, Ann", 10) + std::string(34, ' ') + "2");
}

TEST_F(RecordStoreTest, AChangeKeepsTheFieldThatNoScreenHas) {
  Add(Named(contacts_, "Acme"));
  std::string content = disk_.Read("ADDBK1.Fil");
  content.replace(1190 + 920, 3, "old");
  disk_.Write("ADDBK1.Fil", content);
  BookRecord changed = Named(contacts_, std::string(45, 'n'));
  changed.entries[23] = std::string(231, 'c');
  ASSERT_TRUE(WriteChanged(folder_, contacts_, 2, changed));
  EXPECT_EQ(disk_.Read("ADDBK1.Fil").substr(1190 + 920, 3), "old");
  EXPECT_EQ(NameAt(2), std::string(40, 'n'));
  EXPECT_EQ(ReadRecord(folder_, contacts_, 2)->entries[23], std::string(230, 'c'));
  EXPECT_EQ(disk_.Read("ADDBK2.Fil").substr(62), std::string(45, 'n') + "     2");
}

TEST_F(RecordStoreTest, ADeletedRecordIsTheFirstToBeUsedAgainWithoutItsPicture) {
  for (const char* name : {"A", "B", "C"}) Add(Named(contacts_, name, "/p.jpg"));
  ASSERT_TRUE(DeleteRecord(folder_, contacts_, 3, false));
  EXPECT_EQ(disk_.Read("ADDBK1.Fil").substr(2 * 1190, 41), "*****" + std::string(36, ' '));
  EXPECT_EQ(disk_.Read("ADDBK2.Fil").substr(120, 47),
            std::string("\x2d\0#####", 7) + std::string(40, ' '));
  EXPECT_EQ(PictureAt(3), "");
  Add(Named(contacts_, "D"));
  EXPECT_EQ(NameAt(3), "D");
  EXPECT_EQ(FreeRecord(folder_, contacts_), 5);
}

TEST_F(RecordStoreTest, DeletingTheOnlyRecordRemovesTheFilesAndAnEmployeesFieldsAreBlanked) {
  BookRecord lee = Blank(employees_);
  lee.entries = std::vector<std::string>(17, "x");
  ASSERT_TRUE(WriteNew(folder_, employees_, 2, lee));
  ASSERT_TRUE(WriteNew(folder_, employees_, 3, lee));
  ASSERT_TRUE(DeleteRecord(folder_, employees_, 3, false));
  EXPECT_EQ(disk_.Read("Name1.Fil").substr(2 * 1002), "*****" + std::string(992, ' '));
  ASSERT_TRUE(DeleteRecord(folder_, employees_, 2, true));
  EXPECT_TRUE(disk_.Names().empty());
}

TEST_F(RecordStoreTest, ARecordIsFreeWhenItIsDeletedOrFilledOrBehindTheEnd) {
  const auto first_field = [](std::string field) {
    field.resize(1190, ' ');
    return field;
  };
  for (const auto& [field, free] : {std::pair<std::string, int>{"Acme", 3},
                                    {"***", 3},
                                    {"****", 2},
                                    {std::string(39, 'x'), 3},
                                    {std::string(40, 'x'), 2},
                                    {std::string(39, ' ') + "x", 2},
                                    {std::string(40, '\0'), 2}}) {
    disk_.Write("ADDBK1.Fil", std::string(1190, ' ') + first_field(field));
    EXPECT_EQ(FreeRecord(folder_, contacts_), free) << field;
  }
  disk_.Write("ADDBK1.Fil", std::string(1190, ' ') + "cut");
  EXPECT_EQ(FreeRecord(folder_, contacts_), 2);
}

TEST_F(RecordStoreTest, WithoutAFreeRecordTheOneBehindTheLastIsUsedAndKnownAsTaken) {
  std::string live(std::size_t{1190} * 20000, ' ');
  for (std::size_t at = 0; at < live.size(); at += 1190) live[at] = 'a';
  disk_.Write("ADDBK1.Fil", live);
  EXPECT_EQ(FreeRecord(folder_, contacts_), kOverflowRecord);
  EXPECT_FALSE(IsTaken(folder_, contacts_, kOverflowRecord));
  Add(Named(contacts_, "Last"));
  EXPECT_EQ(FreeRecord(folder_, contacts_), kOverflowRecord);
  EXPECT_TRUE(IsTaken(folder_, contacts_, kOverflowRecord));
}

TEST_F(RecordStoreTest, APathThatIsTooLongKeepsTheOldPictureButNeverAnothersOne) {
  const std::string longest(246, 'p');
  Add(Named(contacts_, "A", longest));
  EXPECT_EQ(PictureAt(2), longest);
  ASSERT_TRUE(WriteChanged(folder_, contacts_, 2, Named(contacts_, "A", longest + "p")));
  EXPECT_EQ(PictureAt(2), longest);
  ASSERT_TRUE(WriteNew(folder_, contacts_, 2, Named(contacts_, "B", longest + "p")));
  EXPECT_EQ(PictureAt(2), "");
}

// The disk goes at each call of the deletion; the next start of the program finds what stands.
TEST_F(RecordStoreTest, WhateverInterruptsADeletionNobodyMeetsWhatIsLeft) {
  bool is_done = false;
  int interrupted = 0;
  for (int call = 1; !is_done; ++call) {
    testing::TemporaryFolder disk;
    testing::FailingFileSystem files(storage::RealFileSystem());
    storage::ProgramFolder folder(files, disk.path());
    ASSERT_TRUE(WriteNew(folder, contacts_, 2, Named(contacts_, "A", "/a.jpg")));
    ASSERT_TRUE(WriteNew(folder, contacts_, 3, Named(contacts_, "B", "/b.jpg")));
    files.FailFrom(files.calls() + call);
    is_done = static_cast<bool>(DeleteRecord(folder, contacts_, 2, false));
    files.Recover();
    storage::ProgramFolder next_start(storage::RealFileSystem(), disk.path());
    next_start.Recover();
    if (ReadNames(next_start, contacts_).entries.size() == 2) {
      EXPECT_EQ(ReadRecord(next_start, contacts_, 2)->entries[0], "A") << call;
      EXPECT_EQ(ReadRecord(next_start, contacts_, 2)->picture, "/a.jpg") << call;
    } else {
      ++interrupted;
    }
    const int free = *FreeRecord(next_start, contacts_);
    ASSERT_TRUE(WriteNew(next_start, contacts_, free, Named(contacts_, "C")));
    EXPECT_EQ(ReadRecord(next_start, contacts_, free)->picture, "") << call;
    EXPECT_EQ(ReadRecord(next_start, contacts_, 3)->entries[0], "B") << call;
  }
  EXPECT_GT(interrupted, 3);
}

TEST_F(RecordStoreTest, WhatCantBeReadIsNeverTakenForABlankRecord) {
  Add(Named(contacts_, "A"));
  testing::FailingFileSystem files(storage::RealFileSystem());
  storage::ProgramFolder folder(files, disk_.path());
  files.FailFrom(1);
  storage::Fault fault = storage::Fault::kNone;
  EXPECT_FALSE(ReadRecord(folder, contacts_, 2, &fault));
  EXPECT_NE(fault, storage::Fault::kNone);
}

}  // namespace
}  // namespace tarnwell::record_book
