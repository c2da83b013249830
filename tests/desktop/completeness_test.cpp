#include "desktop/completeness.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <set>
#include <string>

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
using testing::ScrollFaults;

// "&Page Setup" and "&Print" are fixed so, and "&Print Options" and "&Print All Data"; the letter
// goes from one to the other.
const std::set<std::string> kSharedMnemonics = {"mnemonic p: SSCommand80(1) and SSCommand80(4)",
                                                "mnemonic p: Command2 and Command6"};

// What a screen leaves a form inside frame, title, menu and status bars.
QSize PageOn(QSize screen) { return screen - QSize(24, 108); }

constexpr QSize kLeastScreen{1024, 768};
constexpr QSize kWideScreen{1280, 720};  // of a full HD display at 150 %
constexpr QSize kLaptopScreen{1366, 768};

struct Sight {
  const char* family;
  int points;
  QSize screen;
  bool may_scroll;
};
const Sight kSights[] = {
    {"DejaVu Sans", 10, kLeastScreen, false},  {"DejaVu Sans", 10, kWideScreen, false},
    {"DejaVu Sans", 10, kLaptopScreen, false}, {"DejaVu Sans", 12, kLaptopScreen, false},
    {"DejaVu Sans", 12, kLeastScreen, false},  {"Liberation Sans", 10, kLeastScreen, false},
    {"Noto Sans", 10, kLeastScreen, false},    {"Noto Sans", 14, kLaptopScreen, true},
    {"DejaVu Sans", 20, kLeastScreen, true},
};

// Until what the last change asked for has been laid out.
void Settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
}

// Looks at each form when it gets on top, then once more with each of its hidden panels.
class Inspector : public forms::NavigatorObserver {
 public:
  Inspector(MainWindow& window, const Sight& sight) : window_(window), sight_(sight) {}

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
      panel->SetVisible(true);
      if (hidden) Inspect(form);
      InspectHiddenPanels(form, *panel);
      if (hidden) panel->SetVisible(false);
    }
  }

  void Inspect(forms::Form& form) {
    FormPage& page = *window_.PageOf(form);
    GiveExactly(PageOn(sight_.screen), page);
    auto faults = AllFaults(form, page);
    std::erase_if(faults, [](auto& fault) { return kSharedMnemonics.contains(fault); });
    EXPECT_THAT(faults, IsEmpty()) << form.name();
    if (!sight_.may_scroll) {
      EXPECT_THAT(ScrollFaults(page), IsEmpty()) << form.name();
    }
    inspected.push_back(form.name());
  }

  // The start screen lets no window get smaller than 1007 by 747.
  static bool KeptLarger(const QWidget& window) {
    return window.frameSize().width() == 1007 || window.frameSize().height() == 747;
  }

  // A dialogue keeps its own size, which the screen must hold.
  void GiveExactly(QSize size, FormPage& page) {
    Settle();
    QWidget& window = *page.window();
    const QSize least = window.minimumSizeHint();
    EXPECT_LE(least.width(), size.width());
    EXPECT_LE(least.height(), size.height());
    if (&window == &window_) {
      window.setMinimumSize(1, 1);  // the start screen keeps its own on a screen that has it
      window.resize(window.size() + size - page.size());
      Settle();
      EXPECT_TRUE(page.size() == size || KeptLarger(window)) << testing::Text(page.size());
    } else {
      EXPECT_LE(window.width(), sight_.screen.width());
      EXPECT_LE(window.height(), sight_.screen.height());
    }
  }

  MainWindow& window_;
  const Sight sight_;
};

class Completeness : public ::testing::TestWithParam<Sight> {
 protected:
  Completeness() { QApplication::setFont(QFont(GetParam().family, GetParam().points)); }
  ~Completeness() override { QApplication::setFont(usual_); }

 private:
  const QFont usual_ = QApplication::font();
};

TEST_P(Completeness, EveryFormHasAViewWithAllOfItsControlsReadable) {
  ASSERT_EQ(QFontInfo(QApplication::font()).family(), GetParam().family);
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
    Inspector inspector(desktop.window(), GetParam());
    desktop.navigator().SetObserver(&inspector);
    desktop.navigator().Show(name);
    EXPECT_THAT(inspector.inspected, Contains(name));
  }
}

INSTANTIATE_TEST_SUITE_P(Sights, Completeness, ::testing::ValuesIn(kSights), [](const auto& one) {
  const Sight& sight = one.param;
  return QStringLiteral("%1_%2_on_%3_by_%4")
      .arg(QString(sight.family).remove(' '))
      .arg(sight.points)
      .arg(sight.screen.width())
      .arg(sight.screen.height())
      .toStdString();
});

// A form with faults of each kind, so that the test above is known to find them.
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

TEST(CompletenessInspection, FindsEachKindOfFault) {
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
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
  outside->setGeometry(panel->width() - 10, 0, 200, 60);
  outside->show();

  const auto faults = AllFaults(form, page);
  EXPECT_EQ(faults.size(), 7u) << ::testing::PrintToString(faults);
  EXPECT_THAT(faults, Contains("not placed: Command3"));
  EXPECT_THAT(faults, Contains("nameless: Text1"));
  EXPECT_THAT(faults, Contains("mnemonic s: Command1 and Command2"));
  EXPECT_THAT(faults, Contains(HasSubstr("cut off: Label1")));
  EXPECT_THAT(faults, Contains(HasSubstr("sticks out: Command4")));
  EXPECT_THAT(faults, Contains("over each other: Command1 \"Save\" and Command4 \"Outside\""));
}

// One of each kind that shows a text, in 60 by 26 pixels.
TEST(CompletenessInspection, FindsATextThatItsWidgetCuts) {
  const QString text = QStringLiteral("A text that is longer than its place");
  QWidget page;
  auto* box = new QComboBox(&page);
  box->addItem(text);
  auto* wrapped = new QLabel(text, &page);
  wrapped->setWordWrap(true);
  auto* table = new QTableWidget(1, 1, &page);
  table->setHorizontalHeaderLabels({text});
  table->setColumnWidth(0, 40);
  const std::vector<QWidget*> cut{box,
                                  wrapped,
                                  table->horizontalHeader(),
                                  new QLabel(text, &page),
                                  new QPushButton(text, &page),
                                  new QCheckBox(text, &page),
                                  new QRadioButton(text, &page),
                                  new QLineEdit(text, &page)};
  int top = 0;
  for (QWidget* widget : cut) {
    widget->setObjectName(widget->metaObject()->className());
    (widget->parent() == table ? table : widget)->setGeometry(0, top += 30, 60, 26);
  }
  wrapped->setObjectName("wrapped");
  page.show();
  Settle();
  const auto faults = testing::CutOffFaults(page);
  for (const QWidget* widget : cut) {
    EXPECT_THAT(faults,
                Contains(HasSubstr("cut off: " + widget->objectName().toStdString() + " ")));
  }
}

TEST(CompletenessInspection, FindsAPageThatScrolls) {
  QWidget page;
  auto* content = new QWidget;
  QWidget* scrolled = Scrolled(AtLeast({300, 300}, content));
  scrolled->setParent(&page);
  page.show();
  for (const auto& [size, faults] :
       {std::pair(QSize(300, 300), 0u), {QSize(320, 200), 1u}, {QSize(200, 200), 2u}}) {
    scrolled->resize(size);
    Settle();
    EXPECT_EQ(ScrollFaults(page).size(), faults) << testing::Text(size);
  }
}

}  // namespace
}  // namespace tarnwell::desktop
