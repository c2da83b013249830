#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QTest>
#include <algorithm>
#include <map>
#include <set>

#include "desktop/main_window.h"
#include "desktop/views/registry.h"
#include "desktop/widgets/pictures.h"
#include "desktop/widgets/text.h"
#include "forms/mnemonics.h"
#include "planner/zcalandar1.h"
#include "program/program.h"
#include "proofing/vsspell1.h"
#include "support/fake_services.h"
#include "support/temporary_folder.h"
#include "walk/soundness.h"

namespace tarnwell::desktop {
namespace {

using ::testing::IsEmpty;

// More often than a key could go from parent to parent; what goes round comes by here again.
constexpr int kMostDeliveries = 100;

// Counts how often one key is delivered, and stops it where it would never end.
class KeyCounter : public QObject {
 public:
  KeyCounter() { qApp->installEventFilter(this); }
  int deliveries = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return event->type() == QEvent::KeyPress && watched->isWidgetType() &&
           ++deliveries > kMostDeliveries;
  }
};

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
  explicit HastyLoop(testing::FakeClock& clock) : clock_(clock) {}
  void Yield() override {}
  void WaitALittle() override { clock_.AddSeconds(1); }
  void RunUntil(const std::function<bool()>& done) override {
    while (!stays && !done()) navigator->Unload(*navigator->top());
  }
  forms::Navigator* navigator = nullptr;
  bool stays = false;

 private:
  testing::FakeClock& clock_;
};

// A text with many words to ask about.
class MisspelledText : public proofing::CheckedText {
 public:
  int parts() override { return 100; }
  std::string part(int) override { return "dentst"; }
  void Show(int, std::size_t, std::size_t) override {}
  void Replace(int, std::size_t, std::size_t, std::string_view) override {}
};

constexpr const char* kModalForms[] = {"About1", "VSSpell1", "VSThesaurus1"};

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

  testing::TemporaryFolder temporary;
  storage::ProgramFolder folder{storage::RealFileSystem(), temporary.path(),
                                TARNWELL_SOURCE_DIR "/data"};
  testing::FakeClock clock;
  CautiousDialogs dialogs;
  HastyLoop loop{clock};
  testing::FakeHelp help;
  testing::FakeClipboard clipboard;
  testing::FakePages pages;
  testing::FakeFolders folders;
  testing::FakeSpeller speller;
  testing::FakeThesaurus thesaurus;
  MisspelledText text;
  proofing::SpellingSession session{speller, folder, text};
  testing::FakePictures pictures;
  testing::FakeModem modem;
  testing::FakeLauncher launcher;
  testing::FakeVolumes volumes;
  PictureStore store{[](std::string_view) { return QByteArray(); }};
  MainWindow window{[this](forms::Form& form) { return LookOf(form, store); }, help};
  program::Program program{{folder, clock, dialogs, loop, window, help, clipboard, pages, folders,
                            pictures, speller, thesaurus, modem, launcher, volumes}};
};

// How a person gets from the form to what is on show: names of commands, options and menu entries.
struct Way {
  const char* name;
  const char* form;
  std::vector<const char*> clicks;
};

const Way kWays[] = {
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
    {"Spelling", "VSSpell1", {}},
    {"Thesaurus", "VSThesaurus1", {}},
};

std::vector<int> PlainKeys() {
  std::vector<int> keys{Qt::Key_Escape, Qt::Key_Tab,   Qt::Key_Backtab,  Qt::Key_Backspace,
                        Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space,    Qt::Key_Insert,
                        Qt::Key_Delete, Qt::Key_Home,  Qt::Key_End,      Qt::Key_Left,
                        Qt::Key_Up,     Qt::Key_Right, Qt::Key_Down,     Qt::Key_PageUp,
                        Qt::Key_Alt,    Qt::Key_Menu,  Qt::Key_PageDown, Qt::Key_1,
                        Qt::Key_A};
  for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) keys.push_back(key);
  return keys;
}

class Keys : public ::testing::TestWithParam<Way> {
 protected:
  // The focus goes to nothing, to the menu bar and to each control; two of an array stand for all.
  void SendAllKeys() {
    Build();
    std::map<QString, int> of_array;
    QStringList names{QString(), QStringLiteral("the menu bar")};
    for (QWidget* widget : Page().findChildren<QWidget*>()) {
      const QString name = widget->objectName();
      if (widget->focusPolicy() != Qt::NoFocus && widget->isVisible() && widget->isEnabled() &&
          !name.isEmpty() && ++of_array[name.section(QLatin1Char('('), 0, 0)] <= 2) {
        names << name;
      }
    }
    for (const QString& name : names) {
      for (int key : PlainKeys()) Send(name, key, Qt::NoModifier);
      for (int key = Qt::Key_0; key <= Qt::Key_Z; ++key) {
        // A letter that chooses a control does the same from everywhere; once is enough.
        const auto letter = static_cast<char>(QChar(key).toLower().toLatin1());
        if (key > Qt::Key_9 && key < Qt::Key_A) continue;
        if (!name.isEmpty() && forms::MnemonicTarget(Page().form(), letter)) continue;
        Send(name, key, Qt::AltModifier);
      }
    }
  }

 private:
  FormPage& Page() {
    return *world_->window.PageOf(*world_->program.navigator().Find(GetParam().form));
  }

  void Build() {
    world_.reset();
    world_ = std::make_unique<KeyWorld>(GetParam().form);
    forms::Form& form = world_->form();
    if (auto* planner = dynamic_cast<planner::Zcalandar1*>(&form)) {
      dynamic_cast<forms::TextField&>(*planner->Find("Text1(0)")).Type("9:30 AM");
      dynamic_cast<forms::TextField&>(*planner->Find("Text2(0)")).Type("Dentist");
    }
    for (const char* name : GetParam().clicks) Click(form, name);
    QCoreApplication::processEvents();
    state_ = State();
  }

  static void Click(forms::Form& form, const char* name) {
    if (forms::MenuItem* entry = form.menus().Find(name)) return entry->Click();
    forms::Control* control = form.Find(name);
    ASSERT_NE(control, nullptr) << name;
    if (auto* option = dynamic_cast<forms::Option*>(control)) return option->Click();
    dynamic_cast<forms::Clickable&>(*control).Click();
  }

  // What a person could reach, which tells one panel from another.
  std::vector<const forms::Control*> State() {
    std::vector<const forms::Control*> reachable;
    for (const forms::Control* control : Page().form().AllControls()) {
      if (control->Reachable()) reachable.push_back(control);
    }
    return reachable;
  }

  void Restore() {
    while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    forms::Navigator& navigator = world_->program.navigator();
    const bool on_top = !navigator.ended() && navigator.top()->name() == GetParam().form;
    if (!on_top || State() != state_) Build();
  }

  // By the name of the widget, as all may be built anew in between.
  void Send(const QString& focus, int key, Qt::KeyboardModifier modifier) {
    Restore();
    GiveFocus(focus);
    counter_.deliveries = 0;
    const std::size_t helped = world_->help.shown.size();
    QTest::keyClick(Page().window()->windowHandle(), static_cast<Qt::Key>(key), modifier);
    SCOPED_TRACE("focus on " + focus.toStdString() + ", key " +
                 QKeySequence(static_cast<int>(modifier) | key).toString().toStdString());
    EXPECT_LE(counter_.deliveries, kMostDeliveries);
    EXPECT_THAT(testing::StackFaults(world_->window, world_->program.navigator()), IsEmpty());
    EXPECT_TRUE(key != Qt::Key_F1 || world_->help.shown.size() == helped + 1);
  }

  void GiveFocus(const QString& focus) {
    if (QWidget* now = Page().window()->focusWidget()) now->clearFocus();
    if (focus.isEmpty()) return;
    QWidget* widget = Page().findChild<QWidget*>(focus);
    (widget ? widget : world_->window.menuBar())->setFocus();
  }

  std::unique_ptr<KeyWorld> world_;
  std::vector<const forms::Control*> state_;
  KeyCounter counter_;
};

TEST_P(Keys, ComeToAnEndWhereverTheFocusIs) { SendAllKeys(); }

INSTANTIATE_TEST_SUITE_P(EveryScreen, Keys, ::testing::ValuesIn(kWays),
                         [](const auto& way) { return std::string(way.param.name); });

TEST(KeysTest, NoFormIsLeftOut) {
  // Splash1 leaves by itself; the others are screens that are tried, with another table.
  std::set<std::string> tried{"Splash1", "Vacation1", "FView", "ADDBKDISPLAY2"};
  for (const Way& way : kWays) tried.insert(way.form);
  EXPECT_THAT(KeyWorld("Startfrm").program.navigator().Names(),
              ::testing::UnorderedElementsAreArray(tried));
}

}  // namespace
}  // namespace tarnwell::desktop
