#include <QLayout>
#include <algorithm>
#include <memory>
#include <vector>

#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

// Fills rows from left to right and begins a further one where the next item doesn't fit.
class FlowLayout : public QLayout {
 public:
  explicit FlowLayout(QWidget* owner) : QLayout(owner) { setContentsMargins(0, 0, 0, 0); }

  void addItem(QLayoutItem* item) override { items_.emplace_back(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
  }
  QLayoutItem* takeAt(int index) override {
    if (!itemAt(index)) return nullptr;
    QLayoutItem* item = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return item;
  }

  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return Arrange({0, 0, width, 0}, false); }
  QSize minimumSize() const override {
    QSize least(0, 0);
    for (const auto& item : items_) {
      if (!item->isEmpty()) least = least.expandedTo(item->minimumSize());
    }
    return least;
  }
  // All in one row.
  QSize sizeHint() const override {
    QSize wanted(0, 0);
    for (const auto& item : items_) {
      if (item->isEmpty()) continue;
      const QSize one = item->sizeHint();
      wanted = {wanted.width() + one.width() + (wanted.width() == 0 ? 0 : spacing()),
                std::max(wanted.height(), one.height())};
    }
    return wanted;
  }
  void setGeometry(const QRect& place) override {
    QLayout::setGeometry(place);
    Arrange(place, true);
  }

 private:
  // The height of all rows in `place`'s width.
  int Arrange(const QRect& place, bool move) const {
    std::vector<QLayoutItem*> row;
    int width = 0;
    int top = place.top();
    for (const auto& item : items_) {
      if (item->isEmpty()) continue;
      const int wanted = item->sizeHint().width();
      if (!row.empty() && width + spacing() + wanted > place.width()) {
        top += EndRow(row, place.left(), top, move) + spacing();
        width = 0;
      }
      width += wanted + (row.empty() ? 0 : spacing());
      row.push_back(item.get());
    }
    return top + EndRow(row, place.left(), top, move) - place.top();
  }

  // Empties `row`; its height.
  int EndRow(std::vector<QLayoutItem*>& row, int left, int top, bool move) const {
    int height = 0;
    for (const QLayoutItem* item : row) height = std::max(height, item->sizeHint().height());
    for (QLayoutItem* item : row) {
      const QSize size = item->sizeHint();
      if (move) item->setGeometry({{left, top + (height - size.height()) / 2}, size});
      left += size.width() + spacing();
    }
    row.clear();
    return height;
  }

  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace

QWidget* Flow(std::initializer_list<QWidget*> widgets, int space) {
  auto* flow = new QWidget;
  auto* layout = new FlowLayout(flow);
  layout->setSpacing(space);
  for (QWidget* widget : widgets) layout->addWidget(widget);
  return flow;
}

}  // namespace tarnwell::desktop
