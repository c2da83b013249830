#include <gtest/gtest.h>

#include <string>

#include "forms/text_field.h"
#include "support/form_rig.h"

namespace tarnwell::forms {
namespace {

class LeavingTest : public ::testing::Test {
 protected:
  LeavingTest() {
    one.on_leave = [this] { Note("leave 1"); };
    two.on_focus = [this] { Note("focus 2"); };
    two.on_leave = [this] { Note("leave 2"); };
    three.on_focus = [this] { Note("focus 3"); };
    one.Focus();
  }
  void Note(const char* what) { notes += std::string(notes.empty() ? "" : ", ") + what; }

  testing::FormRig rig;
  TextField one{rig.form, "Text1"};
  TextField two{rig.form, "Text2"};
  TextField three{rig.form, "Text3"};
  std::string notes;
};

TEST_F(LeavingTest, ComesBeforeTheNextOneIsEntered) {
  two.Focus();
  two.Focus();
  three.Focus();
  EXPECT_EQ(notes, "leave 1, focus 2, leave 2, focus 3");
}

TEST_F(LeavingTest, MaySendTheFocusBackOrElsewhereWithoutEnd) {
  int back = 0;
  one.on_focus = [&] { ++back; };
  one.on_leave = [this] { one.Focus(); };
  two.on_leave = [this] { two.Focus(); };
  two.Focus();
  EXPECT_TRUE(one.focused());
  EXPECT_EQ(back, 1);
  EXPECT_EQ(notes, "");
  one.on_leave = [this] { three.Focus(); };
  two.Focus();
  EXPECT_TRUE(three.focused());
  EXPECT_EQ(notes, "focus 3");
  // Both refuse to be left.
  one.on_leave = [this] { two.Focus(); };
  one.Focus();
  three.Focus();
  EXPECT_TRUE(two.focused());
}

}  // namespace
}  // namespace tarnwell::forms
