#include "record_book/display_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "contacts/addbkdisplay.h"
#include "contacts/contact_book.h"
#include "employees/employee_book.h"
#include "employees/fdisplay1.h"
#include "record_book/record_store.h"
#include "settings/panel_colors.h"
#include "support/failing_file_system.h"
#include "support/program_rig.h"

namespace tarnwell::record_book {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using Entries = std::vector<std::pair<int, std::string>>;

class DisplayScreenTest : public ::testing::Test {
 protected:
  void Add(const BookLayout& layout, int record, const Entries& entries) {
    BookRecord person{std::vector<std::string>(static_cast<std::size_t>(layout.entries)), {}};
    for (const auto& [entry, text] : entries) {
      person.entries[static_cast<std::size_t>(entry)] = text;
    }
    ASSERT_TRUE(WriteNew(rig.folder, layout, record, person));
  }
  void AddContact(int record, const Entries& entries) {
    Add(contacts::ContactBook(), record, entries);
  }
  void AddEmployee(int record, const Entries& entries) {
    Add(employees::EmployeeBook(), record, entries);
  }
  // Zed, Acme and two brothers Lee.
  void AddSome() {
    AddContact(2, {{0, "Zed"}, {2, "9 Elm St"}, {7, "555-0109"}, {12, "www.zed.example"}});
    AddContact(3, {{0, "Acme & Co"}, {7, "555-0102"}, {10, "acme@example.com"}});
    AddContact(4, {{0, "Lee"},
                   {1, "Ann"},
                   {2, "1 Oak St"},
                   {4, "York"},
                   {5, "PA"},
                   {6, "17401"},
                   {7, "555-0101"}});
    AddContact(5, {{0, "lee"}, {1, "Bob"}, {3, "Flat 2"}, {8, "555-0103"}});
  }
  DisplayScreen& Open(const char* name = "ADDBKDISPLAY") {
    rig.Start();
    rig.navigator().Show(name);
    return form();
  }
  DisplayScreen& form() { return dynamic_cast<DisplayScreen&>(*rig.navigator().top()); }
  forms::Grid& grid() { return form().grid; }
  void Pick(const std::string& caption) {
    for (int i = 0; i < form().options.size(); ++i) {
      if (form().options.option(i).caption() == caption) return form().options.Pick(i);
    }
    FAIL() << "no option " << caption;
  }
  // The cells of the rows that aren't blank.
  std::vector<std::vector<std::string>> Rows() {
    std::vector<std::vector<std::string>> rows;
    for (int row = 1; row < grid().rows(); ++row) {
      std::vector<std::string> cells;
      for (int i = 0; i < grid().columns(); ++i) cells.push_back(grid().text(row, i));
      if (cells != std::vector<std::string>(cells.size())) rows.push_back(cells);
    }
    return rows;
  }
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& row : Rows()) names.push_back(row.front());
    return names;
  }
  std::vector<std::string> Titles() {
    std::vector<std::string> titles;
    for (int i = 0; i < grid().columns(); ++i) titles.push_back(grid().column(i).title);
    return titles;
  }
  void Seek(const std::string& text) {
    form().search_text.Type(text);
    form().search_text.PressEnter();
  }
  // What a row of the Complete Report or a list says, page by page.
  std::vector<std::string> PrintedTexts() {
    form().print.print.Click();
    std::vector<std::string> texts;
    for (const forms::Page& page : rig.pages.printed.back().pages) {
      texts.emplace_back("--");
      for (const std::string& text : testing::TextsOf(page)) texts.push_back(text);
    }
    return texts;
  }

  testing::FailingFileSystem disk{storage::RealFileSystem()};
  testing::ProgramRig rig{disk};
};

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

TEST_F(DisplayScreenTest, AHeadingSortsAndTelephonesGoWithTheirRows) {
  AddSome();
  Open();
  Pick("Telephone");
  grid().ClickHeading(1);
  EXPECT_THAT(Names(), ElementsAre("Lee, Ann", "Acme & Co", "Zed"));
  grid().ClickHeading(1);
  EXPECT_THAT(Names(), ElementsAre("Zed", "Acme & Co", "Lee, Ann"));
  form().print_options.Click();
  form().with_telephones.Check(true);
  EXPECT_THAT(PrintedTexts(),
              ::testing::IsSupersetOf({"Zed    Phone: 555-0109", "Acme & Co    Phone: 555-0102",
                                       "Lee, Ann    Phone: 555-0101"}));
  form().print.close.Click();
  Pick("Telephone");
  EXPECT_FALSE(grid().sort_mark());
  EXPECT_THAT(Names(), ElementsAre("Acme & Co", "Lee, Ann", "Zed"));
}

TEST_F(DisplayScreenTest, TheListIsCopiedAndExported) {
  AddSome();
  Open();
  rig.dialogs.ExpectNote("Copy Option", "Data has been copied to the Windows Clipboard.");
  rig.ClickMenu("mOCopy");
  EXPECT_EQ(rig.clipboard.text, "Lee, Ann\t1 Oak St\t\tYork, PA  17401\r\nZed\t9 Elm St\t\t\r\n");
  Pick("Bus. Fax");
  rig.ClickMenu("mOCopy");  // there is nothing to copy
  rig.ClickMenu("mUExcel");
  EXPECT_EQ(form().exporting.name.text(), "Business Fax.xls");
}

TEST_F(DisplayScreenTest, TheListIsPrintedInOneColumnOrTwo) {
  AddContact(2, {{0, std::string(39, 'N')}, {1, "Ann"}, {7, std::string(30, '7')}});
  AddContact(3, {{0, "Short"}, {7, "555"}});
  Open();
  Pick("Telephone");
  form().print_options.Click();
  EXPECT_EQ(form().print.copy_page.enabled(), true);
  std::vector<std::string> texts = PrintedTexts();
  ASSERT_THAT(texts, SizeIs(9));
  EXPECT_EQ(texts[1], "Telephone List");
  EXPECT_EQ(texts[2], "As of  March 09, 2026");
  EXPECT_EQ(texts[6], " " + std::string(30, '7'));
  form().print.as_of->Check(false);
  form().list_columns.Pick(1);
  texts = PrintedTexts();
  // Both on one line, the longer name cut.
  EXPECT_THAT(texts, ::testing::Not(::testing::Contains(HasSubstr("As of"))));
  std::string all;
  for (const std::string& text : texts) all += text;
  EXPECT_THAT(all, HasSubstr(std::string(39, 'N').substr(0, 10)));
  EXPECT_THAT(all, ::testing::Not(HasSubstr("Ann")));
}

TEST_F(DisplayScreenTest, TheCompleteReportHasASectionForEachOption) {
  AddSome();
  Open();
  Pick("Fax");
  form().complete_report.Click();
  EXPECT_FALSE(form().print.copy_page.enabled() || form().with_telephones.visible());
  const std::vector<std::string> texts = PrintedTexts();
  const std::string as_of = "As of  Monday, March 09, 2026";
  const std::string title = "Complete Business Contacts Report";
  EXPECT_THAT(
      texts,
      ElementsAre("--", title, as_of, "Address", "Lee, Ann", "    1 Oak St", "    York, PA  17401",
                  "Zed", "    9 Elm St",  //
                  "--", title + "  Page - 2", as_of, "Telephone", "Acme & Co", "    555-0102",
                  "Lee, Ann", "    555-0101", "Zed", "    555-0109",                        //
                  "--", title + "  Page - 3", as_of, "Mobile", "lee, Bob", "    555-0103",  //
                  "--", title + "  Page - 4", as_of, "Home Email", "Acme & Co",
                  "    acme@example.com",  //
                  "--", title + "  Page - 5", as_of, "Web Page", "Zed", "    www.zed.example"));
  form().print.close.Click();
  EXPECT_EQ(form().shown_option.caption(), "Fax");
}

TEST_F(DisplayScreenTest, ALongSectionGoesOnUnderItsHeadAndCanBeCancelled) {
  for (int i = 2; i < 500; ++i) {
    AddEmployee(i, {{0, "Name" + std::to_string(1000 + i)}, {2, "Street"}, {7, "555"}});
  }
  Open("FDisplay1");
  form().complete_report.Click();
  const auto& document = *form().print.preview.document();
  for (const forms::Page& page : document.pages) {
    for (const forms::Mark& mark : page) {
      if (const auto* text = std::get_if<forms::PlacedText>(&mark)) {
        EXPECT_LE(text->y, 15840 - 240) << text->text;
      }
    }
  }
  EXPECT_EQ(testing::TextsOf(document.pages[1])[2], "Address (Continued) ");
  EXPECT_EQ(testing::TextsOf(document.pages[1])[0], "Complete Employee Data Report  Page - 2");
  form().print.close.Click();
  rig.loop.on_yield = [&] { rig.navigator().top()->PressEscape(); };
  class Slow : public testing::FakeClock {};
  const auto start = rig.clock.now;
  rig.window.hourglasses = 0;
  form().complete_report.Click();
  EXPECT_TRUE(form().print.is_open());  // it took no time
  EXPECT_EQ(rig.clock.now.time_of_day, start.time_of_day);
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
