// What a person does in a grid.

#include <utility>

#include "forms/grid.h"
#include "forms/text_field.h"

namespace tarnwell::forms {
namespace {

// Holds a value as long as it lives.
template <typename Value>
class Scoped {
 public:
  Scoped(Value& place, Value value) : place_(place), before_(std::exchange(place, value)) {}
  ~Scoped() { place_ = before_; }
  Scoped(const Scoped&) = delete;
  Scoped& operator=(const Scoped&) = delete;

 private:
  Value& place_;
  Value before_;
};

}  // namespace

bool Grid::CanSelect(int row, int column) const {
  return HasCell(row, column) && column >= fixed_columns_;
}

bool Grid::CanEdit(int row, int column) const {
  return Reachable() && CanSelect(row, column) && this->column(column).editable;
}

void Grid::SelectCell(int row, int column) {
  if (!Reachable() || !CanSelect(row, column)) return;
  const GridPlace place{row, column};
  if (place == current_ && typed_) return;
  const int placings = placings_;
  if (!EndEdit() || placings_ != placings || !CanSelect(row, column)) return;
  Place(place);
  if (selection_ == GridSelection::kRows) SetSelectedRows({row});
  Run(on_select);
}

void Grid::SelectRows(std::vector<int> rows, GridPlace cursor) {
  if (!Reachable() || selection_ != GridSelection::kRows) return;
  const int placings = placings_;
  if (!EndEdit() || placings_ != placings) return;
  if (CanSelect(cursor.row, cursor.column)) Place(cursor);
  SetSelectedRows(std::move(rows));
  Run(on_select);
}

void Grid::Step(GridStep step) {
  auto [row, column] = current_;
  if (row == 0) return SelectCell(1, fixed_columns_);
  switch (step) {
    case GridStep::kUp:
      --row;
      break;
    case GridStep::kDown:
      ++row;
      break;
    case GridStep::kNext:
      if (++column == columns()) {
        column = fixed_columns_;
        ++row;
      }
      break;
    case GridStep::kPrevious:
      if (--column < fixed_columns_) {
        column = columns() - 1;
        --row;
      }
      break;
  }
  if (CanSelect(row, column)) {
    SelectCell(row, column);
  } else {
    EndEdit();
  }
}

void Grid::ClickHeading(int column) {
  if (!Reachable() || column < fixed_columns_ || column >= columns() || !on_heading) return;
  if (EndEdit()) on_heading(column);
}

void Grid::TypeInCell(std::string_view text) {
  if (!CanEdit(current_.row, current_.column)) return;
  typed_ = TypedText(text, column(current_.column).max_length);
  Tell({.cursor = true});
}

bool Grid::EndEdit() {
  if (!typed_) return true;
  if (is_asking_) return false;
  const GridPlace place = current_;
  std::string text = *typed_;
  const bool is_new = text != this->text(place.row, place.column);
  if (is_new && on_validate) {
    bool is_good = false;
    {
      const Scoped asking(is_asking_, true);
      is_good = on_validate(place.row, place.column, text);
    }
    // The form may have gone on to something else.
    if (!typed_ || current_ != place) return is_good;
    if (!is_good) {
      TypeInCell(text);
      return false;
    }
  }
  typed_.reset();
  Tell({.cursor = true});
  if (is_new) TakeEdit(place, text);
  return true;
}

void Grid::CancelEdit() {
  if (!typed_ || is_asking_) return;
  typed_.reset();
  Tell({.cursor = true});
}

bool Grid::EditCell(int row, int column, std::string_view text) {
  if (!CanEdit(row, column)) return false;
  if (current_ != GridPlace{row, column}) SelectCell(row, column);
  // Going there may have led elsewhere.
  if (current_ != GridPlace{row, column}) return false;
  TypeInCell(text);
  return EndEdit();
}

void Grid::TakeEdit(GridPlace place, std::string_view text) {
  const Scoped taking(taking_, Taking::kEdit);
  history_.Add({place, this->text(place.row, place.column), std::string(text)});
  SetText(place.row, place.column, text);
  if (on_edit) on_edit(place.row, place.column);
}

bool Grid::GoBackTo(GridPlace place) {
  if (!CanEdit(place.row, place.column)) return false;
  if (current_ != place) SelectCell(place.row, place.column);
  return current_ == place;
}

void Grid::Restore(GridPlace place, const std::string& text) {
  const Scoped taking(taking_, Taking::kRestore);
  SetText(place.row, place.column, text);
  if (on_edit) on_edit(place.row, place.column);
}

void Grid::Undo() {
  if (!EndEdit() || !history_.Back()) return;
  const GridPlace place = history_.Back()->place;
  // Going there may have changed what there is to undo.
  if (!GoBackTo(place) || !history_.Back() || history_.Back()->place != place) return;
  const std::string text = history_.Back()->before;
  history_.GoBack();
  Restore(place, text);
}

void Grid::Redo() {
  if (!EndEdit() || !history_.Forward()) return;
  const GridPlace place = history_.Forward()->place;
  if (!GoBackTo(place) || !history_.Forward() || history_.Forward()->place != place) return;
  const std::string text = history_.Forward()->after;
  history_.GoForward();
  Restore(place, text);
}

}  // namespace tarnwell::forms
