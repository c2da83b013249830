#include "desktop/views/day_rows_widget.h"

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

enum RowColumn { kTime, kPicker, kEntry, kRecurrence };

constexpr int kLettersOfTime = 9;

}  // namespace

DayRowsWidget::DayRowsWidget(planner::Zcalandar1& form)
    : grid_(new QGridLayout(this)), time_picker_(Widget(form.time_picker)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(kSpace);
  grid_->setVerticalSpacing(kTightSpace);
  grid_->addWidget(Widget(form.time_heading), 0, kTime);
  grid_->addWidget(Widget(form.entry_heading), 0, kEntry);
  for (int row = 0; row < planner::kRowsPerDay; ++row) {
    const auto index = static_cast<std::size_t>(row);
    times_.push_back(OfLetters(Widget(form.times[index]), kLettersOfTime));
    grid_->addWidget(times_.back(), row + 1, kTime);
    grid_->addWidget(Widget(form.entries[index]), row + 1, kEntry);
    grid_->addWidget(IconOnly("repeat", Widget(form.recurrence_buttons[index])), row + 1,
                     kRecurrence);
    grid_->setRowMinimumHeight(row + 1, time_picker_->sizeHint().height());
  }
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  time_picker_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  grid_->setColumnStretch(kEntry, 1);
  PlaceTimePicker(form.row_in_hand());
  // The form turns the picker to each new row in hand.
  subscription_ =
      form.time_picker.OnChanged([this, &form] { PlaceTimePicker(form.row_in_hand()); });
}

void DayRowsWidget::PlaceTimePicker(int row) {
  if (row == row_of_picker_) return;
  row_of_picker_ = row;
  grid_->removeWidget(time_picker_);
  grid_->addWidget(time_picker_, row + 1, kPicker);
  // Tab walks a row from left to right: time, picker, entry, recurrence.
  setTabOrder(times_[static_cast<std::size_t>(row)], time_picker_);
}

}  // namespace tarnwell::desktop
