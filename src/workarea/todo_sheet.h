#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/context.h"
#include "forms/date_picker.h"
#include "forms/grid.h"
#include "workarea/todo_list.h"

namespace tarnwell::workarea {

// The grid of the To Do list, and the month calendar beside its columns of dates.
class ToDoSheet {
 public:
  enum Column : int { kNumber, kItem, kToDo, kActual, kSpacer, kReview };

  ToDoSheet(forms::Container& parent, forms::Context& context);

  forms::Grid grid;
  forms::DatePicker calendar;

  void Fill(const std::vector<ToDoRow>& rows);
  std::vector<ToDoRow> Rows() const;
  // Where the open calendar's left edge lies, in shares of the grid's width.
  double calendar_left() const;

  // What the commands do. The cell that is being edited is ended first.

  // Puts the item into the first row without one. False where there is none.
  bool Add(const std::string& item);
  // Both ask first.
  void DeleteRow();
  void Clear();
  // Above the row with the cursor.
  void InsertRow();

  void CloseCalendar() { calendar.SetVisible(false); }
  // A person wants no day of it. False where it isn't open.
  bool GiveUpCalendar();

  // A person changed the rows; and, behind that, wrote this item.
  std::function<void()> on_change;
  std::function<void(const std::string& item)> on_item;

 private:
  void OpenCalendar();
  void CloseCalendarUnlessInUse();
  void PickDay();
  void Sort(int column);
  void Edited(int row, int column);

  forms::Form& form_;
  forms::Context& context_;
};

}  // namespace tarnwell::workarea
