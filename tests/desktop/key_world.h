// The whole program in its window, on one of its screens, with services that only pretend: for
// tests that go from control to control.

#pragma once

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "desktop/main_window.h"
#include "desktop/views/registry.h"
#include "desktop/widgets/pictures.h"
#include "forms/choice.h"
#include "forms/clickable.h"
#include "program/program.h"
#include "proofing/vsspell1.h"
#include "support/fake_services.h"
#include "support/temporary_folder.h"

namespace tarnwell::testing {

// Answers each box so that all stays as it is.
class CautiousDialogs : public forms::Dialogs {
 public:
  forms::Answer Message(const forms::MessageBox& box) override {
    switch (box.buttons) {
      case forms::Buttons::kOk:
        return forms::Answer::kOk;
      case forms::Buttons::kYesNo:
        return forms::Answer::kNo;
      case forms::Buttons::kOkCancel:
      case forms::Buttons::kYesNoCancel:
        break;
    }
    return forms::Answer::kCancel;
  }
  std::optional<std::string> Input(const forms::InputBox&) override { return std::nullopt; }
  std::optional<forms::Color> ChooseColor(forms::Color) override { return std::nullopt; }
  std::optional<forms::FontParts> ChooseFont(const forms::FontParts&) override { return {}; }
  std::optional<forms::ChosenPicture> ChoosePicture() override { return {}; }
};

// Leaves each modal form as soon as it is there, or lets it stand and comes back.
class HastyLoop : public forms::EventLoop {
 public:
  explicit HastyLoop(FakeClock& clock) : clock_(clock) {}
  void Yield() override {}
  void WaitALittle() override { clock_.AddSeconds(1); }
  void RunUntil(const std::function<bool()>& done) override {
    while (!stays && !done()) navigator->Unload(*navigator->top());
  }
  forms::Navigator* navigator = nullptr;
  bool stays = false;

 private:
  FakeClock& clock_;
};

// A text with many words to ask about.
class MisspelledText : public proofing::CheckedText {
 public:
  int parts() override { return 100; }
  std::string part(int) override { return "dentst"; }
  void Show(int, std::size_t, std::size_t) override {}
  void Replace(int, std::size_t, std::size_t, std::string_view) override {}
};

inline constexpr const char* kModalForms[] = {"About1", "Backup1", "VSSpell1", "VSThesaurus1"};

// The whole program in its window, with the form over the start screen; the services only pretend.
class KeyWorld {
 public:
  explicit KeyWorld(const std::string& name) {
    window.Follow(program.navigator());
    loop.navigator = &program.navigator();
    speller.misspelled = {{"dentst", {"Dentist"}}};
    program.variables().SplashShown = 99;
    program.Start();
    if (std::ranges::find(kModalForms, name) == std::end(kModalForms)) {
      program.navigator().Show(name);
      return;
    }
    loop.stays = true;
    session.FindNext();
    program.navigator().ShowModal(name, [this](forms::Form& form) {
      if (auto* spelling = dynamic_cast<proofing::VSSpell1*>(&form)) spelling->session = &session;
    });
    loop.stays = false;
  }

  forms::Form& form() { return *program.navigator().top(); }

  TemporaryFolder temporary;
  storage::ProgramFolder folder{storage::RealFileSystem(), temporary.path(),
                                TARNWELL_SOURCE_DIR "/data"};
  FakeClock clock;
  CautiousDialogs dialogs;
  HastyLoop loop{clock};
  FakeHelp help;
  FakeClipboard clipboard;
  FakePages pages;
  FakeFolders folders;
  FakeSpeller speller;
  FakeThesaurus thesaurus;
  MisspelledText text;
  proofing::SpellingSession session{speller, folder, text};
  FakePictures pictures;
  FakeModem modem;
  FakeLauncher launcher;
  FakeVolumes volumes;
  desktop::PictureStore store{[](std::string_view) { return QByteArray(); }};
  desktop::MainWindow window{[this](forms::Form& form) { return desktop::LookOf(form, store); },
                             help};
  program::Program program{{folder, clock, dialogs, loop, window, help, clipboard, pages, folders,
                            pictures, speller, thesaurus, modem, launcher, volumes}};
};

// How a person gets from the form to what is on show: names of commands, options and menu entries.
struct Way {
  const char* name;
  const char* form;
  std::vector<const char*> clicks;
};

inline const Way kWays[] = {
    {"Start", "Startfrm", {}},
    {"About", "About1", {}},
    {"Hub", "WorkArea1", {}},
    {"ToDoExport", "WorkArea1", {"mUExport"}},
    {"Documents", "WorkArea1", {"SSCommand11(4)", "SSCommand14(0)"}},
    {"DocumentPrinting", "WorkArea1", {"SSCommand11(4)", "SSCommand14(0)", "SSCommand7"}},
    {"RecoveryPlan", "WorkArea1", {"SSCommand11(8)"}},
    {"InformationAdvisor", "InfoAdv", {}},
    {"StateWebSites", "InfoAdv", {"SSCommand11(2)", "SSOption1(8)"}},
    {"Tools", "ToolsandInfo1", {}},
    {"ToolsPrinting", "ToolsandInfo1", {"SSCommand2(1)"}},
    {"Planner", "Zcalandar1", {}},
    {"PlannerMonth", "Zcalandar1", {"mOV"}},
    {"PlannerExport", "Zcalandar1", {"mOV", "mUExport"}},
    {"PlannerPrinting", "Zcalandar1", {"mOP"}},
    {"PlannerBackground", "Zcalandar1", {"mOGB"}},
    {"PlannerOptions", "Zcalandar1", {"mOCal"}},
    {"PlannerRecurrence", "Zcalandar1", {"Option2(0)"}},
    {"Calendar", "Calendar", {}},
    {"Budget", "Budget1a", {}},
    {"Leave", "SICKLEAVE1", {}},
    {"Contacts", "ADDBKVIEW1", {}},
    {"ContactDisplay", "ADDBKDISPLAY", {}},
    {"ContactDisplayPrinting", "ADDBKDISPLAY", {"Command6"}},
    {"EmployeeDisplay", "FDisplay1", {}},
    {"Images", "PhotoVIEW1", {}},
    {"PicturePages", "ADDBKDISPLAY3", {}},
    {"Vehicles", "AutoMaint", {}},
    {"VehicleCreating", "AutoMaint", {"Command7"}},
    {"VehicleCalculator", "AutoMaint", {"mOGas"}},
    {"Backup", "Backup1", {}},
    {"Spelling", "VSSpell1", {}},
    {"Thesaurus", "VSThesaurus1", {}},
};

// Goes there from the form.
inline void Take(const Way& way, forms::Form& form) {
  for (const char* name : way.clicks) {
    if (forms::MenuItem* entry = form.menus().Find(name)) {
      entry->Click();
    } else if (auto* option = dynamic_cast<forms::Option*>(form.Find(name))) {
      option->Click();
    } else {
      dynamic_cast<forms::Clickable&>(*form.Find(name)).Click();
    }
  }
  QCoreApplication::processEvents();
}

}  // namespace tarnwell::testing
