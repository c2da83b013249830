#include "desktop/completeness.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>

#include "desktop/desktop.h"
#include "desktop/sample_form.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "forms/panel.h"

namespace tarnwell::desktop {
namespace {

using testing::AllFaults;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// What a form hides while it shows a panel.
struct Replacement {
  const char* form;
  const char* panel;
  std::vector<const char*> hidden;
};
const Replacement kReplacements[] = {
    {"Zcalandar1", "SSPanel6", {"SSPanel1"}},
    {"Zcalandar1", "SSPanel5", {"SSPanel1"}},
    {"Zcalandar1", "SSPanel7", {"SSPanel1", "MonthView1"}},
    {"Zcalandar1", "SSPanel3", {"SSPanel1", "MonthView1"}},
    {"Zcalandar1", "SSPanel80", {"SSPanel1", "MonthView1"}},
    {"Zcalandar1", "SSPanel90", {"SSPanel1", "MonthView1"}},
    {"Zcalandar1", "SSPanel100", {"SSPanel1", "MonthView1"}},
    {"WorkArea1", "SSCommand16Panel", {"SSCommand14Panel"}},
    {"WorkArea1", "SSCommand17Panel", {"SSCommand14Panel"}},
    {"WorkArea1", "SSPanel80", {"SSPanel3"}},
    {"WorkArea1", "SSPanel6", {"SSPanel3"}},
};

std::vector<forms::Control*> ReplacedBy(forms::Form& form, const forms::Control& panel) {
  std::vector<forms::Control*> replaced;
  for (const Replacement& one : kReplacements) {
    if (form.name() != one.form || panel.name() != one.panel) continue;
    for (const char* name : one.hidden) replaced.push_back(form.Find(name));
  }
  return replaced;
}

// "&Page Setup" and "&Print" are fixed so; the letter goes from one to the other.
const std::string kSharedMnemonic = "mnemonic p: SSCommand80(1) and SSCommand80(4)";

// What the least size of the window leaves a form inside frame, title, menu and status bars.
constexpr QSize kSmallestPage{1000, 660};

// Looks at each form when it gets on top, then once more with each of its hidden panels.
class Inspector : public forms::NavigatorObserver {
 public:
  explicit Inspector(MainWindow& window) : window_(window) {}

  void FormLoaded(forms::Form& form, bool modal) override { window_.FormLoaded(form, modal); }
  void FormUnloaded(forms::Form& form) override { window_.FormUnloaded(form); }
  void ProgramEnded() override { window_.ProgramEnded(); }
  void FormRaised(forms::Form& form) override {
    window_.FormRaised(form);
    Inspect(form);
    for (forms::Control* control : form.AllControls()) {
      // The calendar that has display options, at its largest.
      if (auto* picker = dynamic_cast<forms::DatePicker*>(control); picker && picker->Reachable()) {
        picker->SetLook({.months = 2, .week_numbers = true, .mark_today = true});
        Inspect(form);
      }
    }
    InspectHiddenPanels(form, form);
  }

  std::vector<std::string> inspected;

 private:
  void InspectHiddenPanels(forms::Form& form, forms::Container& container) {
    const auto children = container.children();
    for (forms::Control* control : children) {
      auto* panel = dynamic_cast<forms::Panel*>(control);
      if (!panel) continue;
      const bool hidden = !panel->visible();
      const auto replaced = ReplacedBy(form, *panel);
      for (forms::Control* other : replaced) other->SetVisible(false);
      panel->SetVisible(true);
      if (hidden) Inspect(form);
      InspectHiddenPanels(form, *panel);
      if (hidden) panel->SetVisible(false);
      for (forms::Control* other : replaced) other->SetVisible(true);
    }
  }

  void Inspect(forms::Form& form) {
    window_.QWidget::resize(1024, 768);
    QTest::qWait(20);
    // A view that needs more room would keep the window larger.
    const QSize needed = window_.PageOf(form)->minimumSizeHint();
    EXPECT_LE(needed.width(), kSmallestPage.width()) << form.name();
    EXPECT_LE(needed.height(), kSmallestPage.height()) << form.name();
    auto faults = AllFaults(form, *window_.PageOf(form));
    std::erase(faults, kSharedMnemonic);
    EXPECT_THAT(faults, IsEmpty()) << form.name();
    inspected.push_back(form.name());
  }

  MainWindow& window_;
};

TEST(Completeness, EveryFormHasAViewWithAllOfItsControlsReadableAtTheLeastScreenSize) {
  const testing::TemporaryFolder folder;
  const Folders folders{QString::fromStdString(folder.path()),
                        QStringLiteral(TARNWELL_SOURCE_DIR "/data")};
  std::vector<std::string> names;
  {
    Desktop desktop(folders);
    names = desktop.navigator().Names();
  }
  ASSERT_FALSE(names.empty());
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    Desktop desktop(folders);
    desktop.program().variables().SplashShown = 99;
    Inspector inspector(desktop.window());
    desktop.navigator().SetObserver(&inspector);
    desktop.navigator().Show(name);
    EXPECT_THAT(inspector.inspected, Contains(name));
  }
}

// A form with one fault of each kind, so that the test above is known to find them.
class FaultyForm : public forms::Form {
 public:
  explicit FaultyForm(forms::Context& context) : Form(context, "Faulty1", "Faulty") {}
  forms::Panel panel{*this, "SSPanel1"};
  forms::Command save{panel, "Command1", "&Save"};
  forms::Command sort{panel, "Command2", "&Sort"};
  forms::Command forgotten{panel, "Command3", "&Forgotten"};
  forms::Command outside{panel, "Command4", "&Outside"};
  forms::TextField nameless{panel, "Text1"};
  forms::Label squeezed{panel, "Label1", "A text that is longer than its place"};
};

TEST(Completeness, TheInspectionFindsEachKindOfFault) {
  testing::SampleWorld world;
  FaultyForm form(world.context);
  QWidget* squeezed = Widget(form.squeezed);
  squeezed->setFixedWidth(40);
  QWidget* outside = Widget(form.outside);
  QWidget page;
  QWidget* panel = Widget(
      form.panel, Column({Widget(form.save), Widget(form.sort), squeezed, Widget(form.nameless)}));
  panel->setParent(&page);
  outside->setParent(panel);
  page.resize(400, 300);
  page.show();
  QTest::qWait(20);
  outside->setGeometry(panel->width() - 10, 0, 200, 60);
  outside->show();

  const auto faults = AllFaults(form, page);
  EXPECT_EQ(faults.size(), 5u) << ::testing::PrintToString(faults);
  EXPECT_THAT(faults, Contains("not placed: Command3"));
  EXPECT_THAT(faults, Contains("nameless: Text1"));
  EXPECT_THAT(faults, Contains("mnemonic s: Command1 and Command2"));
  EXPECT_THAT(faults, Contains(HasSubstr("cut off: Label1")));
  EXPECT_THAT(faults, Contains(HasSubstr("sticks out: Command4")));
}

}  // namespace
}  // namespace tarnwell::desktop
