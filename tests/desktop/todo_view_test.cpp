#include <gtest/gtest.h>

#include <QTest>

#include "desktop/desktop.h"
#include "forms/form_names.h"
#include "support/temporary_folder.h"
#include "workarea/workarea1.h"

namespace tarnwell::desktop {
namespace {

TEST(ToDoView, EscClosesTheCalendarWhoeverHasTheKeys) {
  const tarnwell::testing::TemporaryFolder temporary;
  Desktop desktop({QString::fromStdString(temporary.path()), {}});
  desktop.navigator().Show(forms::form_names::kWorkArea1);
  auto& sheet = dynamic_cast<workarea::WorkArea1&>(*desktop.navigator().top()).to_do.sheet;
  desktop.window().show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.window()));
  auto* grid = desktop.window().findChild<QWidget*>(QStringLiteral("VSGd1"));
  auto* calendar = desktop.window().findChild<QWidget*>(QStringLiteral("MonthView1"));
  ASSERT_TRUE(grid && calendar);
  for (QWidget* focus : {grid, calendar}) {
    grid->setFocus();
    sheet.grid.SelectCell(1, workarea::ToDoSheet::kItem);
    sheet.grid.SelectCell(1, workarea::ToDoSheet::kToDo);
    ASSERT_TRUE(calendar->isVisible());
    focus->setFocus();
    QTest::keyClick(focus, Qt::Key_Escape);
    EXPECT_FALSE(sheet.calendar.visible());
    EXPECT_TRUE(grid->hasFocus());
    EXPECT_EQ(sheet.grid.text(1, workarea::ToDoSheet::kToDo), "");
  }
}

}  // namespace
}  // namespace tarnwell::desktop
