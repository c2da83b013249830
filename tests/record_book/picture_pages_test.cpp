#include "record_book/picture_pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "contacts/contact_book.h"
#include "employees/employee_book.h"
#include "record_book/record_store.h"
#include "support/fixed_metrics.h"
#include "support/program_rig.h"

namespace tarnwell::record_book {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

class PicturePagesTest : public ::testing::Test {
 protected:
  void AddEmployee(int record, const char* last, const char* birthday, const char* picture = "") {
    BookRecord content{std::vector<std::string>(17), picture};
    content.entries[0] = last;
    content.entries[1] = "Ann";
    content.entries[2] = "1 Main St";
    content.entries[4] = "San Buenaventura";
    content.entries[5] = "CA";
    content.entries[6] = "93001";
    content.entries[8] = birthday;
    ASSERT_TRUE(WriteNew(rig.folder, employees::EmployeeBook(), record, content));
  }
  void Open(const char* display, int option) {
    rig.Start();
    rig.navigator().Show(display);
    auto& frame = *rig.navigator().top()->Find("Option3D1(" + std::to_string(option) + ")");
    rig.dialogs.ExpectNote("Print Pictures Restraint",
                           "Due to some computer and video memory restraints this portion of\n"
                           "the program was written to only display and print one page at a time.\n"
                           "NOTE: When you select Print, it may take several minutes to print,\n"
                           "based on you computer memory, processor and size of printer buffer!  \n"
                           "Sorry for any inconvience and additional time this may require!");
    dynamic_cast<forms::Option&>(frame).Click();
  }
  PicturePages& form() { return dynamic_cast<PicturePages&>(*rig.navigator().top()); }
  forms::Page Printed() {
    form().preview.Click();
    form().print.print.Click();
    return rig.pages.printed.back().pages.at(0);
  }

  testing::ProgramRig rig;
};

TEST_F(PicturePagesTest, APageHasEightCellsAtTheirPlaces) {
  const auto png = std::make_shared<const std::string>("png");
  rig.pictures.at["/a.jpg"] = {png, storage::Fault::kNone, 690, 345};
  for (int i = 0; i < 9; ++i) {
    AddEmployee(2 + i, ("N" + std::to_string(i)).c_str(), "3/9/1980", i == 1 ? "/a.jpg" : "");
  }
  Open("FDisplay1", 10);
  EXPECT_EQ(form().caption(), "Employee Data - Employee Pictures Display");
  EXPECT_EQ(form().total.caption(), " Total = 9");
  EXPECT_EQ(form().page_label.caption(), "Page 1 of 2");
  form().lines[0]->Check(true);
  form().lines[1]->Check(true);
  const forms::Page page = Printed();
  const auto texts = testing::TextsOf(page);
  EXPECT_EQ(texts[0], "Address Book Pictures - Page No. 1");
  EXPECT_EQ(texts[1], "As of  Monday, March 09, 2026");
  EXPECT_EQ(texts[2], "                       No Picture");
  EXPECT_EQ(texts[3], "N0, Ann");
  EXPECT_EQ(texts[4], "1 Main St");
  EXPECT_EQ(texts[5], "San Buenaventu, CA, 93001");
  // The second cell's: 4.15 and 0.85 inches, 2.3 wide, half as high.
  EXPECT_THAT(page, Contains(forms::Mark(forms::PlacedPicture{5976, 1224, 3312, 1656, "/a.jpg"})));
  form().print.close.Click();
  form().pages.Pick(1);
  EXPECT_EQ(form().page_label.caption(), "Page 2 of 2");
  EXPECT_THAT(testing::TextsOf(Printed()), Contains("N8, Ann"));
  form().print.close.Click();
  form().cancel.Click();
  EXPECT_EQ(rig.top(), "FDisplay1");
}

TEST_F(PicturePagesTest, ABirthdayMonthAndAPictureChooseWhoIsShown) {
  AddEmployee(2, "A", "3/9/1980");
  AddEmployee(3, "B", "March 1, 1975", "/b.jpg");
  AddEmployee(4, "C", "");
  AddEmployee(5, "D", "Marked", "**");
  AddEmployee(6, "E", "Dec 24");
  Open("FDisplay1", 10);
  for (const auto& [typed, count] :
       {std::pair{"3", 3}, {"Mar", 3}, {"march", 3}, {"12", 1}, {"13", 0}, {"", 0}}) {
    form().month.Type(typed);
    form().update.Click();
    EXPECT_EQ(form().names.items().size(), static_cast<std::size_t>(count)) << typed;
  }
  EXPECT_EQ(form().month.text(), "Jan");
  EXPECT_EQ(form().page_label.caption(), "Page 1 of 1");
  form().birthdays.Pick(0);
  form().display.Pick(1);
  EXPECT_THAT(form().names.items(), ElementsAre("B, Ann"));
  form().names.Pick(0);
  EXPECT_EQ(form().picture_note.caption(), "This picture isn't there any more: /b.jpg");
}

TEST_F(PicturePagesTest, ContactsHaveLinesAndAHeadOfTheirOwn) {
  BookRecord acme{std::vector<std::string>(24), ""};
  acme.entries[0] = "Acme";
  acme.entries[20] = "555";
  ASSERT_TRUE(WriteNew(rig.folder, contacts::ContactBook(), 2, acme));
  Open("ADDBKDISPLAY", 13);
  for (auto& line : form().lines) line->Check(true);
  EXPECT_THAT(
      testing::TextsOf(Printed()),
      ElementsAre("Business Contacts Pictures - Page No. 1", "As of  Monday, March 09, 2026",
                  "                       No Picture", "Acme", "Bus. Ph -555"));
}

}  // namespace
}  // namespace tarnwell::record_book
