#include <QKeyEvent>
#include <QListView>
#include <QStyledItemDelegate>
#include <algorithm>
#include <functional>
#include <string_view>
#include <vector>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/item_model.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr std::ptrdiff_t kMostTextsMeasured = 64;  // texts, the longest ones

// All rows are of one height and as wide as the widest text, so that a long list is shown without
// measuring each.
class EvenRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void Forget() { widest_ = 0; }
  void Measure(std::string_view text, const QFontMetrics& metrics) {
    widest_ = std::max(widest_, metrics.horizontalAdvance(FromCore(text)));
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    const int text = option.fontMetrics.horizontalAdvance(index.data().toString());
    return {size.width() + std::max(widest_ - text, 0), size.height()};
  }

 private:
  int widest_ = 0;
};

class List : public QListView {
 public:
  explicit List(forms::ListBox& box) : box_(box), model_(box, this), rows_(new EvenRows(this)) {
    setModel(&model_);
    setItemDelegate(rows_);
    setUniformItemSizes(true);
    MeasureAll();
  }

  void Show() {
    switch (box_.change()) {
      case forms::ListChange::kItems:
        MeasureAll();
        break;
      case forms::ListChange::kInserted:
        MeasureNew(box_.changed_place());
        break;
      default:
        break;
    }
    model_.Follow();
    const QModelIndex selected = model_.index(box_.selected());
    if (selected != currentIndex()) setCurrentIndex(selected);
  }
  std::function<void(int row)> on_key_pick;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const QModelIndex before = currentIndex();
    QListView::keyPressEvent(event);
    if (currentIndex() != before && on_key_pick) on_key_pick(currentIndex().row());
  }
  void changeEvent(QEvent* event) override {
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange) MeasureAll();
  }

 private:
  // Who was told before may have taken it out again.
  void MeasureNew(int place) {
    if (place >= std::ssize(box_.items())) return;
    rows_->Measure(box_.items()[static_cast<std::size_t>(place)], fontMetrics());
  }
  void MeasureAll() {
    std::vector<std::string_view> texts(box_.items().begin(), box_.items().end());
    const auto measured = std::min(std::ssize(texts), kMostTextsMeasured);
    std::ranges::partial_sort(texts, texts.begin() + measured, std::greater(),
                              &std::string_view::size);
    rows_->Forget();
    for (auto text = texts.begin(); text != texts.begin() + measured; ++text) {
      rows_->Measure(*text, fontMetrics());
    }
  }

  forms::ListBox& box_;
  ItemModel model_;
  EvenRows* rows_;
};

}  // namespace

QWidget* Widget(forms::ListBox& box) {
  auto* list = new List(box);
  auto* binding = new Binding(list, box, [list] { list->Show(); });
  list->on_key_pick = binding->Forward([&box](int row) { box.Pick(row); });
  QObject::connect(list, &QListView::clicked, binding,
                   binding->Forward([&box](const QModelIndex& index) { box.Pick(index.row()); }));
  QObject::connect(list, &QListView::activated, binding,
                   binding->Forward([&box](const QModelIndex& index) { box.Open(index.row()); }));
  return list;
}

}  // namespace tarnwell::desktop
