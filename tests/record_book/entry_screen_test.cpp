#include "record_book/entry_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "contacts/contact_book.h"
#include "forms/disk_trouble.h"
#include "record_book/record_store.h"
#include "support/failing_file_system.h"
#include "support/program_rig.h"

namespace tarnwell::record_book {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* kTitle = "Entry/View Screen";
constexpr const char* kBeforeNext = "Save changes made to data?";
constexpr const char* kBeforeExit = "Save changes made to data before exiting?";

class EntryScreenTest : public ::testing::Test {
 protected:
  void SetUp() override { Open("ADDBKVIEW1"); }
  void Open(const char* form) {
    rig.Start();
    rig.navigator().Show(form);
  }
  EntryScreen& form() { return dynamic_cast<EntryScreen&>(*rig.navigator().top()); }
  forms::TextField& field(std::size_t entry) { return *form().fields.at(entry); }
  void Add(std::string_view name) {
    field(0).Type(name);
    form().save.Click();
  }
  void View(std::string_view name) {
    form().search.Type(name);
    form().search.PressEnter();
  }
  void ExpectDelete(const std::string& name, Answer answer) {
    rig.dialogs.Expect({"Delete Current File", "Do You really want to delete\n" + name + " file?",
                        forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2},
                       answer);
  }
  std::string Stored(int record, std::size_t entry = 0) {
    return ReadRecord(rig.folder, contacts::ContactBook(), record)->entries[entry];
  }

  testing::FailingFileSystem disk{storage::RealFileSystem()};
  testing::ProgramRig rig{disk};
};

TEST_F(EntryScreenTest, ANewEntryIsSavedFoundChangedAndShownAgain) {
  EXPECT_EQ(form().caption(),
            "Tools and Program Informaiton - Business Contacts Data Entry Screen");
  EXPECT_FALSE(form().save.enabled() || form().change.enabled() || form().link.enabled());
  field(0).Type("Acme Tools");
  EXPECT_TRUE(form().save.enabled() && form().change.enabled() && form().link.enabled());
  field(4).Type("Reno");
  form().comments->Type("Pays late");
  form().save.Click();
  EXPECT_EQ(field(0).text() + form().comments->text(), "");
  EXPECT_TRUE(field(0).focused());
  EXPECT_FALSE(form().save.enabled());
  Add("Zed");
  form().mode.Click();
  EXPECT_EQ(form().caption(), "Tools and Program Informaiton - Business Contacts Data View Screen");
  EXPECT_THAT(form().names.items(), ElementsAre("Acme Tools", "Zed"));
  EXPECT_EQ(form().count.caption(), " 2 - Entries ");
  View("ACME");
  EXPECT_EQ(field(4).text(), "Reno");
  EXPECT_TRUE(form().remove.enabled() && form().print_file.enabled() && form().change.enabled());
  EXPECT_FALSE(form().save.enabled());
  form().change.Click();
  field(0).Type("Zoo");
  form().save.Click();
  EXPECT_THAT(form().names.items(), ElementsAre("Zed", "Zoo"));
  EXPECT_EQ(field(0).text(), "");
  EXPECT_EQ(Stored(2), "Zoo");
  EXPECT_EQ(Stored(2, 23), "Pays late");
}

TEST_F(EntryScreenTest, AShownEntryIsLockedUntilAPersonClicksIntoIt) {
  Add("Acme");
  form().mode.Click();
  rig.dialogs.ExpectNote("View Command", "Name must first be selected to view");
  field(4).Click();
  field(4).Type("x");
  EXPECT_EQ(field(4).text(), "");
  View("a");
  field(4).Type("x");
  EXPECT_EQ(field(4).text(), "");
  field(4).Click();
  EXPECT_TRUE(field(4).marked());
  field(4).Type("x");
  EXPECT_EQ(field(4).text(), "x");
  EXPECT_TRUE(form().save.enabled());
}

TEST_F(EntryScreenTest, AnEntryWithoutItsNameIsntSavedAndIsntLostOnTheWayOut) {
  field(4).Type("Reno");
  rig.dialogs.ExpectNote("Save", "Business Name must be entered to save file!");
  form().save.Click();
  rig.dialogs.ExpectYesNo(kTitle, kBeforeExit, Answer::kYes);
  rig.dialogs.ExpectNote("Save", "Business Name must be entered to save file!");
  form().exit.Click();
  EXPECT_EQ(rig.top(), "ADDBKVIEW1");
  EXPECT_EQ(field(4).text(), "Reno");
  EXPECT_TRUE(field(0).focused());
  rig.dialogs.ExpectYesNo(kTitle, kBeforeExit, Answer::kNo);
  form().exit.Click();
  EXPECT_NE(rig.top(), "ADDBKVIEW1");
}

TEST_F(EntryScreenTest, AnotherNameIsReadOnlyWhenTheChangesAreSettled) {
  for (const char* name : {"A", "B", "C"}) Add(name);
  form().mode.Click();
  View("B");
  form().change.Click();
  field(0).Type("D");
  rig.dialogs.ExpectYesNoCancel(kTitle, kBeforeNext, Answer::kCancel);
  form().names.Pick(0);
  EXPECT_EQ(form().names.selected(), 1);
  EXPECT_EQ(field(0).text(), "D");
  rig.dialogs.ExpectYesNoCancel(kTitle, kBeforeNext, Answer::kYes);
  form().names.Open(2);  // "C", which is the second one once "B" is "D"
  EXPECT_THAT(form().names.items(), ElementsAre("A", "C", "D"));
  EXPECT_EQ(form().search.text(), "C");
  form().view.Click();
  EXPECT_EQ(field(0).text(), "C");
  form().change.Click();
  field(0).Type("E");
  rig.dialogs.ExpectYesNoCancel(kTitle, kBeforeNext, Answer::kNo);
  form().mode.Click();
  EXPECT_EQ(Stored(4), "C");
}

TEST_F(EntryScreenTest, TwinsAreReadByTheirPlaceAndASearchMarksAsOneTypes) {
  for (const char* city : {"Reno", "Elko"}) {
    field(4).Type(city);
    Add("Twin");
  }
  form().mode.Click();
  form().names.Open(1);
  EXPECT_EQ(field(4).text(), "Elko");
  form().search.Type("tw");
  EXPECT_EQ(form().names.selected(), 0);
  form().search.Type("nobody");
  EXPECT_EQ(form().names.selected(), forms::ListBox::kNone);
  rig.dialogs.ExpectError("File Search", "No matching file was found!");
  form().search.PressEnter();
  form().search.Type("");
  rig.dialogs.ExpectNote("View Command", "Name must first be selected to view");
  form().view.Click();
  EXPECT_TRUE(form().search.focused());
}

TEST_F(EntryScreenTest, DeletingAsksAndTheLastOneEndsInTheEntryScreen) {
  for (const char* name : {"A", "B"}) Add(name);
  form().mode.Click();
  View("A");
  ExpectDelete("A", Answer::kNo);
  form().remove.Click();
  EXPECT_EQ(field(0).text(), "A");
  ExpectDelete("A", Answer::kYes);
  form().remove.Click();
  EXPECT_THAT(form().names.items(), ElementsAre("B"));
  EXPECT_EQ(form().count.caption(), " 1 - Entries ");
  EXPECT_FALSE(form().remove.enabled());
  View("B");
  ExpectDelete("B", Answer::kYes);
  form().remove.Click();
  EXPECT_FALSE(form().list_panel.visible());
  EXPECT_FALSE(rig.folder.Exists("ADDBK1.Fil"));
  rig.dialogs.ExpectNote("View Data",
                         "There are currently no files to view,\nuse entry screen to input data.");
  form().mode.Click();
  EXPECT_FALSE(form().list_panel.visible());
}

// "There are none" would be a lie, and the last of those that were read isn't the last of all.
TEST_F(EntryScreenTest, NamesThatCantBeReadAreSaidAndNoneIsOffered) {
  for (const char* name : {"A", "B"}) Add(name);
  disk.Vanish();
  rig.dialogs.ExpectError("Can't Be Read",
                          forms::UnreadableNote("The list of names", storage::Fault::kBroken));
  form().mode.Click();
  EXPECT_TRUE(form().list_panel.visible());
  EXPECT_TRUE(form().names.items().empty());
  disk.Recover();
  form().mode.Click();
  form().mode.Click();
  EXPECT_THAT(form().names.items(), ElementsAre("A", "B"));
}

TEST_F(EntryScreenTest, AnUnsafeNameIsToldWhileItIsTyped) {
  field(0).Type(std::string(39, 'x'));
  EXPECT_EQ(form().status(), "");
  field(0).Type(std::string(40, 'x'));
  EXPECT_THAT(form().status(), HasSubstr("39 are safe."));
}

TEST_F(EntryScreenTest, EnterWalksToTheSeventeenthEntryAndNoFurther) {
  field(0).Focus();
  for (std::size_t entry = 0; entry < 16; ++entry) field(entry).PressEnter();
  EXPECT_TRUE(field(16).focused());
  field(16).PressEnter();
  EXPECT_TRUE(field(16).focused());
  EXPECT_TRUE(form().comments->PressEnter());
  Open("FView");
  EXPECT_FALSE(form().comments->PressEnter());
  form().comments->Type("line\r\n");
  EXPECT_TRUE(form().comments->PressEnter());
  EXPECT_TRUE(field(0).focused());
}

TEST_F(EntryScreenTest, APictureIsLinkedChangedAndUnlinked) {
  const auto png = std::make_shared<const std::string>("png");
  rig.pictures.at["/home/ann/acme.jpg"] = {png, storage::Fault::kNone, 40, 30};
  rig.folders.readable["/home/ann/"].files = {"acme.jpg", "broken.jpg", "notes.txt"};
  Add("Acme");
  form().mode.Click();
  View("Acme");
  form().link.Click();
  parts::PicturePanel& panel = form().pictures;
  EXPECT_FALSE(panel.enter.enabled() || panel.remove.enabled());
  panel.chooser.Open("/home/ann/");
  EXPECT_THAT(panel.chooser.files.items(), ElementsAre("acme.jpg", "broken.jpg"));
  panel.chooser.files.Pick(1);
  EXPECT_EQ(panel.note.caption(), "Program is unable to load this file as a Picture File!!!");
  EXPECT_FALSE(panel.enter.enabled());
  panel.chooser.files.Pick(0);
  panel.enter.Click();
  EXPECT_EQ(form().picture.content(), png);
  EXPECT_TRUE(form().save.enabled() && form().large.enabled());
  form().large.Check(true);
  form().small.Check(true);
  EXPECT_FALSE(form().large.checked());
  form().save.Click();
  rig.pictures.at.clear();
  View("Acme");
  EXPECT_THAT(form().picture_note.caption(), HasSubstr("isn't there any more: /home/ann/acme.jpg"));
  EXPECT_FALSE(form().unsaved());
  form().link.Click();
  form().pictures.remove.Click();
  form().save.Click();
  EXPECT_EQ(ReadRecord(rig.folder, contacts::ContactBook(), 2)->picture, "");
}

TEST_F(EntryScreenTest, TheClipboardGetsTheEntriesWithTheirCaptionsAndTheFirstTelephone) {
  field(0).Type("Acme");
  field(3).Type("Floor 2");
  field(4).Type("Reno");
  field(8).Type("555-1234");
  field(15).Type("1 Main St");
  field(16).Type("Back door");
  rig.dialogs.ExpectNote("Copy Option", "Data has been copied to the Windows Clipboard.");
  rig.ClickMenu("mECopy");
  EXPECT_EQ(rig.clipboard.text,
            "Business Name: Acme\r\n               Floor 2\r\nCity: Reno\r\nMobile: 555-1234\r\n"
            "Address: 1 Main St\r\nCity: Back door\r\n");
  rig.ClickMenu("mECopyTel");
  EXPECT_EQ(rig.clipboard.text, "555-1234");
  rig.ClickMenu("mECopyMail");
  EXPECT_EQ(rig.clipboard.text, "555-1234");
  field(11).Type("ann@example.com");
  rig.ClickMenu("mEMail");
  EXPECT_THAT(rig.launcher.launched, ElementsAre("mail ann@example.com"));
}

TEST_F(EntryScreenTest, WhatTheDiskRefusesStaysOnTheScreen) {
  field(0).Type("Acme");
  disk.AllowBytes(0);
  rig.dialogs.ExpectError(
      "Not Saved", "This entry could not be saved: the disk is full.\nIt is still on the screen.");
  form().save.Click();
  EXPECT_EQ(field(0).text(), "Acme");
  EXPECT_TRUE(form().unsaved());
}

}  // namespace
}  // namespace tarnwell::record_book
