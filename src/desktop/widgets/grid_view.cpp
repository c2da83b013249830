#include "desktop/widgets/grid_view.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "desktop/widgets/look.h"
#include "desktop/widgets/picture_files.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

// Edits a cell with what its column offers or allows.
class CellEditing : public QStyledItemDelegate {
 public:
  CellEditing(forms::Grid& grid, QObject* parent) : QStyledItemDelegate(parent), grid_(grid) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                        const QModelIndex& index) const override {
    const forms::GridColumn& column = grid_.column(index.column());
    auto* line = new QLineEdit;
    line->setMaxLength(static_cast<int>(column.max_length));
    line->setFrame(false);
    if (column.choices.empty()) {
      line->setParent(parent);
      return line;
    }
    auto* box = new QComboBox(parent);
    box->setLineEdit(line);
    box->setEditable(true);
    for (const std::string& choice : column.choices) box->addItem(FromCore(choice));
    return box;
  }

  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override {
    const auto* box = qobject_cast<QComboBox*>(editor);
    if (!box) return QStyledItemDelegate::setModelData(editor, model, index);
    model->setData(index, box->currentText(), Qt::EditRole);
  }

 private:
  forms::Grid& grid_;
};

QColor MeanColor(const QPixmap& picture) {
  return picture.toImage()
      .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
      .pixelColor(0, 0);
}

}  // namespace

GridView::GridView(forms::Grid& grid, const PictureStore& pictures)
    : grid_(grid), pictures_(pictures), model_(grid) {
  setModel(&model_);
  setItemDelegate(new CellEditing(grid, this));
  setTabKeyNavigation(false);
  setSelectionMode(SingleSelection);
  setVerticalScrollMode(ScrollPerPixel);
  setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 2 * kTightSpace);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
    if (on_heading) on_heading(column);
  });
}

void GridView::Show() {
  showing_ = true;
  const int place = verticalScrollBar()->value();
  model_.Refresh();
  ShareWidth();
  verticalScrollBar()->setValue(place);
  ShowCurrent();
  horizontalHeader()->setSectionsClickable(static_cast<bool>(grid_.on_heading));
  if (look_ != grid_.look()) ShowLook();
  showing_ = false;
}

void GridView::ShowCurrent() {
  const auto [row, column] = grid_.current();
  const QModelIndex current = row > 0 ? model_.index(row - 1, column) : QModelIndex();
  if (current != currentIndex()) setCurrentIndex(current);
}

void GridView::ShowLook() {
  look_ = grid_.look();
  QPalette palette = PaletteOn(look_.color ? ToQColor(*look_.color) : QColor(Qt::white));
  palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  const QImage picture =
      look_.wallpaper.empty() ? QImage() : Decoded(pictures_.Read(look_.wallpaper));
  if (!picture.isNull()) {
    const QPixmap wallpaper = QPixmap::fromImage(picture);
    palette = PaletteOn(MeanColor(wallpaper));
    palette.setBrush(QPalette::Base, wallpaper);
  }
  palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
  viewport()->setPalette(palette);
  setPalette(palette);
}

void GridView::ShareWidth() {
  const int width = viewport()->width();
  for (int i = 0; i < grid_.columns(); ++i) {
    const int share = static_cast<int>(width * grid_.column(i).share);
    horizontalHeader()->resizeSection(i, std::max(share, sizeHintForColumn(i) / 2));
  }
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  ShareWidth();
}

// The tiles stay where they are, so the old picture can't be shifted along.
void GridView::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (!look_.wallpaper.empty()) viewport()->update();
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (!showing_ && current.isValid() && on_select) on_select(current.row() + 1, current.column());
}

}  // namespace tarnwell::desktop
