#pragma once

#include <QGridLayout>
#include <QWidget>
#include <vector>

#include "forms/notifier.h"
#include "planner/zcalandar1.h"

namespace tarnwell::desktop {

// The planner's 14 rows under their headings, with the time picker beside the row in hand.
class DayRowsWidget : public QWidget {
 public:
  explicit DayRowsWidget(planner::Zcalandar1& form);

 private:
  void PlaceTimePicker(int row);

  QGridLayout* grid_;
  QWidget* time_picker_;
  std::vector<QWidget*> times_;  // of the rows, from the top
  int row_of_picker_ = -1;
  forms::Subscription subscription_;
};

}  // namespace tarnwell::desktop
