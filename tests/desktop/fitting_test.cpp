#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QLabel>
#include <QScrollBar>
#include <QTest>

#include "desktop/widgets/layout.h"
#include "desktop/widgets/month_calendar.h"

namespace tarnwell::desktop {
namespace {

const text::Date kDay = text::MakeDate(2026, 11, 23);
const text::Date kDayOfNextMonth = text::MakeDate(2026, 12, 23);

TEST(Fitting, TwoMonthsLieBelowEachOtherInANarrowWindow) {
  QWidget window;
  auto* calendar = new MonthCalendar;
  calendar->setParent(&window);
  window.show();
  calendar->Show(kDay, kDay, {.months = 2, .mark_today = true});
  for (const int width : {3000, 600, 3000}) {
    window.resize(width, 600);
    QCoreApplication::processEvents();
    calendar->resize(calendar->sizeHint());
    const QRect first = calendar->PlaceOf(kDay);
    const QRect second = calendar->PlaceOf(kDayOfNextMonth);
    EXPECT_EQ(second.left() > first.left() + calendar->width() / 3, width == 3000) << width;
    EXPECT_EQ(second.top() > first.top() + calendar->height() / 3, width == 600) << width;
    EXPECT_TRUE(calendar->rect().contains(second)) << width;

    std::optional<text::Date> picked;
    calendar->on_pick = [&](text::Date date) { picked = date; };
    QTest::mouseClick(calendar, Qt::LeftButton, {}, second.center());
    EXPECT_EQ(picked, kDayOfNextMonth) << width;
    // Today's date, in the foot.
    QTest::mouseClick(calendar, Qt::LeftButton, {}, {40, calendar->height() - 12});
    EXPECT_EQ(picked, kDay) << width;
  }
}

TEST(Fitting, AScrollBarLiesBesideTheContentOfANarrowableSide) {
  auto* side = Scrolled(AtLeast({200, 400}, new QLabel));
  QWidget* both = Narrowable(side, new QLabel);
  both->resize(800, 300);
  both->show();
  QCoreApplication::processEvents();
  const auto* bar = qobject_cast<QAbstractScrollArea*>(side)->horizontalScrollBar();
  EXPECT_FALSE(bar->isVisible());
  delete both;
}

TEST(Fitting, AScrolledColumnWidensWithItsContent) {
  auto* label = new QLabel(QStringLiteral("short"));
  QWidget* column = ScrolledColumn(label);
  QWidget* row = Row({Grow(new QLabel), column});
  row->resize(800, 300);
  row->show();
  QCoreApplication::processEvents();
  label->setText(QStringLiteral("a text that is longer than before"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return column->width() >= label->sizeHint().width(); }));
  delete row;
}

}  // namespace
}  // namespace tarnwell::desktop
