#include "forms/spoken.h"

#include <gtest/gtest.h>

#include "forms/chart.h"
#include "forms/choice.h"
#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/text_field.h"
#include "support/form_rig.h"

namespace tarnwell::forms {
namespace {

class SpokenForm : public Form {
 public:
  explicit SpokenForm(Context& context) : Form(context, "Spoken1", "Spoken") {
    locked.SetLocked(true);
    chosen.SetSelected(true);
    chart.SetPoints({{"Rent", 1200}, {"Food", 300}});
    table.SetColumns({{.title = "Item"}, {.title = "January", .editable = true}}, 1);
    table.SetRows(3);
    table.SetText(1, 0, "Rent");
    table.SetText(1, 1, "1,200.00");
  }

  Command save{*this, "Command1", "&Save", {.tool_tip = " Save it ", .is_default = true}};
  Command exit{*this, "Command2", "Exit", {.cancel = true}};
  Command plain{*this, "Command3", "Print", {.tool_tip = "  Print  "}};
  Command chosen{*this, "Command4", "Company"};
  CheckBox active{*this, "Check1", "&Active"};
  TextField city{*this, "Text1", {.max_length = 8}};
  TextField locked{*this, "Text2"};
  Label heading{*this, "Label1", "Address"};
  Chart chart{*this, "Chart1", "Budget"};
  Grid table{*this, "Grid1", "Budget"};
};

TEST(SpokenTest, AControlTellsWhatOneWhoDoesntSeeItHasToKnow) {
  testing::FormWorld world;
  SpokenForm form(world.context);
  const std::pair<const Control*, const char*> cases[] = {
      {&form.save, "Save it. Keys: Alt+S, Enter."},
      {&form.exit, "Key: Esc."},
      {&form.plain, "Enter presses it."},
      {&form.chosen, "Selected. Enter presses it."},
      {&form.active, "Key: Alt+A."},
      {&form.city, "One line of at most 8 characters."},
      {&form.locked, "To be read only."},
      {&form.heading, ""},
      {&form.chart, "Rent $1,200; Food $300."},
      {&form.table,
       "The arrows go from cell to cell, F2 changes one, Ctrl+Z takes a change back, Tab leaves "
       "the "
       "table."},
  };
  for (const auto& [control, told] : cases) EXPECT_EQ(DescriptionOf(*control), told);
}

TEST(SpokenTest, ACellIsToldWithItsRowAndColumn) {
  testing::FormWorld world;
  SpokenForm form(world.context);
  EXPECT_EQ(SpokenCell(form.table, 1, 1), "Rent, January: 1,200.00");
  EXPECT_EQ(SpokenCell(form.table, 2, 1), "Row 2, January: empty");
  EXPECT_EQ(SpokenCell(form.table, 1, 0), "Row 1, Item: Rent");
}

}  // namespace
}  // namespace tarnwell::forms
