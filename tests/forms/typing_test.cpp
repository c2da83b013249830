// What a person types in the controls that take a text, and what the form does about it.

#include <gtest/gtest.h>

#include "forms/text_box.h"
#include "forms/text_field.h"
#include "forms/typed_combo.h"
#include "support/form_rig.h"

namespace tarnwell::forms {
namespace {

TEST(TextSelection, IsCutToTheTextAndFollowedOnce) {
  testing::FormRig rig;
  TextField field(rig.form, "Text1");
  field.SetText("1200");
  field.on_change = [&] { field.SelectAll(); };
  EXPECT_EQ(field.selection().number(), 0);
  field.Select(1, 9);
  EXPECT_EQ(field.selection().begin(), 1u);
  EXPECT_EQ(field.selection().end(), 4u);
  field.Type("12");
  EXPECT_EQ(field.selection().end(), 2u);
  EXPECT_EQ(field.selection().number(), 2);
  EXPECT_FALSE(field.focused());
}

TEST(TextBox, TakesWhatFitsAndNeverLosesWhatStood) {
  testing::FormRig rig;
  TextBox box(rig.form, "Text1", {.max_length = 8});
  const struct {
    const char* what;
    std::string before;
    std::string typed;
    std::string after;
  } cases[] = {
      {"lines of any kind", "", "a\nb\rc", "a\r\nb\r\nc"},
      {"control characters", "", "a\tb\x01", "a b "},
      {"more than fits at the end", "123456", "1234567890", "12345678"},
      {"more than fits in the middle", "123456", "123xyz456", "123xy456"},
      {"a line end that half fits", "1234567", "123\n4567", "1234567"},
      {"the same letters again", "aaaaaaaa", "aaaaaaaaa", "aaaaaaaa"},
      {"in the place of others", "12345678", "12xxxx78", "12xxxx78"},
      {"shorter", "12345678", "18", "18"},
      {"more from the program than fits", "1234567890", "12345x67890", "1234567890"},
      {"and less of it", "1234567890", "123456789", "123456789"},
      {"line ends of the program's that grow", "1\n2\n3\n4\n", "1\n2\n3\n4\n5", "1\n2\n3\n4\n"},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    int changes = 0;
    box.on_change = [&] { ++changes; };
    box.SetText(one.before);
    box.Type(one.typed);
    EXPECT_EQ(box.text(), one.after);
    EXPECT_EQ(changes, one.before == one.after ? 0 : 1);
  }
}

TEST(TextBox, ALockedOneIsOnlyRead) {
  testing::FormRig rig;
  TextBox box(rig.form, "Text1");
  box.on_enter = [] { return true; };
  EXPECT_TRUE(box.PressEnter());
  box.SetText("note");
  box.SetLocked(true);
  box.Type("other");
  EXPECT_FALSE(box.PressEnter());
  EXPECT_EQ(box.text(), "note");
  box.Focus();
  EXPECT_TRUE(box.focused());
}

class TypedComboTest : public ::testing::Test {
 protected:
  TypedComboTest() {
    year.SetItems({"2025", "2026", "2027"});
    year.SetText("2026");
    year.on_take = [this] { taken.push_back(year.text()); };
    name.SetItems({"Dentist", "Rent", "rental car"});
  }

  testing::FormRig rig;
  TypedCombo year{rig.form, "Combo1", {.max_length = 4, .characters = "0123456789"}};
  TypedCombo name{rig.form, "Combo2", {.completes = true}};
  std::vector<std::string> taken;
};

TEST_F(TypedComboTest, AYearIsTakenByEnterOrFromTheList) {
  year.Type("1x9 98");
  EXPECT_EQ(year.text(), "1998");
  EXPECT_EQ(year.selected(), TypedCombo::kNone);
  EXPECT_EQ(taken.size(), 0u);
  year.PressEnter();
  year.Pick(2);
  EXPECT_EQ(year.selected(), 2);
  year.PressArrow(-1);
  year.PressArrow(-9);
  year.PressArrow(-1);  // there is nothing above
  year.Type("20");
  year.PressArrow(1);  // the first, from what is no item
  EXPECT_EQ(taken, (std::vector<std::string>{"1998", "2027", "2026", "2025", "2025"}));
  EXPECT_EQ(year.text(), "2025");
}

TEST_F(TypedComboTest, EscGoesBackToWhatWasTakenAndOnlyThenFurther) {
  EXPECT_FALSE(year.PressEscape());
  year.Type("20");
  EXPECT_TRUE(year.PressEscape());
  EXPECT_EQ(year.text(), "2026");
  EXPECT_FALSE(year.PressEscape());
  // The form refuses a year, or knows a better one.
  year.on_take = [this] { year.SetText("1990"); };
  year.Type("18");
  year.PressEnter();
  EXPECT_EQ(year.taken(), "1990");
}

TEST_F(TypedComboTest, TheFormIsAskedBeforeTheListOpens) {
  EXPECT_TRUE(year.Open());
  year.on_open = [] { return false; };
  EXPECT_FALSE(year.Open());
  year.on_open = [this] {
    year.SetItems({"2026"});
    return true;
  };
  EXPECT_TRUE(year.Open());
  EXPECT_EQ(year.selected(), 0);
}

TEST_F(TypedComboTest, ANameIsCompletedAsLongAsItGrows) {
  const struct {
    const char* typed;
    const char* shown;
    std::size_t marked_from;
  } steps[] = {
      {"r", "rent", 1}, {"re", "rent", 2}, {"re", "re", 2},     {"r", "r", 1},
      {"x", "x", 1},    {"", "", 0},       {"d", "dentist", 1},
  };
  for (const auto& step : steps) {
    name.Type(step.typed);
    EXPECT_EQ(name.text(), step.shown) << step.typed;
    const bool is_completed = name.text() != step.typed;
    EXPECT_TRUE(!is_completed || name.selection().begin() == step.marked_from) << step.typed;
  }
  name.PressEnter();
  EXPECT_EQ(name.text(), "Dentist");
  EXPECT_EQ(name.selected(), 0);
}

}  // namespace
}  // namespace tarnwell::forms
