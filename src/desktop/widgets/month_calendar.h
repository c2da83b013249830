#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "desktop/widgets/month_sheet.h"
#include "forms/date_picker.h"

namespace tarnwell::desktop {

// One or two months side by side, or below each other where these would take more than their share
// of the window's width. Arrow keys pick the days around, Page Up and Page Down the same
// day of the months around (with Ctrl: years), Home and End the month's first and last day,
// Ctrl+Home today. The arrows in the head and the wheel turn the pages without picking. A click on
// a month's title offers the years around; so does F4, which picks the same day of the year chosen.
class MonthCalendar : public QWidget {
 public:
  MonthCalendar();

  std::function<void(text::Date)> on_pick;

  void Show(std::optional<text::Date> date, std::optional<text::Date> today,
            const forms::DatePickerLook& look);

  // Where a day of the shown months is painted; empty for others. For tests and screen readers.
  QRect PlaceOf(text::Date date) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Metrics;
  Metrics Measure() const;
  Month ShownMonth(int pane) const;
  int PaneOf(text::Date date) const;
  void TurnPages(int months);
  // A list below the pane's title, the year `shown` marked. Calls `take` with the year chosen.
  void OfferYears(int shown, int pane, const std::function<void(int year)>& take);
  void Pick(text::Date date);
  std::optional<text::Date> DayAt(const QPoint& point) const;
  std::optional<text::Date> DayForKey(const QKeyEvent& event) const;

  void PaintHead(QPainter& painter, int pane) const;
  void PaintDays(QPainter& painter, int pane) const;
  void PaintDay(QPainter& painter, const QRect& place, text::Date day) const;
  void PaintWeekNumbers(QPainter& painter, int pane) const;
  void PaintFoot(QPainter& painter) const;

  std::optional<text::Date> date_;
  std::optional<text::Date> today_;
  forms::DatePickerLook look_;
  Month first_shown_{std::chrono::year{2000}, std::chrono::January};
};

}  // namespace tarnwell::desktop
