// What a person wrote, wherever it was written, on a disk that is full or whose folder went away.

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>
#include <limits>
#include <map>

#include "planner/calendar.h"
#include "shell/startfrm.h"
#include "support/failing_file_system.h"
#include "support/program_rig.h"
#include "workarea/workarea1.h"

namespace tarnwell {
namespace {

using forms::Answer;
using workarea::WorkArea1;

constexpr const char* kOnScreen = "It is still on the screen.";
constexpr const char* kText = R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}\pard Old\par})";

struct Save {
  const char* what;
  const char* instead;
  std::vector<const char*> way;  // the hub's buttons, pressed first
  std::function<void(WorkArea1&)> change;
  std::function<void(testing::ProgramRig&, WorkArea1&)> save;
};

void Type(WorkArea1& hub) { hub.document.text.Type("New "); }
void ClickSave(testing::ProgramRig&, WorkArea1& hub) { hub.document.save.Click(); }
void DateFirstRow(WorkArea1& hub) {
  hub.to_do.sheet.grid.EditCell(1, workarea::ToDoSheet::kReview, "soon");
}
void Nothing(WorkArea1&) {}

const Save kSaves[] = {
    {"The To Do list",
     kOnScreen,
     {},
     DateFirstRow,
     [](auto&, WorkArea1& hub) { hub.to_do.save.Click(); }},
    {"The To Do list", kOnScreen, {}, DateFirstRow, [](auto& rig, auto&) { rig.ClickMenu("mOS"); }},
    {"The list of names",
     "The item stands in the grid alone.",
     {},
     Nothing,
     [](auto&, WorkArea1& hub) { hub.to_do.sheet.Add("new"); }},
    {"The list of names",
     "The item stays in it.",
     {},
     [](WorkArea1& hub) { hub.to_do.names.Pick(0); },
     [](auto&, WorkArea1& hub) { hub.to_do.delete_name.Click(); }},
    {"The text", kOnScreen, {"SSCommand11(2)", "SSCommand14(0)"}, Type, ClickSave},
    {"The text",
     kOnScreen,
     {"SSCommand11(2)", "SSCommand14(0)"},
     [](WorkArea1& hub) {
       hub.document.views.Pick(workarea::kCommentsText);
       Type(hub);
     },
     ClickSave},
    {"The text", kOnScreen, {"SSCommand11(8)"}, Type, ClickSave},
    {"The status",
     "The one before stays.",
     {"SSCommand11(2)", "SSCommand14(0)"},
     Nothing,
     [](auto&, WorkArea1& hub) { hub.document.status.Pick(3); }},
    {"The text", kOnScreen, {"SSCommand11(7)", "SSCommand12(1)"}, Type, ClickSave},
    {"The titles",
     kOnScreen,
     {"SSCommand11(7)"},
     Nothing,
     [](testing::ProgramRig& rig, WorkArea1& hub) {
       rig.ClickMenu("mORATitle");
       hub.worksheets.titles.rows[0]->change.Type("New");
       hub.worksheets.titles.save.Click();
     }},
    {"The text",
     kOnScreen,
     {"SSCommand11(9)"},
     [](WorkArea1& hub) {
       hub.names.list.Pick(0);
       Type(hub);
     },
     ClickSave},
};

using Snapshot = std::map<std::string, std::string>;
Snapshot FilesOf(const testing::TemporaryFolder& folder) {
  Snapshot files;
  for (const std::string& name : folder.Names()) files[name] = folder.Read(name);
  return files;
}

class EverySaveTest : public ::testing::Test {
 protected:
  EverySaveTest() {
    for (const char* name : {"EmployPolicy0.Fl2", "DRPln1.Fl2", "EmployWksht1.Fl2", "Ann.Fl5"}) {
      rig.temporary.Write(name, kText);
    }
    rig.temporary.Write("TODOActv.FIL", "\"old\"\r\n");
    rig.temporary.Write("TODONAME.FIL", "\"old\"\r\n\"older\"\r\n");
    rig.temporary.Write("JobHold.Fl5", "\"Ann\"\r\n");
  }

  // Does the work while the disk is full, then while the folder isn't there; each time the person
  // is told and the files are as they were.
  void Expect(const std::string& what, const std::string& instead,
              const std::function<void()>& work) {
    const Snapshot before = FilesOf(rig.temporary);
    const std::string path = rig.temporary.path();
    const auto expect = [&](const char* reason) {
      rig.dialogs.ExpectError("Not Saved",
                              what + " could not be saved: " + reason + ".\n" + instead);
    };
    expect("the disk is full");
    files.AllowBytes(0);
    work();
    files.AllowBytes(std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(FilesOf(rig.temporary), before);
    expect("the program's folder isn't there any more");
    std::filesystem::rename(path, path + "-away");
    work();
    std::filesystem::rename(path + "-away", path);
    EXPECT_EQ(FilesOf(rig.temporary), before);
  }

  testing::FailingFileSystem files{storage::RealFileSystem()};
  testing::ProgramRig rig{files};
};

TEST_F(EverySaveTest, TheHubTellsAndKeepsWhatWasThere) {
  int number = 0;
  for (const Save& save : kSaves) {
    SCOPED_TRACE(std::to_string(++number) + " " + save.what);
    rig.Start();
    rig.Get<shell::Startfrm>("Startfrm").begin.Click();
    auto& hub = rig.Get<WorkArea1>("WorkArea1");
    for (const char* name : save.way) dynamic_cast<forms::Command&>(*hub.Find(name)).Click();
    save.change(hub);
    const bool was_unsaved = hub.unsaved();
    Expect(save.what, save.instead, [&] { save.save(rig, hub); });
    EXPECT_TRUE(hub.unsaved() || !was_unsaved);
  }
}

TEST_F(EverySaveTest, TheCalendarTellsAndKeepsWhatWasThere) {
  rig.Start();
  rig.navigator().Show("Calendar");
  auto& form = rig.Get<planner::Calendar>("Calendar");
  form.lines[0].Type("New");
  Expect("The calendar of March 2026", kOnScreen, [&] { form.save.Click(); });
  EXPECT_TRUE(form.unsaved());
}

TEST_F(EverySaveTest, ACopyForTheArchiveIsThereWithItsEntryOrNotAtAll) {
  rig.Start();
  rig.Get<shell::Startfrm>("Startfrm").begin.Click();
  auto& hub = rig.Get<WorkArea1>("WorkArea1");
  for (const char* name : {"SSCommand11(2)", "SSCommand14(0)"}) {
    dynamic_cast<forms::Command&>(*hub.Find(name)).Click();
  }
  const Snapshot before = FilesOf(rig.temporary);
  const std::size_t size = std::string_view(kText).size();
  for (const auto& [room, what] : {std::pair<std::size_t, const char*>{3, "The archived copy"},
                                   {size + 3, "The list of names"}}) {
    rig.dialogs.Expect({"Make Archive Copy of Policies, Rish Analysis, Incident Reports",
                        "Make Archive Copy of [ Commission Agreement Mar-09-26 ]?",
                        forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2},
                       Answer::kYes);
    rig.dialogs.ExpectError(
        "Not Saved", std::string(what) + " could not be saved: the disk is full.\n" + kOnScreen);
    files.AllowBytes(room);
    rig.ClickMenu("mOArchive");
    EXPECT_EQ(FilesOf(rig.temporary), before) << what;
  }
}

}  // namespace
}  // namespace tarnwell
