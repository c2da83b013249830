#include "backup/backup1.h"

#include <gmock/gmock.h>

#include "backup/backup_rig.h"
#include "forms/form_names.h"
#include "planner/zcalandar1.h"
#include "record_book/entry_screen.h"
#include "settings/backup_place.h"
#include "support/failing_file_system.h"
#include "support/program_rig.h"

namespace tarnwell::backup {
namespace {

using forms::Answer;
using forms::Buttons;
using forms::Icon;
using tarnwell::testing::FailingFileSystem;
using tarnwell::testing::ProgramRig;
using tarnwell::testing::TemporaryFolder;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class Backup1Test : public ::testing::Test {
 protected:
  void SetUp() override {
    rig_.Start();
    PutIn(disk_);
    rig_.temporary.Write("Stat1.Fil", "status");
    rig_.temporary.Write("DRPln1.Fl2", "plan");
  }
  // The place that the panel opens with.
  void PutIn(const TemporaryFolder& disk) {
    rig_.folders.readable[disk.path() + "/"] = {};
    ASSERT_TRUE(settings::WriteBackupPlace(rig_.folder, disk.path()));
  }
  Backup1& panel() { return rig_.Get<Backup1>("Backup1"); }
  // What a person does at the panel, before leaving it.
  void At(const char* entry, const std::function<void()>& act) {
    bool is_shown = false;
    rig_.loop.during_modal = [&] {
      is_shown = true;
      act();
      if (rig_.navigator().Find("Backup1")) panel().exit.Click();
    };
    rig_.ClickMenu(entry);
    EXPECT_TRUE(is_shown);
    EXPECT_EQ(rig_.program->variables().BackupMode, 0);
    EXPECT_EQ(rig_.program->variables().RestoreMarker, 0);
  }
  void ExpectDeleteQuestion(const std::string& files, Answer answer) {
    rig_.dialogs.Expect({"Delete Files",
                         "This utility will first Delete all existing " + files +
                             " files\nlocated in Path: " + disk_.path() + "/\nProceed?",
                         Icon::kQuestion, Buttons::kYesNoCancel, 2},
                        answer);
  }

  FailingFileSystem files_{storage::RealFileSystem()};
  ProgramRig rig_{files_};
  TemporaryFolder disk_;
};

TEST_F(Backup1Test, BacksUpAndSaysWhatWasCopied) {
  At("mUB", [&] {
    EXPECT_EQ(panel().make.caption(), "&Make Backup");
    EXPECT_EQ(panel().free_space.caption(), "Free space: 1.5 MB");
    ExpectDeleteQuestion("Company Documents", Answer::kYes);
    panel().make.Click();
    EXPECT_THAT(panel().state.caption(), StartsWith("Backup Complete"));
    EXPECT_THAT(panel().summary.caption(), HasSubstr("left out: 0"));
    EXPECT_FALSE(panel().files.visible());
    panel().show_files.Click();
    EXPECT_TRUE(panel().files.visible());
    EXPECT_THAT(panel().files.items(), Contains("Copied: DRPln1.Fl2"));
  });
  EXPECT_EQ(disk_.Read("DRPln1.hb1"), "plan");
}

TEST_F(Backup1Test, NothingHappensWithoutAYes) {
  disk_.Write("old.hb1", "old");
  for (const Answer answer : {Answer::kNo, Answer::kCancel}) {
    At("mUB", [&] {
      ExpectDeleteQuestion("Company Documents", answer);
      panel().make.Click();
    });
  }
  EXPECT_EQ(disk_.Read("old.hb1"), "old");
}

TEST_F(Backup1Test, RestoresAfterItsQuestionOnly) {
  At("mUB", [&] {
    ExpectDeleteQuestion("Company Documents", Answer::kYes);
    panel().make.Click();
  });
  rig_.temporary.Write("DRPln1.Fl2", "newer");
  const forms::MessageBox question{
      "Delete Files",
      "This utility will first Delete all existing User Created Files\n"
      "located in The Tarnwell Program!\nProceed?",
      Icon::kQuestion, Buttons::kYesNoCancel, 2};
  At("mUR", [&] {
    rig_.dialogs.Expect(question, Answer::kNo);
    panel().make.Click();
    EXPECT_EQ(rig_.temporary.Read("DRPln1.Fl2"), "newer");
    rig_.dialogs.Expect(question, Answer::kYes);
    panel().make.Click();
    EXPECT_EQ(panel().state.caption(), "Restoration Completed");
    EXPECT_FALSE(panel().make.enabled());
  });
  EXPECT_EQ(rig_.temporary.Read("DRPln1.Fl2"), "plan");
}

TEST_F(Backup1Test, WithoutTheFirstDiskNothingIsAsked) {
  At("mUR", [&] {
    rig_.dialogs.ExpectError("Disk Error",
                             "Unable to find Backup Disk #1 or Backup files!\n"
                             "Please insert Disk #1 into selected Drive and Try again.");
    panel().make.Click();
  });
  EXPECT_EQ(rig_.temporary.Read("DRPln1.Fl2"), "plan");
}

TEST_F(Backup1Test, ABackupThatIsntWholeIsRestoredOnlyKnowingly) {
  At("mUB", [&] {
    ExpectDeleteQuestion("Company Documents", Answer::kYes);
    panel().make.Click();
  });
  disk_.Remove("Stat1.hb1");
  disk_.Write("DiskInfo.bk1", disk_.Read("DiskInfo.bk1").substr(0, 150));
  const int files = static_cast<int>(disk_.Names().size()) - 1;
  At("mUR", [&] {
    rig_.dialogs.Expect({"Disk Error",
                         "This backup isn't whole:\nIt was never finished.\nIt has " +
                             std::to_string(files) + " of its " + std::to_string(files + 1) +
                             " files.\nRestore what is there all the same?",
                         Icon::kExclamation, Buttons::kYesNo, 2},
                        Answer::kNo);
    panel().make.Click();
  });
  EXPECT_EQ(rig_.temporary.Read("Stat1.Fil"), "status");
}

TEST_F(Backup1Test, TheProgramsOwnFolderTakesNoBackup) {
  rig_.folders.readable["/home/ann/Tarnwell/"] = {};
  ASSERT_TRUE(settings::WriteBackupPlace(rig_.folder, "/home/ann/Tarnwell"));
  for (const char* entry : {"mUB", "mUR"}) {
    At(entry, [&] {
      rig_.dialogs.ExpectError("Disk Error",
                               "This is the program's own folder.\nPlease choose another place.");
      panel().make.Click();
    });
  }
}

TEST_F(Backup1Test, ADiskThatCantBeWrittenIsTold) {
  files_.DiskAt(disk_.path()).is_read_only = true;
  for (const Answer answer : {Answer::kOk, Answer::kCancel}) {
    At("mUB", [&] {
      ExpectDeleteQuestion("Company Documents", Answer::kYes);
      rig_.dialogs.Expect({"Error",
                           "Unable to access Disk or Disk is Full!\n"
                           "Make sure Backup location is Not Write Protected!",
                           Icon::kCritical, Buttons::kOkCancel},
                          answer);
      panel().make.Click();
      EXPECT_EQ(panel().state.caption(), answer == Answer::kOk ? "" : "Backup Terminated by User");
      EXPECT_EQ(panel().chooser.folder(),
                answer == Answer::kOk ? "/home/ann/" : disk_.path() + "/");
    });
  }
}

TEST_F(Backup1Test, GivingUpAtAFullDiskIsTold) {
  files_.DiskAt(disk_.path()).room = 400;
  rig_.temporary.Write("DRPln1.Fl2", std::string(500, 'p'));
  At("mUB", [&] {
    ExpectDeleteQuestion("Company Documents", Answer::kYes);
    const forms::MessageBox full{
        "Backup Disk",
        "Disk is Full.\nPlease Insert Backup Disk #2\nCAUTION: Wait till Disk Drive light goes out "
        "and Be sure New Disk is inserted before Clicking OK",
        Icon::kExclamation, Buttons::kOkCancel};
    rig_.dialogs.Expect(full, Answer::kOk);  // the disk wasn't changed
    rig_.dialogs.Expect(full, Answer::kCancel);
    rig_.dialogs.ExpectNote("Backup Proceedure Cancelation",
                            "You have cancelled the backup proceedure!\n"
                            "If backup files were on this disk they have been deleted!\n"
                            "May we suggest you initiate Backup for these files again!");
    panel().make.Click();
    EXPECT_EQ(panel().state.caption(), "Backup Terminated by User");
  });
  EXPECT_TRUE(disk_.Names().empty());
}

TEST_F(Backup1Test, CancelStopsARunAndTheWindowLivesMeanwhile) {
  int looks = 0;
  At("mUB", [&] {
    ExpectDeleteQuestion("Company Documents", Answer::kYes);
    rig_.loop.on_yield = [&] {
      EXPECT_FALSE(panel().exit.visible());
      if (++looks == 3) panel().stop.Click();
    };
    panel().make.Click();
    rig_.loop.on_yield = {};
    EXPECT_EQ(panel().state.caption(), "Backup Terminated by User");
  });
  EXPECT_TRUE(disk_.Names().empty());
}

TEST_F(Backup1Test, AStickWithAnotherNameIsFollowed) {
  files_.DiskAt(disk_.path()).room = 400;
  rig_.temporary.Write("DRPln1.Fl2", std::string(500, 'p'));
  TemporaryFolder second;
  At("mUB", [&] {
    ExpectDeleteQuestion("Company Documents", Answer::kYes);
    const std::string question =
        "Disk is Full.\nPlease Insert Backup Disk #2\nCAUTION: Wait till Disk Drive light goes out "
        "and Be sure New Disk is inserted before Clicking OK";
    rig_.dialogs.Expect({"Backup Disk", question, Icon::kExclamation, Buttons::kOkCancel},
                        Answer::kOk, [&] {
                          rig_.folders.readable.erase(disk_.path() + "/");
                          rig_.folders.readable[second.path() + "/"] = {};
                          rig_.folders.more_places = {{"SECOND", second.path()}};
                        });
    panel().make.Click();
    EXPECT_THAT(panel().state.caption(), StartsWith("Backup Complete"));
  });
  EXPECT_EQ(second.Read("DRPln1.hb1"), std::string(500, 'p'));
}

TEST_F(Backup1Test, AnInterruptedRestoreIsToldAtTheNextStart) {
  rig_.temporary.Write(".tarnwell-replacement", "Tarnwell replacement 1\nBudget\nend\n");
  rig_.temporary.Write(".tarnwell-new-00000001", "half");
  rig_.dialogs.ExpectNote("Interrupted Restore",
                          "A restore was interrupted: Budget.\n"
                          "It was undone: your files are as they were before it.");
  rig_.Start();
  EXPECT_THAT(rig_.temporary.Names(), Not(Contains(StartsWith(".tarnwell-new"))));
  rig_.temporary.Write(".tarnwell-replacement",
                       "Tarnwell replacement 1\nBudget\nold .tarnwell-old-00000001 DRPln1.Fl2\n"
                       "new .tarnwell-new-00000002 DRPln1.Fl2\nend\n");
  rig_.temporary.Write(".tarnwell-new-00000002", "restored");
  rig_.dialogs.ExpectNote("Interrupted Restore",
                          "A restore was interrupted: Budget.\n"
                          "It was finished: your files are those of the backup.");
  rig_.Start();
  EXPECT_EQ(rig_.temporary.Read("DRPln1.Fl2"), "restored");
  rig_.temporary.Write(".tarnwell-replacement", "?");
  rig_.dialogs.ExpectError("Interrupted Restore",
                           "A restore was interrupted, and can't be finished or undone: the disk "
                           "reported an error.\nNothing is lost, but the program can't go on until "
                           "the disk can be written again.");
  rig_.Start();
  EXPECT_TRUE(rig_.navigator().ended());
}

// Every screen that leads here, with the set that it works on.
TEST_F(Backup1Test, EveryScreenLeadsToItsSet) {
  struct Caller {
    const char* form;
    const char* backup;
    const char* restore;
    const char* title;
    int mode;
  };
  const char* kUser = "&Backup User Created Files";
  const char* kRestoreUser = "&Restore User Created Files";
  const char* kYear = "&Backup Selected Year File to Disk";
  const char* kRestoreYear = "&Restore Selected Year File from Disk";
  const Caller callers[] = {
      {"Startfrm", kUser, kRestoreUser, "Company Documents", 0},
      {"WorkArea1", kUser, kRestoreUser, "Company Documents", 0},
      {"InfoAdv", kUser, kRestoreUser, "Company Documents", 0},
      {"ToolsandInfo1", kUser, kRestoreUser, "Company Documents", 0},
      {"FView", "&Backup Employee Information Files to Disk",
       "&Restore Employee InformationFiles from Disk", "Employee", 2},
      {"AutoMaint", "&Backup Vehicle Maintenance Files to Disk",
       "&Restore Vehicle Maintenance Files from Disk", "Vehicle Maintenance", 26},
      {"Zcalandar1", kYear, kRestoreYear, "2026 Daily Planner", 32},
      {"Budget1a", kYear, kRestoreYear, "2026 Budget", 36},
      {"ADDBKVIEW1", "&Backup Address Book Files to Disk", "&Restore Address Book Files from Disk",
       "Address Book", 38},
      {"PhotoVIEW1", "&Backup Document Images Files to Disk",
       "&Restore Document Images Files from Disk", "Document Images", 40},
      {"SICKLEAVE1", kYear, kRestoreYear, "Employee Sick Leave", 44},
      {"Vacation1", kYear, kRestoreYear, "Employee Vacation", 46},
  };
  for (const Caller& caller : callers) {
    rig_.navigator().Show(caller.form);
    forms::MenuItem& menus = rig_.navigator().top()->menus();
    ASSERT_NE(menus.Find("mUB"), nullptr) << caller.form;
    EXPECT_EQ(menus.Find("mUB")->caption(), caller.backup);
    EXPECT_EQ(menus.Find("mUR")->caption(), caller.restore);
    At("mUB", [&] {
      EXPECT_EQ(rig_.program->variables().BackupMode, caller.mode) << caller.form;
      EXPECT_EQ(panel().title.caption(), "Backup: " + std::string(caller.title));
    });
    At("mUR", [&] {
      EXPECT_EQ(rig_.program->variables().BackupMode, caller.mode + 1) << caller.form;
      EXPECT_EQ(panel().title.caption(), "Restore: " + std::string(caller.title));
    });
    EXPECT_EQ(rig_.top(), caller.form);
  }
}

TEST_F(Backup1Test, WhatIsUnsavedIsAskedAboutFirst) {
  rig_.navigator().Show("ADDBKVIEW1");
  rig_.Get<record_book::EntryScreen>("ADDBKVIEW1").fields[0]->Type("Acme");
  for (const char* entry : {"mUB", "mUR"}) {
    rig_.dialogs.ExpectYesNoCancel("Entry/View Screen", "Save changes made to data?",
                                   Answer::kCancel);
    rig_.loop.during_modal = [] { ADD_FAILURE() << "the panel came all the same"; };
    rig_.ClickMenu(entry);
    EXPECT_TRUE(rig_.navigator().top()->unsaved());
  }
  rig_.dialogs.ExpectYesNoCancel("Entry/View Screen", "Save changes made to data?", Answer::kYes);
  At("mUB", [&] { EXPECT_GT(rig_.folder.Length("ADDBK1.Fil"), 0u); });
}

// What is on show afterwards is what the files hold.
TEST_F(Backup1Test, TheScreenShowsTheRestoredFilesAtOnce) {
  rig_.navigator().Show("Zcalandar1");
  auto& planner = rig_.Get<planner::Zcalandar1>("Zcalandar1");
  planner.entries[0].Type("Restored");
  rig_.dialogs.ExpectNote("Save File Command", "Entries Have Been Time Sorted and File Saved.");
  planner.save.Click();
  At("mUB", [&] {
    ExpectDeleteQuestion("2026 Daily Planner", Answer::kYes);
    panel().make.Click();
  });
  rig_.temporary.Remove(" 2026.Cal");
  At("mUR", [&] {
    rig_.dialogs.Expect({"Delete Files",
                         "This utility will first Delete all existing Daily Planner files\n"
                         "located in Tarnwell Program!\nProceed?",
                         Icon::kQuestion, Buttons::kYesNoCancel, 2},
                        Answer::kYes);
    planner.entries[0].SetText("");
    panel().make.Click();
  });
  EXPECT_EQ(planner.entries[0].text(), "Restored");
}

// Neither the new names nor the old ones: the program ends before it writes anything else.
TEST_F(Backup1Test, ADiskThatFailsInTheExchangeEndsTheProgramAndTheNextStartMendsIt) {
  At("mUB", [&] {
    ExpectDeleteQuestion("Company Documents", Answer::kYes);
    panel().make.Click();
  });
  rig_.temporary.Write("DRPln1.Fl2", "newer");
  rig_.loop.during_modal = [&] {
    rig_.dialogs.Expect({"Delete Files",
                         "This utility will first Delete all existing User Created Files\n"
                         "located in The Tarnwell Program!\nProceed?",
                         Icon::kQuestion, Buttons::kYesNoCancel, 2},
                        Answer::kYes);
    rig_.dialogs.ExpectError(
        "Restore",
        "The disk with the program's folder failed in the middle of the exchange of files.\n"
        "Nothing is lost. The program ends now, and its next start puts them in order.");
    int renames = 0;
    files_.FailWhen([&](int call) {
      renames += files_.log()[static_cast<std::size_t>(call) - 1] == "rename";
      return renames > 4;
    });
    panel().make.Click();
    files_.Recover();
  };
  rig_.ClickMenu("mUR");
  EXPECT_TRUE(rig_.navigator().ended());
  rig_.dialogs.ExpectNote("Interrupted Restore",
                          "A restore was interrupted: Company Documents.\n"
                          "It was finished: your files are those of the backup.");
  rig_.Start();
  EXPECT_EQ(rig_.temporary.Read("DRPln1.Fl2"), "plan");
}

TEST_F(Backup1Test, ABackupWaitsForTheFileThatItIsOf) {
  for (const auto& [form, file] : {std::pair{"Budget1a", "2026.Fil"},
                                   {"SICKLEAVE1", "2026.Sl1"},
                                   {"Zcalandar1", " 2026.Cal"}}) {
    rig_.navigator().Show(form);
    forms::MenuItem& menus = rig_.navigator().top()->menus();
    menus.Find("mU")->Open();
    EXPECT_FALSE(menus.Find("mUB")->enabled()) << form;
    rig_.temporary.Write(file, "content");
    menus.Find("mU")->Open();
    EXPECT_TRUE(menus.Find("mUB")->enabled()) << form;
  }
}

}  // namespace
}  // namespace tarnwell::backup
