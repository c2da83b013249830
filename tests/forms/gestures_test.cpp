// What a person can't do, a test can't do either.

#include <gtest/gtest.h>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/date_picker.h"
#include "forms/form.h"
#include "forms/mnemonics.h"
#include "forms/navigator.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "support/form_rig.h"

namespace tarnwell::forms {
namespace {

class SampleForm : public Form {
 public:
  explicit SampleForm(Context& context) : Form(context, "Sample", "Sample") {
    const auto count = [this] { ++handled; };
    button.on_click = field.on_change = list.on_pick = calendar.on_pick = box.on_change = count;
    options.on_pick = [this](int) { ++handled; };
    list.SetItems({"a", "b"});
    MenuItem& menu = menus().AddSubmenu("m", "&Menu");
    menu.AddEntry("mLast", "Last", count);
  }

  // All gestures once; the number of handlers that ran.
  int TryAll() {
    handled = 0;
    button.Click();
    field.Type(field.text() + "x");
    list.Pick(1);
    calendar.SelectDay(text::MakeDate(2026, 3, 9));
    box.Check(!box.checked());
    options.Pick(1);
    return handled;
  }

  Panel panel{*this, "Panel1"};
  Command button{panel, "Command1", "&Go", {.cancel = true}};
  TextField field{panel, "Text1", {.max_length = 5}};
  ComboBox list{panel, "Combo1", "List"};
  DatePicker calendar{panel, "MonthView1", "Day"};
  CheckBox box{panel, "Check1", "Box"};
  OptionGroup options{panel, "Option1", {"First", "Second"}};
  int handled = 0;
};

class GesturesTest : public ::testing::Test {
 protected:
  GesturesTest() {
    navigator.Register("Sample", [](Context& c) { return std::make_unique<SampleForm>(c); });
    navigator.Register("Other",
                       [](Context& c) { return std::make_unique<Form>(c, "Other", "Other"); });
    navigator.Show("Sample");
  }
  SampleForm& form() { return dynamic_cast<SampleForm&>(*navigator.Find("Sample")); }

  testing::FormRig rig;
  Navigator& navigator = rig.navigator;
};

TEST_F(GesturesTest, OnlyWhatIsShownEnabledAndOnTopAnswers) {
  EXPECT_EQ(form().TryAll(), 6);
  form().panel.SetVisible(false);
  EXPECT_EQ(form().TryAll(), 0);
  form().panel.SetVisible(true);
  form().panel.SetEnabled(false);
  EXPECT_EQ(form().TryAll(), 0);
  form().panel.SetEnabled(true);
  navigator.Show("Other");
  EXPECT_EQ(form().TryAll(), 0);
  navigator.Show("Sample");
  EXPECT_EQ(form().TryAll(), 6);
  form().button.SetEnabled(false);
  form().PressEscape();
  EXPECT_EQ(form().TryAll(), 5);
}

TEST_F(GesturesTest, ADisabledMenuSilencesItsEntries) {
  MenuItem* entry = form().menus().Find("mLast");
  form().handled = 0;
  form().menus().Find("m")->SetEnabled(false);
  entry->Click();
  EXPECT_EQ(form().handled, 0);
  form().menus().Find("m")->SetEnabled(true);
  entry->Click();
  EXPECT_EQ(form().handled, 1);
}

TEST_F(GesturesTest, TypingIsCutAndFreeOfControlCharacters) {
  form().field.Type("a\r\nbcdef");
  EXPECT_EQ(form().field.text(), "a  bc");
  form().field.SetText("set by the program");
  EXPECT_EQ(form().field.text(), "set by the program");
}

TEST_F(GesturesTest, NonsenseGesturesChangeNothing) {
  form().list.Pick(7);
  form().list.Pick(-1);
  EXPECT_EQ(form().list.selected(), ComboBox::kNone);
  form().calendar.SelectDay(text::MakeDate(2026, 2, 30));
  form().calendar.SelectDay(text::MakeDate(1200, 1, 1));
  EXPECT_EQ(form().calendar.date(), std::nullopt);
  EXPECT_EQ(form().Find("Option1(1)"), &form().options.option(1));
  EXPECT_EQ(form().Find("Option1(2)"), nullptr);
}

// Two panels, the inner one in the outer, with letters that are used again and again.
class MnemonicForm : public Form {
 public:
  explicit MnemonicForm(Context& context) : Form(context, "Letters", "Letters") {
    SetHelpContext(3000);
    inner.SetHelpContext(1014);
    close.on_click = [this] { closed = true; };
  }
  Command exit{*this, "exit", "E&xit"};
  Panel outer{*this, "outer"};
  Command close{outer, "close", "&Close && Leave", {.is_default = true}};
  TextField field{outer, "field"};
  Panel inner{outer, "inner"};
  Command print{inner, "print", "&Print"};
  CheckBox pages{inner, "pages", "&Pages"};
  OptionGroup ways{inner, "way", {"E&xit", "Down && &Out"}};
  bool closed = false;
};

TEST_F(GesturesTest, AMnemonicMeansTheNearestInsideOutThenTheNext) {
  navigator.Register("Letters", [](Context& c) { return std::make_unique<MnemonicForm>(c); });
  navigator.Show("Letters");
  auto& form = dynamic_cast<MnemonicForm&>(*navigator.top());
  const struct {
    const char* what;
    Control* focus;
    bool inner_shown;
    char letter;
    Control* target;
  } cases[] = {
      {"the innermost where nothing has the focus", nullptr, true, 'x', &form.ways.option(0)},
      {"the panel that is hidden has none", nullptr, false, 'x', &form.exit},
      {"the nearest to the focus, though another comes first", &form.pages, true, 'x',
       &form.ways.option(0)},
      {"the screen's own", &form.exit, true, 'c', &form.close},
      {"two in one panel: the first", &form.field, true, 'p', &form.print},
      {"then the next", &form.print, true, 'p', &form.pages},
      {"and round", &form.pages, true, 'p', &form.print},
      {"a focus that is hidden counts for nothing", &form.pages, false, 'p', nullptr},
      {"two ampersands are one, and no letter", &form.field, true, ' ', nullptr},
      {"behind two ampersands", &form.field, true, 'o', &form.ways.option(1)},
  };
  for (const auto& one : cases) {
    form.inner.SetVisible(true);
    if (one.focus) one.focus->Focus();
    form.inner.SetVisible(one.inner_shown);
    EXPECT_EQ(MnemonicTarget(form, one.letter), one.target) << one.what;
  }
}

TEST_F(GesturesTest, EnterPressesTheDefaultAndTheHelpIsThatOfThePanelOnShow) {
  navigator.Register("Letters", [](Context& c) { return std::make_unique<MnemonicForm>(c); });
  navigator.Show("Letters");
  auto& form = dynamic_cast<MnemonicForm&>(*navigator.top());
  EXPECT_EQ(form.help_context(), 1014);
  form.inner.SetVisible(false);
  EXPECT_EQ(form.help_context(), 3000);
  EXPECT_FALSE(form.PressEscape());
  EXPECT_TRUE(form.PressEnter());
  EXPECT_TRUE(form.closed);
  form.outer.SetVisible(false);
  EXPECT_FALSE(form.PressEnter());
}

TEST_F(GesturesTest, AListenerMayEndItselfOrOthersWhileItIsCalled) {
  int calls = 0;
  Subscription second;
  Subscription first = form().button.OnChanged([&] {
    ++calls;
    second = {};
  });
  second = form().button.OnChanged([&] { ++calls; });
  form().button.SetCaption("Once");
  EXPECT_EQ(calls, 1);
  first = {};
  form().button.SetCaption("Never");
  EXPECT_EQ(calls, 1);
}

TEST_F(GesturesTest, AnUnloadedFormLivesUntilItIsSafeToFreeIt) {
  SampleForm& sample = form();
  sample.button.on_click = [&] {
    navigator.Unload(sample);
    sample.handled = 100;  // the form is still there
  };
  sample.button.Click();
  EXPECT_EQ(sample.handled, 100);
  EXPECT_EQ(navigator.Find("Sample"), nullptr);
  navigator.FreeUnloaded();
}

}  // namespace
}  // namespace tarnwell::forms
