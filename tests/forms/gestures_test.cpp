// What a person can't do, a test can't do either.

#include <gtest/gtest.h>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/date_picker.h"
#include "forms/form.h"
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
