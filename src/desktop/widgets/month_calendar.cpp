#include "desktop/widgets/month_calendar.h"

#include <QDate>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/widgets/look.h"
#include "desktop/widgets/spoken_role.h"

namespace tarnwell::desktop {
namespace {

using std::chrono::months;

constexpr int kPaneGap = 14;
constexpr int kMargin = 6;
constexpr int kYearsAround = 10;
// Of the window's width; the rest is for what stands beside.
constexpr double kLargestShare = 0.4;

QLocale English() { return QLocale(QLocale::English, QLocale::UnitedStates); }

QString MonthTitle(Month month) {
  return QStringLiteral("%1 %2")
      .arg(English().standaloneMonthName(static_cast<int>(static_cast<unsigned>(month.month()))))
      .arg(static_cast<int>(month.year()));
}

QDate ToQDate(text::Date date) {
  return {text::YearOf(date), static_cast<int>(text::MonthOf(date)),
          static_cast<int>(text::DayOf(date))};
}

QString SpokenDate(text::Date date) {
  return English().toString(ToQDate(date), QStringLiteral("dddd, MMMM d, yyyy"));
}

}  // namespace

struct MonthCalendar::Metrics {
  int cell_width;
  int cell_height;
  int week_number_width;
  int pane_width;
  int foot_height;
  bool folded;

  int PaneHeight() const { return (kWeeksOfSheet + 2) * cell_height; }
  int PaneLeft(int pane) const { return kMargin + (folded ? 0 : pane * (pane_width + kPaneGap)); }
  int PaneTop(int pane) const { return kMargin + (folded ? pane * (PaneHeight() + kPaneGap) : 0); }
  QRect Head(int pane) const { return {PaneLeft(pane), PaneTop(pane), pane_width, cell_height}; }
  // Row 0 has the weekdays' names.
  QRect Cell(int pane, int row, int column) const {
    return {PaneLeft(pane) + week_number_width + column * cell_width,
            PaneTop(pane) + (row + 1) * cell_height, cell_width, cell_height};
  }
  QRect WeekNumber(int pane, int row) const {
    return {PaneLeft(pane), PaneTop(pane) + (row + 1) * cell_height, week_number_width,
            cell_height};
  }
  QRect Foot(int panes) const {
    return {kMargin, PaneTop(panes - 1) + PaneHeight(), pane_width, foot_height};
  }
  QRect Back() const { return {kMargin, kMargin, cell_height, cell_height}; }
  QRect Forth(int panes) const {
    return {PaneLeft(panes - 1) + pane_width - cell_height, kMargin, cell_height, cell_height};
  }
};

MonthCalendar::MonthCalendar() {
  setFocusPolicy(Qt::StrongFocus);
  SetSpokenRole(this, QAccessible::Table);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

MonthCalendar::Metrics MonthCalendar::Measure() const {
  const QFontMetrics text = fontMetrics();
  Metrics metrics{};
  metrics.cell_width = std::max(28, text.horizontalAdvance(QStringLiteral("Wed")) + 4);
  metrics.cell_height = std::max(26, text.height() + 8);
  metrics.week_number_width = look_.week_numbers ? metrics.cell_width : 0;
  metrics.pane_width = metrics.week_number_width + kDaysOfWeek * metrics.cell_width;
  metrics.foot_height = look_.mark_today && today_ ? metrics.cell_height : 0;
  const int unfolded = look_.months * (metrics.pane_width + kPaneGap);
  metrics.folded = unfolded > window()->width() * kLargestShare;
  return metrics;
}

QSize MonthCalendar::sizeHint() const {
  const Metrics metrics = Measure();
  const int last = look_.months - 1;
  return {metrics.PaneLeft(last) + metrics.pane_width + kMargin,
          metrics.Foot(look_.months).top() + metrics.foot_height + kMargin};
}

void MonthCalendar::showEvent(QShowEvent* event) {
  window()->installEventFilter(this);
  updateGeometry();
  QWidget::showEvent(event);
}

bool MonthCalendar::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window() && event->type() == QEvent::Resize && size() != sizeHint()) {
    updateGeometry();
    update();
  }
  return QWidget::eventFilter(watched, event);
}

void MonthCalendar::Show(std::optional<text::Date> date, std::optional<text::Date> today,
                         const forms::DatePickerLook& look) {
  const bool turns = date && (date != date_ || !date_);
  const bool first_time = !date_ && !today_ && today;
  const bool resized = look != look_ || today.has_value() != today_.has_value();
  date_ = date;
  today_ = today;
  look_ = look;
  if (turns && PaneOf(*date) < 0) first_shown_ = Clamped(MonthOfDate(*date));
  if (!date && first_time) first_shown_ = Clamped(MonthOfDate(*today));
  // The day is what a person wants to hear first.
  if (date)
    setAccessibleDescription(SpokenDate(*date) + QStringLiteral(". ") + accessibleDescription());
  if (resized) updateGeometry();
  update();
}

Month MonthCalendar::ShownMonth(int pane) const { return first_shown_ + months{pane}; }

int MonthCalendar::PaneOf(text::Date date) const {
  for (int pane = 0; pane < look_.months; ++pane) {
    if (ShownMonth(pane) == MonthOfDate(date)) return pane;
  }
  return -1;
}

QRect MonthCalendar::PlaceOf(text::Date date) const {
  const int pane = PaneOf(date);
  if (pane < 0) return {};
  const auto days = DaysOfSheet(ShownMonth(pane), look_.first_weekday);
  const auto place = static_cast<int>(std::ranges::find(days, date) - days.begin());
  return Measure().Cell(pane, place / kDaysOfWeek + 1, place % kDaysOfWeek);
}

void MonthCalendar::TurnPages(int count) {
  first_shown_ = Clamped(first_shown_ + months{count});
  update();
}

void MonthCalendar::OfferYears(int shown, int pane, const std::function<void(int)>& take) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const int first = std::max(shown - kYearsAround, static_cast<int>(kFirstMonth.year()));
  const int last = std::min(shown + kYearsAround, static_cast<int>(kLastMonth.year()));
  for (int year = first; year <= last; ++year) {
    QAction* entry = menu->addAction(QString::number(year));
    connect(entry, &QAction::triggered, this, [take, year] { take(year); });
    entry->setCheckable(true);
    entry->setChecked(year == shown);
    if (year == shown) menu->setActiveAction(entry);
  }
  menu->popup(mapToGlobal(Measure().Head(pane).bottomLeft()));
}

void MonthCalendar::Pick(text::Date date) {
  if (on_pick) on_pick(date);
}

std::optional<text::Date> MonthCalendar::DayAt(const QPoint& point) const {
  const Metrics metrics = Measure();
  for (int pane = 0; pane < look_.months; ++pane) {
    const auto days = DaysOfSheet(ShownMonth(pane), look_.first_weekday);
    for (int i = 0; i < static_cast<int>(days.size()); ++i) {
      const QRect place = metrics.Cell(pane, i / kDaysOfWeek + 1, i % kDaysOfWeek);
      const text::Date day = days[static_cast<std::size_t>(i)];
      if (place.contains(point) && MonthOfDate(day) == ShownMonth(pane)) return day;
    }
  }
  return std::nullopt;
}

void MonthCalendar::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  const Metrics metrics = Measure();
  const QPoint point = event->pos();
  if (metrics.Back().contains(point)) return TurnPages(-1);
  if (metrics.Forth(look_.months).contains(point)) return TurnPages(1);
  for (int pane = 0; pane < look_.months; ++pane) {
    if (!metrics.Head(pane).contains(point)) continue;
    const int shown = static_cast<int>(ShownMonth(pane).year());
    return OfferYears(shown, pane, [this, shown](int year) { TurnPages(12 * (year - shown)); });
  }
  if (metrics.foot_height > 0 && metrics.Foot(look_.months).contains(point)) return Pick(*today_);
  if (const auto day = DayAt(point)) Pick(*day);
}

void MonthCalendar::wheelEvent(QWheelEvent* event) {
  if (event->angleDelta().y() != 0) TurnPages(event->angleDelta().y() > 0 ? -1 : 1);
}

std::optional<text::Date> MonthCalendar::DayForKey(const QKeyEvent& event) const {
  const text::Date from = date_.value_or(today_.value_or(first_shown_ / std::chrono::day{1}));
  const bool with_ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  const Month month = MonthOfDate(from);
  switch (event.key()) {
    case Qt::Key_Left:
      return text::AddDays(from, -1);
    case Qt::Key_Right:
      return text::AddDays(from, 1);
    case Qt::Key_Up:
      return text::AddDays(from, -kDaysOfWeek);
    case Qt::Key_Down:
      return text::AddDays(from, kDaysOfWeek);
    case Qt::Key_PageUp:
      return SameDayOf(month - months{with_ctrl ? 12 : 1}, from);
    case Qt::Key_PageDown:
      return SameDayOf(month + months{with_ctrl ? 12 : 1}, from);
    case Qt::Key_Home:
      return with_ctrl && today_ ? today_ : text::Date(month / std::chrono::day{1});
    case Qt::Key_End:
      return text::Date(month / std::chrono::last);
    default:
      return std::nullopt;
  }
}

void MonthCalendar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F4) {
    const text::Date from = date_.value_or(ShownMonth(0) / std::chrono::day{1});
    return OfferYears(text::YearOf(from), std::max(PaneOf(from), 0), [this, from](int year) {
      Pick(SameDayOf(Clamped(std::chrono::year{year} / from.month()), from));
    });
  }
  if (const auto day = DayForKey(*event)) {
    Pick(*day);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void MonthCalendar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(ColorOf(isEnabled() ? Tone::kField : Tone::kFieldOff));
  painter.setPen(QPen(ColorOf(hasFocus() ? Tone::kAccent : Tone::kEdge), hasFocus() ? 2 : 1));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
  for (int pane = 0; pane < look_.months; ++pane) {
    PaintHead(painter, pane);
    PaintDays(painter, pane);
    if (look_.week_numbers) PaintWeekNumbers(painter, pane);
  }
  PaintFoot(painter);
}

void MonthCalendar::PaintHead(QPainter& painter, int pane) const {
  const Metrics metrics = Measure();
  QFont bold = font();
  bold.setWeight(QFont::DemiBold);
  painter.setFont(bold);
  painter.setPen(ColorOf(Tone::kInk));
  painter.drawText(metrics.Head(pane), Qt::AlignCenter, MonthTitle(ShownMonth(pane)));
  if (pane == 0) painter.drawText(metrics.Back(), Qt::AlignCenter, QStringLiteral("\u2039"));
  if (pane == (metrics.folded ? 0 : look_.months - 1)) {
    painter.drawText(metrics.Forth(look_.months), Qt::AlignCenter, QStringLiteral("\u203A"));
  }
  painter.setFont(font());
  painter.setPen(ColorOf(Tone::kFaint));
  for (int column = 0; column < kDaysOfWeek; ++column) {
    // Qt counts Monday as 1 and Sunday as 7.
    const int weekday = (static_cast<int>(look_.first_weekday) + column + 6) % kDaysOfWeek + 1;
    painter.drawText(metrics.Cell(pane, 0, column), Qt::AlignCenter,
                     English().standaloneDayName(weekday, QLocale::ShortFormat));
  }
}

void MonthCalendar::PaintDays(QPainter& painter, int pane) const {
  const Metrics metrics = Measure();
  const auto days = DaysOfSheet(ShownMonth(pane), look_.first_weekday);
  for (int i = 0; i < static_cast<int>(days.size()); ++i) {
    const text::Date day = days[static_cast<std::size_t>(i)];
    if (MonthOfDate(day) != ShownMonth(pane)) continue;
    PaintDay(painter, metrics.Cell(pane, i / kDaysOfWeek + 1, i % kDaysOfWeek), day);
  }
}

void MonthCalendar::PaintDay(QPainter& painter, const QRect& place, text::Date day) const {
  const QRectF inside = QRectF(place).adjusted(1.5, 1.5, -1.5, -1.5);
  const bool picked = day == date_;
  if (picked) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ColorOf(isEnabled() ? Tone::kMark : Tone::kMarkOff));
    painter.drawRoundedRect(inside, 5, 5);
  }
  if (look_.mark_today && day == today_) {
    painter.setPen(QPen(ColorOf(Tone::kAlarm), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(inside, 5, 5);
  }
  const Tone ink = isEnabled() ? Tone::kInk : Tone::kFaint;
  painter.setPen(ColorOf(picked ? (isEnabled() ? Tone::kOnMark : Tone::kOnMarkOff) : ink));
  painter.drawText(place, Qt::AlignCenter, QString::number(text::DayOf(day)));
}

void MonthCalendar::PaintWeekNumbers(QPainter& painter, int pane) const {
  const Metrics metrics = Measure();
  const auto days = DaysOfSheet(ShownMonth(pane), look_.first_weekday);
  painter.setPen(ColorOf(Tone::kFaint));
  for (int row = 0; row < kWeeksOfSheet; ++row) {
    const text::Date first = days[static_cast<std::size_t>(row * kDaysOfWeek)];
    if (MonthOfDate(first) > ShownMonth(pane)) break;
    painter.drawText(metrics.WeekNumber(pane, row + 1), Qt::AlignCenter,
                     QString::number(WeekNumber(first, look_.first_weekday)));
  }
  const QRect column = metrics.WeekNumber(pane, 1).united(metrics.WeekNumber(pane, kWeeksOfSheet));
  painter.setPen(ColorOf(Tone::kEdge));
  painter.drawLine(column.topRight(), column.bottomRight());
}

void MonthCalendar::PaintFoot(QPainter& painter) const {
  const Metrics metrics = Measure();
  if (metrics.foot_height == 0) return;
  painter.setPen(ColorOf(Tone::kAccent));
  painter.drawText(metrics.Foot(look_.months), Qt::AlignCenter,
                   English().toString(ToQDate(*today_), QStringLiteral("'Today:' MM/dd/yyyy")));
}

}  // namespace tarnwell::desktop
