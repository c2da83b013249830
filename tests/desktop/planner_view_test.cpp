#include <gtest/gtest.h>

#include <QLineEdit>
#include <QStringList>

#include "desktop/desktop.h"
#include "forms/form_names.h"
#include "planner/zcalandar1.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

// The names that Tab meets behind the first row's time, as long as they are the rows'.
QStringList NamesBehind(QWidget& start, int count) {
  QStringList names;
  for (QWidget* next = start.nextInFocusChain(); next != &start && names.size() < count;
       next = next->nextInFocusChain()) {
    if (next->focusPolicy() & Qt::TabFocus) names << next->objectName();
  }
  return names;
}

TEST(PlannerView, TabWalksARowFromLeftToRightWithTheTimePickerWhereItStands) {
  const tarnwell::testing::TemporaryFolder temporary;
  Desktop desktop({QString::fromStdString(temporary.path()), {}});
  desktop.navigator().Show(forms::form_names::kZcalandar1);
  auto& form = dynamic_cast<planner::Zcalandar1&>(*desktop.navigator().top());
  auto* time = desktop.window().findChild<QLineEdit*>(QStringLiteral("Text1(0)"));
  ASSERT_NE(time, nullptr);
  EXPECT_EQ(NamesBehind(*time, 4), QStringList({"Combo1", "Text2(0)", "Option2(0)", "Text1(1)"}));
  form.times[1].Focus();
  EXPECT_EQ(NamesBehind(*time, 5),
            QStringList({"Text2(0)", "Option2(0)", "Text1(1)", "Combo1", "Text2(1)"}));
}

}  // namespace
}  // namespace tarnwell::desktop
