#include "desktop/widgets/grid_view.h"

#include <QScopedValueRollback>
#include <algorithm>

#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"
#include "desktop/widgets/wallpaper.h"

namespace tarnwell::desktop {
namespace {

forms::GridPlace PlaceOf(const QModelIndex& index) {
  return index.isValid() ? forms::GridPlace{index.row() + 1, index.column()} : forms::GridPlace();
}

}  // namespace

GridView::GridView(forms::Grid& grid, const PictureStore& pictures)
    : grid_(grid),
      pictures_(pictures),
      model_(grid),
      header_(new GridHeader(this)),
      editing_(new CellEditing(grid, this)) {
  setHorizontalHeader(header_);
  setModel(&model_);
  setItemDelegate(editing_);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollMode(ScrollPerPixel);
  setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 2 * kTightSpace);
  header_->setHighlightSections(false);
  header_->setStretchLastSection(true);
  connect(header_, &QHeaderView::sectionClicked, this, [this](int column) {
    if (on_heading) on_heading(column);
  });
  connect(header_, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
    // The last one takes what is left.
    if (!is_showing_ && column + 1 < grid_.columns()) dragged_[grid_.columns()][column] = width;
  });
  editing_->on_type = [this](const QString& text) { on_type(text); };
  editing_->on_leave = [this] { return EndEdit(); };
  editing_->on_step = [this](forms::GridStep step) { Step(step); };
  editing_->on_cancel = [this] {
    on_cancel_edit();
    CloseEditor();
  };
  header_->SetHeld(grid.held_columns());
  ShowLook();
}

// The editor goes later than what it tells, and loses the keys on its way.
GridView::~GridView() { editing_->on_leave = nullptr; }

void GridView::Show() {
  const forms::GridChange change = grid_.change();
  const QScopedValueRollback showing(is_showing_, true);
  model_.Follow(change);
  if (change.columns) {
    header_->SetHeld(grid_.held_columns());
    ShareWidth();
  }
  ShowMarks();
  ShowCurrent();
  ShowEdit(change.cursor);
  if (look_ != grid_.look()) ShowLook();
}

void GridView::ShowCurrent() {
  const auto [row, column] = grid_.current();
  const QModelIndex current = row > 0 ? model_.index(row - 1, column) : QModelIndex();
  if (current != currentIndex()) {
    if (grid_.selection() == forms::GridSelection::kRows) {
      selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    } else {
      setCurrentIndex(current);
    }
  }
  if (grid_.selection() == forms::GridSelection::kRows) ShowSelectedRows();
}

std::vector<int> GridView::MarkedRows() const {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row + 1);
  }
  std::ranges::sort(rows);
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

void GridView::ShowSelectedRows() {
  const std::vector<int> rows = grid_.selected_rows();
  if (rows == MarkedRows()) return;
  QItemSelection selection;
  for (std::size_t i = 0; i < rows.size();) {
    const std::size_t first = i;
    while (++i < rows.size() && rows[i] == rows[i - 1] + 1) continue;
    selection.append({model_.index(rows[first] - 1, 0), model_.index(rows[i - 1] - 1, 0)});
  }
  selectionModel()->select(selection,
                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void GridView::ShowMarks() {
  const forms::GridSelection kind = grid_.selection();
  const bool is_cell = kind == forms::GridSelection::kCell;
  setSelectionBehavior(is_cell ? SelectItems : SelectRows);
  setSelectionMode(kind == forms::GridSelection::kRows ? ExtendedSelection : SingleSelection);
  header_->setSectionsClickable(static_cast<bool>(grid_.on_heading));
  const auto& mark = grid_.sort_mark();
  if (mark && !header_->isSortIndicatorShown()) {
    header_->setSortIndicatorShown(true);
    ShareWidth();
  }
  header_->setSortIndicator(mark ? mark->column : -1,
                            mark && mark->descending ? Qt::DescendingOrder : Qt::AscendingOrder);
  if (highlight_ == grid_.highlight()) return;
  for (const int row : {highlight_, grid_.highlight()}) {
    viewport()->update(0, rowViewportPosition(row - 1), viewport()->width(), rowHeight(row - 1));
  }
  highlight_ = grid_.highlight();
}

void GridView::ShowLook() {
  look_ = grid_.look();
  QPalette palette = PaletteOn(look_.color ? ToQColor(*look_.color) : ColorOf(Tone::kField));
  palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  if (const auto wallpaper = ReadWallpaper(pictures_, look_.wallpaper)) {
    palette = wallpaper->palette;
    palette.setBrush(QPalette::Base, wallpaper->picture);
  }
  palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
  viewport()->setPalette(palette);
  setPalette(palette);
}

void GridView::ShareWidth() {
  if (model_.HasGone()) return;
  const QScopedValueRollback showing(is_showing_, true);
  const int width = viewport()->width();
  const std::map<int, int>& widths = dragged_[grid_.columns()];
  for (int i = 0; i < header_->count(); ++i) {
    const auto dragged = widths.find(i);
    const int share = static_cast<int>(width * grid_.column(i).share);
    header_->resizeSection(i, dragged != widths.end()
                                  ? dragged->second
                                  : std::max(share, header_->sectionSizeHint(i)));
  }
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  ShareWidth();
}

void GridView::Report() {
  if (is_showing_ || is_acting_ || model_.HasGone()) return;
  const forms::GridPlace place = PlaceOf(currentIndex());
  if (grid_.selection() == forms::GridSelection::kRows) {
    const std::vector<int> rows = MarkedRows();
    // Getting the keys, Qt goes to the first cell, which may be a fixed one.
    const bool has_gone =
        place != grid_.current() && model_.flags(currentIndex()).testFlag(Qt::ItemIsSelectable);
    if (on_rows && (has_gone || rows != grid_.selected_rows())) on_rows(rows, place);
  } else if (place.row > 0 && place != grid_.current() && on_select) {
    on_select(place.row, place.column);
  }
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  Report();
}

void GridView::selectionChanged(const QItemSelection& on, const QItemSelection& off) {
  QTableView::selectionChanged(on, off);
  if (header_->HeldWidth() > 0)
    viewport()->update(0, 0, header_->HeldWidth(), viewport()->height());
  Report();
}

}  // namespace tarnwell::desktop
