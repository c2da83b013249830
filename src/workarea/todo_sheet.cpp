#include "workarea/todo_sheet.h"

#include "forms/form.h"
#include "parts/sheet_rows.h"
#include "storage/sequential_file.h"
#include "text/letters.h"
#include "workarea/todo_dates.h"

namespace tarnwell::workarea {
namespace {

using Sheet = ToDoSheet;

std::vector<forms::GridColumn> Columns() {
  const auto title = [](std::size_t place) { return std::string(kToDoTitles[place]); };
  // The spacer takes what its heading needs, and the last column what is left.
  return {{.title = "", .share = 0.05, .align = forms::GridAlign::kRight},
          {.title = title(0), .share = 0.34, .editable = true, .max_length = kLongestToDoItem},
          {.title = title(1), .share = 0.17, .editable = true},
          {.title = title(2), .share = 0.17, .editable = true},
          {.title = "", .share = 0.02},
          {.title = title(3), .share = 0.17, .editable = true}};
}

bool IsDate(int column) {
  return column == Sheet::kToDo || column == Sheet::kActual || column == Sheet::kReview;
}

bool IsBlankCell(const std::string& cell) { return text::Trim(cell).empty(); }

}  // namespace

ToDoSheet::ToDoSheet(forms::Container& parent, forms::Context& context)
    : grid(parent, "VSGd1", "Company To Do List"),
      calendar(parent, "MonthView1", "Date of the cell"),
      form_(parent.form()),
      context_(context) {
  grid.SetColumns(Columns(), kItem);
  parts::SetSheetRows(grid, kToDoRows);
  calendar.SetVisible(false);
  grid.on_select = [this] { OpenCalendar(); };
  grid.on_validate = [](int, int, std::string& text) {
    text = storage::WithoutQuotes(text);
    return true;
  };
  grid.on_edit = [this](int row, int column) { Edited(row, column); };
  grid.on_heading = [this](int column) { Sort(column); };
  grid.on_leave = [this] { CloseCalendarUnlessInUse(); };
  calendar.on_leave = [this] { CloseCalendarUnlessInUse(); };
  calendar.on_pick = [this] { PickDay(); };
}

void ToDoSheet::Fill(const std::vector<ToDoRow>& rows) {
  const forms::Grid::Batch batch(grid);
  grid.SetRows(1);
  grid.SetSortMark({});
  parts::SetSheetRows(grid, static_cast<int>(rows.size()));
  int place = 0;
  for (const ToDoRow& row : rows) {
    ++place;
    grid.SetText(place, kItem, row.item);
    grid.SetText(place, kToDo, row.to_do);
    grid.SetText(place, kActual, row.actual);
    grid.SetText(place, kReview, row.review);
  }
  grid.SetCurrent({1, kItem});
}

std::vector<ToDoRow> ToDoSheet::Rows() const {
  std::vector<ToDoRow> rows;
  for (int row = 1; row < grid.rows(); ++row) {
    rows.push_back({grid.text(row, kItem), grid.text(row, kToDo), grid.text(row, kActual),
                    grid.text(row, kReview)});
  }
  return rows;
}

double ToDoSheet::calendar_left() const {
  switch (grid.current().column) {
    case kActual:
      return 0.26;
    case kReview:
      return 0.46;
    default:
      return 0.59;
  }
}

// The first row may have dates without an item.
void ToDoSheet::OpenCalendar() {
  const auto [row, column] = grid.current();
  CloseCalendar();
  if (!IsDate(column)) return;
  if (row > 1 && IsBlankCell(grid.text(row, kItem))) {
    form_.Message(
        {"Item Grid", "Please, enter an Item before any dates.", forms::Icon::kInformation});
    return grid.SetCurrent({parts::FirstBlankCell(grid, kItem), kItem});
  }
  const text::Date today = context_.clock.Today();
  calendar.SetToday(today);
  calendar.SetDate(ReadToDoDate(grid.text(row, column)).value_or(today));
  calendar.SetVisible(true);
}

void ToDoSheet::CloseCalendarUnlessInUse() {
  if (!grid.focused() && !calendar.focused()) CloseCalendar();
}

bool ToDoSheet::GiveUpCalendar() {
  if (!calendar.visible()) return false;
  CloseCalendar();
  grid.Focus();
  return true;
}

void ToDoSheet::PickDay() {
  const auto [row, column] = grid.current();
  const std::string day = ToDoDateText(*calendar.date());
  CloseCalendar();
  grid.EditCell(row, column, day);
  grid.Focus();
}

void ToDoSheet::Edited(int row, int column) {
  CloseCalendar();
  on_change();
  if (column == kItem) on_item(grid.text(row, column));
}

void ToDoSheet::Sort(int column) {
  if (column == kSpacer) return;
  CloseCalendar();
  const auto before = Rows();
  parts::SortSheet(grid, column, IsDate(column) ? forms::GridSortKey(ToDoDateKey) : nullptr);
  if (Rows() != before) on_change();
}

bool ToDoSheet::Add(const std::string& item) {
  grid.EndEdit();
  const int row = parts::FirstBlankCell(grid, kItem);
  if (row == 0) return false;
  grid.EditCell(row, kItem, item);
  grid.Focus();
  return true;
}

void ToDoSheet::DeleteRow() {
  grid.EndEdit();
  CloseCalendar();
  const int row = grid.current().row;
  if (row == 0) return;
  const std::string question = parts::IsSheetRowBlank(grid, row)
                                   ? "Delete This Row?"
                                   : "Delete Activity and Dates for - \n" + grid.text(row, kItem) +
                                         ", " + grid.text(row, kToDo) + "?";
  grid.SetHighlight(row);
  const bool confirmed = form_.Confirmed(
      {"Delete Row", question, forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2});
  grid.SetHighlight(0);
  if (confirmed) {
    parts::DeleteSheetRow(grid, row);
    on_change();
  }
  grid.Focus();
}

void ToDoSheet::Clear() {
  grid.EndEdit();
  CloseCalendar();
  if (form_.Confirmed({"Clear Grid", "Do you really want To Clear the Grid?",
                       forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2})) {
    parts::ClearSheet(grid);
    on_change();
  }
  grid.Focus();
}

void ToDoSheet::InsertRow() {
  grid.EndEdit();
  CloseCalendar();
  const int row = grid.current().row;
  if (row == 0) return;
  if (parts::InsertSheetRow(grid, row)) {
    on_change();
  } else {
    form_.Message({"Insert Row",
                   "The last row of the grid is filled and would be lost. Delete a row first.",
                   forms::Icon::kExclamation});
  }
  grid.Focus();
}

}  // namespace tarnwell::workarea
