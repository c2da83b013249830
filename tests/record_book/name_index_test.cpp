#include "record_book/name_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "contacts/contact_book.h"
#include "employees/employee_book.h"
#include "storage/file_system.h"
#include "support/failing_file_system.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"

namespace tarnwell::record_book {
namespace {

using ::testing::ElementsAre;

const BookLayout& Contacts() { return contacts::ContactBook(); }

class NameIndexTest : public ::testing::Test {
 protected:
  std::vector<std::string> Items(BlankSecond blank_second = BlankSecond::kSkipped) {
    std::vector<std::string> items;
    for (const NameEntry& entry : ReadNames(folder_, Contacts(), blank_second).entries) {
      items.push_back(std::string(NameIn(entry)) + "/" + std::to_string(entry.record));
    }
    return items;
  }
  // Items from record 2 on, each in its 60 bytes.
  void WriteItems(const std::vector<std::string>& items) {
    std::string content(60, '\0');
    for (const std::string& item : items) {
      std::string record{static_cast<char>(item.size()), '\0'};
      record += item;
      record.resize(60, '\0');
      content += record;
    }
    disk_.Write("ADDBK2.Fil", content);
  }

  testing::TemporaryFolder disk_;
  storage::ProgramFolder folder_{storage::RealFileSystem(), disk_.path()};
};

TEST_F(NameIndexTest, TheExampleOfItsPageIsReadAndDeletedNamesAreSkipped) {
  disk_.Write("addbk2.fil", testing::FileOf(testing::ReadFormatExample("record-book.md")));
  EXPECT_THAT(Items(), ElementsAre("Acme Tools/2", "Zed/4"));
}

TEST_F(NameIndexTest, TheNumberStandsAtColumn43OrAt48AndBehindLongNames) {
  EXPECT_EQ(NewItem("Acme", 17), "Acme" + std::string(38, ' ') + "17");
  EXPECT_EQ(ChangedItem("Acme", 17), "Acme" + std::string(43, ' ') + "17");
  for (const auto& [length, read] : {std::pair{41, 17}, {42, 17}, {43, 0}, {45, 0}}) {
    const std::string name(static_cast<std::size_t>(length), 'x');
    EXPECT_EQ(RecordOf(NewItem(name, 17)), read) << length;
    EXPECT_EQ(RecordOf(ChangedItem(name, 17)), read) << length;
    EXPECT_EQ(ChangedItem(name, 17).size(), static_cast<std::size_t>(std::max(length, 42)) + 7);
    EXPECT_EQ(NameIn({NewItem(name, 17), read}), name);
  }
}

TEST_F(NameIndexTest, OnlyNumbersThatABookHasAreTaken) {
  const auto item = [](std::string_view number) {
    return NewItem("Acme", 0).substr(0, 42) + std::string(number);
  };
  for (const auto& [number, read] : {std::pair{"", 0},
                                     {"  2", 2},
                                     {"1", 0},
                                     {"-7", 0},
                                     {"20001", 20001},
                                     {"20002", 0},
                                     {"9e300", 0},
                                     {"x", 0}}) {
    EXPECT_EQ(RecordOf(item(number)), read) << number;
  }
  EXPECT_EQ(NameIn({"Studio 54", 0}), "Studio 54");
  EXPECT_EQ(NameIn({NewItem("Studio 54", 7), 7}), "Studio 54");
}

TEST_F(NameIndexTest, NamesAreSortedWithoutRegardToCapitalsAndTwinsByTheirRecords) {
  WriteItems({NewItem("beta", 2), NewItem("Alpha", 3), NewItem("BETA", 12), NewItem("beta", 4)});
  EXPECT_THAT(Items(), ElementsAre("Alpha/3", "BETA/12", "beta/2", "beta/4"));
}

TEST_F(NameIndexTest, AnEmptyItemIsListedAtRecordTwoAloneAndOnlyWhereItIsAskedFor) {
  WriteItems({"", NewItem("Alpha", 3), ""});
  EXPECT_THAT(Items(), ElementsAre("Alpha/3"));
  EXPECT_THAT(Items(BlankSecond::kListed), ElementsAre("/0", "Alpha/3"));
}

TEST_F(NameIndexTest, WhatIsNoItemIsNoNameAndWhatCantBeReadIsSaid) {
  disk_.Write("ADDBK2.Fil", std::string(60, '\0') + std::string(60, '\xff') + "\x02");
  EXPECT_TRUE(Items().empty());
  testing::FailingFileSystem files(storage::RealFileSystem());
  storage::ProgramFolder failing(files, disk_.path());
  files.FailFrom(2);
  EXPECT_NE(ReadNames(failing, Contacts()).fault, storage::Fault::kNone);
}

TEST_F(NameIndexTest, ASearchLooksAnywhereInAnItemAtItsDigitsToo) {
  WriteItems({NewItem("Acme Tools", 2), NewItem("Zed", 3), NewItem("tool shop", 15)});
  const NameList names = ReadNames(folder_, Contacts());
  for (const auto& [text, place] :
       {std::pair{"TOOL", 0}, {"l sh", 1}, {"5", 1}, {"3", 2}, {"", 0}, {"none", -1}}) {
    EXPECT_EQ(FindName(names.entries, text), place) << text;
  }
  EXPECT_EQ(PlaceOf(names.entries, NewItem("Mid", 9)), 1u);
}

TEST_F(NameIndexTest, ContactsNamesOfFortyCharactersAreUnsafe) {
  EXPECT_FALSE(IsUnsafeName(Contacts(), std::string(39, 'x') + " "));
  EXPECT_TRUE(IsUnsafeName(Contacts(), std::string(40, 'x')));
  EXPECT_FALSE(IsUnsafeName(employees::EmployeeBook(), std::string(20, 'x')));
}

}  // namespace
}  // namespace tarnwell::record_book
