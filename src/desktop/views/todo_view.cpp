#include "desktop/views/todo_view.h"

#include <QKeyEvent>
#include <QTableView>
#include <algorithm>

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "forms/notifier.h"

namespace tarnwell::desktop {
namespace {

constexpr int kLettersOfName = 46;

// Keeps the calendar over the grid, beside the column in hand and at the height of its cell. Esc
// closes it.
class CalendarPlace : public QObject {
 public:
  CalendarPlace(QTableView* grid, QWidget* calendar, workarea::ToDoSheet& sheet)
      : QObject(grid), grid_(grid), calendar_(calendar), sheet_(sheet) {
    calendar->setParent(grid);
    grid->installEventFilter(this);
    calendar->installEventFilter(this);
    subscription_ = sheet.calendar.OnChanged([this] { Place(); });
  }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize && watched == grid_) Place();
    const bool is_key = event->type() == QEvent::KeyPress;
    if (is_key && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
      return sheet_.GiveUpCalendar();
    }
    return QObject::eventFilter(watched, event);
  }

  void Place() {
    if (!sheet_.calendar.visible()) return;
    const QSize size = calendar_->sizeHint();
    int left = static_cast<int>(sheet_.calendar_left() * grid_->width());
    const int column =
        grid_->viewport()->x() + grid_->columnViewportPosition(grid_->currentIndex().column());
    // On the left of its column it ends there.
    if (left < column) left = std::min(left, column - size.width());
    const int top = grid_->viewport()->y() + grid_->visualRect(grid_->currentIndex()).top();
    const QSize room = grid_->size() - size;
    calendar_->setGeometry(QRect({std::clamp(left, 0, std::max(room.width(), 0)),
                                  std::clamp(top, 0, std::max(room.height(), 0))},
                                 size));
    calendar_->raise();
  }

  QTableView* grid_;
  QWidget* calendar_;
  workarea::ToDoSheet& sheet_;
  forms::Subscription subscription_;
};

QWidget* Sheet(workarea::ToDoSheet& sheet, PictureStore& pictures) {
  QWidget* grid = Widget(sheet.grid, pictures);
  new CalendarPlace(static_cast<QTableView*>(grid), Widget(sheet.calendar), sheet);
  return grid;
}

}  // namespace

QWidget* ToDoView(workarea::ToDoPane& pane, PictureStore& pictures) {
  QWidget* names =
      Inline(Widget(pane.names_frame, Row({Grow(AtMost(Widget(pane.names), kLettersOfName)),
                                           Widget(pane.add), Widget(pane.delete_name), Spring()})));
  return Widget(
      pane.panel,
      Column({
          Flow({Widget(pane.heading), Widget(pane.date)}),
          names,
          Grow(Sheet(pane.sheet, pictures)),
          Flow({Primary(Widget(pane.save)), Widget(pane.delete_row),
                WithIcon("clear", Widget(pane.clear)), WithIcon("spelling", Widget(pane.spelling)),
                WithIcon("print", Widget(pane.print_options)), WithIcon("exit", Widget(pane.exit))},
               kTightSpace),
      }));
}

}  // namespace tarnwell::desktop
