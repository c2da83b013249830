#include "record_book/display_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "record_book/display_rig.h"
#include "settings/panel_colors.h"

namespace tarnwell::record_book {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using DisplayScreenTest = DisplayRig;

TEST_F(DisplayScreenTest, EachOptionShowsItsFieldOfThoseWhoHaveIt) {
  Entries all;
  for (int entry = 0; entry < contacts::kContactEntries; ++entry) {
    all.emplace_back(entry, "e" + std::to_string(entry));
  }
  AddContact(2, all);
  AddContact(3, {{0, "Empty"}});
  Open();
  EXPECT_EQ(form().caption(), "Tools and Program Information - Business Contacts Display");
  EXPECT_THAT(Titles(), ElementsAre("Name", "Address", "Address Line 2", "City, State, Zip Code"));
  EXPECT_THAT(Rows(), ElementsAre(ElementsAre("e0, e1", "e2", "e3", "e4, e5  e6")));
  const struct {
    const char* option;
    const char* heading;
    const char* value;
    const char* picture;
  } cases[] = {
      {"Telephone", "Telephone", "e7", "Image2(0)"},
      {"Mobile", "Mobile", "e8", "Image2(0)"},
      {"Fax", "Fax", "e9", ""},
      {"Home Email", "Home Email", "e10", "Image6"},
      {"Business Email", "Business Email", "e11", "Image6"},
      {"Web Page", "Web Page", "e12", "Image5"},
      {"Job Title", "Job Title", "e13", ""},
      {"Company", "Company", "e14", ""},
      {"Bus. Phone", "Business Phone", "e20", "Image2(1)"},
      {"Bus. Mobile", "Business Mobile", "e21", "Image2(1)"},
      {"Bus. Fax", "Business Fax", "e22", ""},
  };
  for (const auto& one : cases) {
    Pick(one.option);
    EXPECT_EQ(form().shown_option.caption(), one.option);
    EXPECT_THAT(Titles(), ElementsAre("Name", one.heading));
    EXPECT_THAT(Rows(), ElementsAre(ElementsAre("e0, e1", one.value)));
    EXPECT_EQ(form().count.caption(), "No. Of Names: 1");
    std::string shown;
    for (const auto& [use, picture] : form().links.pictures) {
      if (picture->visible()) shown += picture->name();
    }
    EXPECT_EQ(shown, one.picture) << one.option;
  }
  Pick("Company Address");
  EXPECT_THAT(Rows(), ElementsAre(ElementsAre("e0, e1", "e15", "e16", "e17, e18  e19")));
  EXPECT_EQ(grid().rows(), 19);
}

TEST_F(DisplayScreenTest, AnEmployeesOptionsNameTheirFields) {
  Entries all;
  for (int entry = 0; entry < employees::kEmployeeEntries; ++entry) {
    all.emplace_back(entry, "e" + std::to_string(entry));
  }
  AddEmployee(2, all);
  Open("FDisplay1");
  EXPECT_EQ(form().caption(), "Employee Data - Employee Data Display");
  EXPECT_TRUE(form().headings->visible());
  const std::pair<const char*, const char*> cases[] = {
      {"Telephone", "e7"},         {"Anniversary", "e9"}, {"Birthdate", "e8"},
      {"Email Address", "e10"},    {"Other", "e15"},      {"Job Title", "e12"},
      {"Company Position", "e11"}, {"Date Ended", "e14"}, {"Date Of Hiring", "e13"}};
  for (const auto& [option, value] : cases) {
    Pick(option);
    EXPECT_THAT(Titles(), ElementsAre("Name", option));
    EXPECT_THAT(Rows(), ElementsAre(ElementsAre("e0, e1", value)));
    EXPECT_FALSE(form().headings->visible());
  }
  Pick("Address");
  EXPECT_THAT(Rows(), ElementsAre(ElementsAre("e0, e1", "e2", "e3", "e4, e5  e6")));
  EXPECT_EQ(form().links.pictures.size(), 2u);
}

TEST_F(DisplayScreenTest, DatesAreSortedByTheirDays) {
  const char* dates[] = {"12/31/1999", "someday", "Mar 9, 2026", "2/1/2000"};
  int record = 2;
  for (const char* date : dates) AddEmployee(record++, {{0, "Lee"}, {8, date}});
  Open("FDisplay1");
  Pick("Birthdate");
  grid().ClickHeading(1);
  std::vector<std::string> sorted;
  for (const auto& row : Rows()) sorted.push_back(row[1]);
  EXPECT_THAT(sorted, ElementsAre("12/31/1999", "2/1/2000", "Mar 9, 2026", "someday"));
}

TEST_F(DisplayScreenTest, ASearchLooksAtTheNameOnly) {
  AddSome();
  Open();
  Pick("Telephone");
  EXPECT_THAT(Names(), ElementsAre("Acme & Co", "Lee, Ann", "Zed"));
  rig.dialogs.ExpectNote("Search", "Please Enter Search Text then press Search!");
  Seek("  ");
  EXPECT_TRUE(form().search_text.focused());
  Seek(" lEE, a ");
  EXPECT_EQ(form().mode.caption(), "Current Display Mode: &Search For: [ lEE, a]");
  EXPECT_EQ(form().count.caption(), "No. Of Matches Found: 1");
  EXPECT_THAT(Names(), ElementsAre("Lee, Ann"));
  Pick("Mobile");  // Ann has none
  EXPECT_EQ(form().count.caption(), "No Matches were Found!");
  EXPECT_THAT(Rows(), IsEmpty());
  Seek("Bob");
  EXPECT_THAT(Names(), ElementsAre("lee, Bob"));
  Seek("555");
  EXPECT_THAT(Names(), IsEmpty());
  Seek("&");
  EXPECT_EQ(form().mode.caption(), "Current Display Mode: &Search For: [&&]");
  form().view_all.Click();
  EXPECT_EQ(form().mode.caption(), "Current Display Mode: &View All");
  EXPECT_EQ(form().count.caption(), "No. Of Names: 1");
  Pick("Job Title");
  EXPECT_EQ(form().count.caption(), "No Names Found with Info...");
}

TEST_F(DisplayScreenTest, AnEmployeesNameIsSoughtAsItWasTyped) {
  AddEmployee(2, {{0, "Lee"}, {1, "Ann"}, {7, "1"}});
  AddEmployee(3, {{0, "Leeds"}, {1, "Ann"}, {7, "2"}});
  Open("FDisplay1");
  Pick("Telephone");
  const std::pair<const char*, std::size_t> cases[] = {
      {"lee", 2}, {"lee, a", 1}, {"ann ", 0}, {" ann", 2}, {"lee ", 0}};
  for (const auto& [sought, found] : cases) {
    Seek(sought);
    EXPECT_THAT(Names(), SizeIs(found)) << sought;
  }
}

TEST_F(DisplayScreenTest, WhatIsTypedIsFoundAtEachKey) {
  AddSome();
  Open();
  Pick("Telephone");
  for (const auto& [typed, row] : {std::pair{"l", 2}, {"le", 2}, {"lex", 0}, {"z", 3}, {"", 0}}) {
    form().search_text.Type(typed);
    EXPECT_EQ(grid().current().row, row) << typed;
  }
  EXPECT_THAT(Names(), SizeIs(3));
}

TEST_F(DisplayScreenTest, ARowIsTakenFromTheGridOnlyUntilItIsFilledAgain) {
  AddSome();
  Open();
  Pick("Telephone");
  EXPECT_FALSE(form().remove_row.enabled());
  const std::string records = rig.temporary.Read("ADDBK1.Fil");
  grid().SelectCell(2, 1);
  EXPECT_EQ(form().status(), "Telephone Row 2: 555-0101");
  const auto expect_question = [&](Answer answer) {
    rig.dialogs.Expect({"Delete Command", "Temporarily delete this entire row from grid display?",
                        forms::Icon::kInformation, forms::Buttons::kYesNo, 2},
                       answer);
  };
  expect_question(Answer::kNo);
  form().remove_row.Click();
  EXPECT_THAT(Names(), SizeIs(3));
  expect_question(Answer::kYes);
  form().remove_row.Click();
  EXPECT_THAT(Names(), ElementsAre("Acme & Co", "Zed"));
  EXPECT_EQ(form().count.caption(), "No. Of Names: 2");
  EXPECT_EQ(grid().rows(), 19);
  EXPECT_EQ(rig.temporary.Read("ADDBK1.Fil"), records);
  grid().SelectCell(9, 0);
  EXPECT_FALSE(form().remove_row.enabled());
  form().view_all.Click();
  EXPECT_THAT(Names(), SizeIs(3));
}

TEST_F(DisplayScreenTest, ThePicturesDialOpenAndWriteToTheCellInHand) {
  AddSome();
  Open();
  Pick("Web Page");
  rig.dialogs.ExpectNote("Web Address Launcher Option",
                         "First, Select(Highlight) a valid web address on the Grid!");
  rig.ClickMenu("mOWeb");
  grid().SelectCell(1, 1);
  rig.ClickMenu("mOWeb");
  Pick("Home Email");
  rig.dialogs.ExpectNote("E-mail Option",
                         "First, Select(Highlight) a valid e-mail address on the Grid!");
  rig.ClickMenu("mOMail");
  grid().SelectCell(1, 1);
  form().links.pictures[CellUse::kWriteMail]->Click();
  EXPECT_THAT(rig.launcher.launched, ElementsAre("web www.zed.example", "mail acme@example.com"));
  rig.launcher.refuse = true;
  rig.dialogs.ExpectNote("E-mail Option",
                         "No program on this computer could write to this address!");
  rig.ClickMenu("mOMail");
  Pick("Telephone");
  rig.dialogs.ExpectNote("Telephone Dialing Option",
                         "First, Select(Highlight) a valid telephone number on the Grid!");
  rig.ClickMenu("mODial");
  grid().SelectCell(2, 1);
  rig.loop.on_wait = [&] { rig.CloseWindow(); };
  rig.ClickMenu("mODial");
  EXPECT_THAT(rig.modem.sent, ElementsAre("ATDT 555-0101;\r", "ATH\r"));
  EXPECT_NE(rig.top(), "ADDBKDISPLAY");
}

TEST_F(DisplayScreenTest, WhatLeadsNowhereAndWhatIsDeletedIsNotShown) {
  AddSome();
  ASSERT_TRUE(DeleteRecord(rig.folder, contacts::ContactBook(), 3, false));
  std::string index = rig.temporary.Read("ADDBK2.Fil");
  index.resize(60 * 9, '\0');
  const auto put = [&](int record, const std::string& item) {
    index[60u * static_cast<unsigned>(record - 1)] = static_cast<char>(item.size());
    index[60u * static_cast<unsigned>(record - 1) + 1] = 0;
    index.replace(60u * static_cast<unsigned>(record - 1) + 2, item.size(), item);
  };
  put(6, "Nobody");
  put(7, NewItem("Far away", 20001));
  put(8, NewItem("Again", 2));
  put(9, std::string(58, '\xFF'));
  rig.temporary.Write("ADDBK2.Fil", index);
  rig.temporary.Write("ADDBK1.Fil", rig.temporary.Read("ADDBK1.Fil").substr(0, 1190 * 4 - 100));
  Open();
  Pick("Telephone");
  EXPECT_THAT(Names(), ElementsAre("Zed", "Lee, Ann", "Zed"));
}

TEST_F(DisplayScreenTest, AFileThatCantBeReadIsSaid) {
  AddSome();
  Open();
  disk.Vanish();
  Pick("Telephone");
  EXPECT_THAT(Rows(), IsEmpty());
  EXPECT_THAT(form().count.caption(), HasSubstr("can't be read"));
  EXPECT_FALSE(form().print_options.enabled());
  disk.Recover();
  Pick("Telephone");
  EXPECT_EQ(form().count.caption(), "No. Of Names: 3");
}

TEST_F(DisplayScreenTest, AChosenPanelColorIsOfferedForSaving) {
  Open();
  rig.dialogs.ExpectColorQuestion(Answer::kYes);
  rig.dialogs.ExpectColor(0x112233);
  rig.ClickMenu("mOC");
  rig.dialogs.ExpectYesNoCancel("Color Changes", "Save changes made to Panel and or Text Color?",
                                Answer::kYes);
  form().exit.Click();
  EXPECT_EQ(settings::ReadPanelColor(rig.folder, settings::PanelColor::kContactDisplay).color(),
            0x112233);
}

}  // namespace
}  // namespace tarnwell::record_book
