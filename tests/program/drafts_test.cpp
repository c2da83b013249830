// What was typed and not saved when the program was killed.

#include "program/drafts.h"

#include <gtest/gtest.h>

#include <functional>
#include <string_view>

#include "budget/budget1a.h"
#include "leave/leave_sheet.h"
#include "planner/calendar.h"
#include "planner/zcalandar1.h"
#include "record_book/entry_screen.h"
#include "shell/startfrm.h"
#include "support/format_page.h"
#include "support/program_rig.h"
#include "vehicles/automaint.h"
#include "workarea/workarea1.h"

namespace tarnwell::program {
namespace {

using forms::Answer;

constexpr const char* kSomeText = R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}\pard Old\par})";
constexpr const char* kUnsavedTitle = "Text That Was Not Saved";

struct Typed {
  const char* name;
  const char* form;
  const char* title;  // what the person is told
  std::function<void(testing::ProgramRig&)> type;
};

workarea::WorkArea1& Hub(testing::ProgramRig& rig, const std::vector<const char*>& buttons) {
  rig.Get<shell::Startfrm>("Startfrm").begin.Click();
  auto& hub = rig.Get<workarea::WorkArea1>("WorkArea1");
  for (const char* name : buttons) dynamic_cast<forms::Command&>(*hub.Find(name)).Click();
  return hub;
}

template <typename FormClass>
FormClass& Open(testing::ProgramRig& rig, const char* name) {
  rig.navigator().Show(name);
  return rig.Get<FormClass>(name);
}

vehicles::AutoMaint& NewVehicle(testing::ProgramRig& rig) {
  auto& form = Open<vehicles::AutoMaint>(rig, "AutoMaint");
  form.create.Click();
  form.information.fields[0]->Type("Van");
  form.information.field(vehicles::kMake).Type("Ford");
  form.information.field(vehicles::kOdometer).Type("12000");
  form.next_to_schedule.Click();
  form.maintenance.grid.EditCell(2, 1, "Wash");
  return form;
}

const Typed kTyped[] = {
    {"Day", "Zcalandar1", "Daily Planner - March 12, 2026 - Thu",
     [](testing::ProgramRig& rig) {
       auto& form = Open<planner::Zcalandar1>(rig, "Zcalandar1");
       form.picker.SelectDay(text::MakeDate(2026, 3, 12));
       form.times[3].Type("9:00 AM");
       form.entries[3].Type("Dentist");
     }},
    {"CalendarSheet", "Calendar", "Calendar - April 2026",
     [](testing::ProgramRig& rig) {
       auto& form = Open<planner::Calendar>(rig, "Calendar");
       form.picker.SelectDay(text::MakeDate(2026, 4, 2));
       form.lines[1].Type("Fair");
     }},
    {"Budget", "Budget1a", "Company Budget 2026",
     [](testing::ProgramRig& rig) {
       auto& form = Open<budget::Budget1a>(rig, "Budget1a");
       form.grid.EditCell(2, budget::Budget1a::kName, "Rent");
       form.grid.EditCell(2, budget::Budget1a::kFirstMonth, "700");
     }},
    {"Leave", "SICKLEAVE1", "Employee Sick Leave Tracker 2026",
     [](testing::ProgramRig& rig) {
       auto& form = Open<leave::LeaveSheet>(rig, "SICKLEAVE1");
       form.grid.EditCell(1, leave::kName, "Ann \"Lee\"");
       form.grid.EditCell(1, leave::kAuthorized, "10");
     }},
    {"NewContact", "ADDBKVIEW1",
     "Tools and Program Informaiton - Business Contacts Data Entry Screen - Acme, Tools: 5,",
     [](testing::ProgramRig& rig) {
       auto& form = Open<record_book::EntryScreen>(rig, "ADDBKVIEW1");
       form.fields[0]->Type("Acme, Tools: 5,");
       form.comments->Type("Pays\r\nlate");
     }},
    {"ChangedContact", "ADDBKVIEW1",
     "Tools and Program Informaiton - Business Contacts Data View Screen - Baker",
     [](testing::ProgramRig& rig) {
       auto& form = Open<record_book::EntryScreen>(rig, "ADDBKVIEW1");
       for (const char* name : {"Acme", "Baker"}) {
         form.fields[0]->Type(name);
         form.save.Click();
       }
       form.mode.Click();
       form.names.Pick(1);
       form.view.Click();
       form.change.Click();
       form.fields[1]->Type("Bob");
     }},
    {"NewVehicle", "AutoMaint", "Company Data - Company Vehicle Maintenance Tracker - Van",
     [](testing::ProgramRig& rig) { NewVehicle(rig); }},
    {"OpenVehicle", "AutoMaint", "Company Data - Company Vehicle Maintenance Tracker - Van",
     [](testing::ProgramRig& rig) {
       auto& form = NewVehicle(rig);
       rig.dialogs.ExpectYesNoCancel(
           "Create New File", "New file will be saved as:\nVan\nIs that correct?", Answer::kYes);
       form.finish.Click();
       form.view_fuel.Click();
       form.fuel.grid.EditCell(1, vehicles::kFuelDate, "3/9/2026");
     }},
    {"ToDo", "WorkArea1", "Company To Do List",
     [](testing::ProgramRig& rig) {
       Hub(rig, {}).to_do.sheet.grid.EditCell(3, workarea::ToDoSheet::kItem, "Call Ann");
     }},
    {"Document", "WorkArea1", "Computer Repair Agreement",
     [](testing::ProgramRig& rig) {
       Hub(rig, {"SSCommand11(2)", "SSCommand14(1)"}).document.text.Type("A clause. ");
     }},
    {"Comments", "WorkArea1", "Computer Repair Agreement",
     [](testing::ProgramRig& rig) {
       auto& hub = Hub(rig, {"SSCommand11(2)", "SSCommand14(1)"});
       hub.document.views.Pick(workarea::kCommentsText);
       hub.document.text.Type("Ask Ann. ");
     }},
    {"RecoveryPlan", "WorkArea1", "Disaster Recovery Plan",
     [](testing::ProgramRig& rig) { Hub(rig, {"SSCommand11(8)"}).document.text.Type("Call. "); }},
    {"Worksheet", "WorkArea1", "Company - Additional Docs.",
     [](testing::ProgramRig& rig) {
       Hub(rig, {"SSCommand11(7)", "SSCommand12(1)"}).document.text.Type("Yes. ");
     }},
    {"ListedReport", "WorkArea1", "Company Job Descriptions - Prepare, Store or Review - Ann",
     [](testing::ProgramRig& rig) {
       auto& hub = Hub(rig, {"SSCommand11(9)"});
       hub.names.list.Pick(0);
       hub.document.text.Type("New ");
     }},
    {"NewReport", "WorkArea1", "Company Job Descriptions - Prepare, Store or Review - Welder",
     [](testing::ProgramRig& rig) {
       auto& hub = Hub(rig, {"SSCommand11(9)"});
       rig.dialogs.ExpectNote(
           "Select New Report - Insert Template",
           "Please enter Job Description Name and Date of Action Prior to Saving!");
       hub.names.new_blank.Click();
       hub.names.name.Type("Welder");
       hub.document.text.Type("Welds");
     }},
};

class DraftsTest : public ::testing::TestWithParam<Typed> {
 protected:
  DraftsTest() {
    for (const char* name : {"DRPln1.Fl2", "EmployWksht1.Fl2", "Ann.Fl5"}) {
      rig.temporary.Write(name, kSomeText);
    }
    rig.temporary.Write("JobHold.Fl5", "\"Ann\"\r\n");
    rig.Start();
  }
  forms::Form& Form(const char* name) { return rig.Get<forms::Form>(name); }
  std::string File(const char* form) { return "Unsaved-" + std::string(form) + ".Fil"; }
  void ExpectOffer(const std::string& title, Answer answer) {
    rig.dialogs.ExpectYesNo(
        kUnsavedTitle,
        "The program ended before this was saved:\n\n" + title +
            "\n(March 9, 2026 2:05 PM)\n\nIt was kept. Show it again, to be saved?\n"
            "No throws it away.",
        answer);
  }
  void TypeADay() { kTyped[0].type(rig); }

  testing::ProgramRig rig;
};

TEST_P(DraftsTest, IsShownAgainWhereItWasTyped) {
  const Typed& typed = GetParam();
  typed.type(rig);
  ASSERT_TRUE(Form(typed.form).unsaved());
  const auto before = Form(typed.form).TakeDraft();
  ASSERT_TRUE(before);
  rig.program->KeepDrafts();
  ExpectOffer(typed.title, Answer::kYes);
  rig.Start();
  EXPECT_EQ(rig.top(), typed.form);
  EXPECT_TRUE(Form(typed.form).unsaved());
  const auto again = Form(typed.form).TakeDraft();
  ASSERT_TRUE(again);
  EXPECT_EQ(again->title, before->title);
  EXPECT_EQ(again->files, before->files);
  ASSERT_EQ(again->texts.size(), before->texts.size());
  for (std::size_t i = 0; i < before->texts.size(); ++i) {
    EXPECT_EQ(again->texts[i], before->texts[i]) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(All, DraftsTest, ::testing::ValuesIn(kTyped),
                         [](const auto& test) { return test.param.name; });

using KeptTest = DraftsTest;

TEST_F(KeptTest, GoesWhenItIsSavedGivenUpOrTheProgramEnds) {
  TypeADay();
  rig.program->KeepDrafts();
  EXPECT_TRUE(rig.folder.Exists(File("Zcalandar1")));
  rig.dialogs.ExpectNote("Save File Command", "Entries Have Been Time Sorted and File Saved.");
  auto& form = rig.Get<planner::Zcalandar1>("Zcalandar1");
  form.save.Click();
  rig.program->KeepDrafts();
  EXPECT_FALSE(rig.folder.Exists(File("Zcalandar1")));

  form.entries[5].Type("Bank");
  rig.program->KeepDrafts();
  EXPECT_TRUE(rig.folder.Exists(File("Zcalandar1")));
  rig.navigator().EndProgram();
  rig.program.reset();
  EXPECT_FALSE(rig.folder.Exists(File("Zcalandar1")));

  rig.Start();
  TypeADay();
  rig.program->KeepDrafts();
  ExpectOffer("Daily Planner - March 12, 2026 - Thu", Answer::kNo);
  rig.Start();
  EXPECT_EQ(rig.top(), "Startfrm");
  EXPECT_FALSE(rig.folder.Exists(File("Zcalandar1")));
}

// Killed behind the save, and before the draft went.
TEST_F(KeptTest, NeverStandsOverANewerSave) {
  TypeADay();
  rig.program->KeepDrafts();
  rig.dialogs.ExpectNote("Save File Command", "Entries Have Been Time Sorted and File Saved.");
  rig.Get<planner::Zcalandar1>("Zcalandar1").save.Click();
  rig.Start();
  EXPECT_EQ(rig.top(), "Startfrm");
  EXPECT_FALSE(rig.folder.Exists(File("Zcalandar1")));
}

TEST_F(KeptTest, StaysWhenItCannotBeShownAndGoesWhenItIsNoDraft) {
  Hub(rig, {"SSCommand11(9)"}).names.list.Pick(0);
  rig.Get<workarea::WorkArea1>("WorkArea1").document.text.Type("New ");
  rig.program->KeepDrafts();
  rig.temporary.Write("JobHold.Fl5", "");
  ExpectOffer("Company Job Descriptions - Prepare, Store or Review - Ann", Answer::kYes);
  rig.dialogs.ExpectWarning(
      kUnsavedTitle,
      "This can't be shown now:\n\nCompany Job Descriptions - Prepare, Store or "
      "Review - Ann\n"
      "(March 9, 2026 2:05 PM)\n\nIt stays kept, for the next start.");
  rig.Start();
  const std::string bytes = rig.temporary.Read(File("WorkArea1"));
  EXPECT_FALSE(bytes.empty());
  // Cut at any length but between two texts, it is none; there it is a draft with fewer texts.
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    const auto cut = FromBytes(std::string_view(bytes).substr(0, length));
    EXPECT_TRUE(!cut || bytes[length - 1] == ',') << length;
  }
  rig.temporary.Write(File("WorkArea1"), bytes.substr(0, bytes.size() - 1));
  rig.Start();
  EXPECT_FALSE(rig.folder.Exists(File("WorkArea1")));
}

TEST(DraftFileTest, HasTheBytesOfItsPage) {
  KeptDraft kept{"March 9, 2026 2:05 PM",
                 {"Company To Do List", {"TODOActv.FIL"}, {"1", "Call Ann", "", "", ""}},
                 {"-"}};
  EXPECT_EQ(ToBytes(kept), testing::FileOf(testing::ReadFormatExample("unsaved.md")));
}

TEST(DraftFileTest, MarksContentByItsBytes) {
  testing::ProgramRig rig;
  rig.temporary.Write("a.Fil", "foobar");
  EXPECT_EQ(MarkOf(rig.folder, "a.Fil"), "85944171f73967e8");  // of the hash's published test
  EXPECT_EQ(MarkOf(rig.folder, "b.Fil"), "-");
}

}  // namespace
}  // namespace tarnwell::program
