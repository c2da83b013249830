#include <QKeyEvent>
#include <QListWidget>
#include <functional>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

class List : public QListWidget {
 public:
  std::function<void(int row)> on_key_pick;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int before = currentRow();
    QListWidget::keyPressEvent(event);
    if (currentRow() != before && on_key_pick) on_key_pick(currentRow());
  }
};

void ShowItems(QListWidget* list, const forms::ListBox& box) {
  QStringList items;
  for (const std::string& item : box.items()) items << FromCore(item);
  QStringList shown;
  for (int i = 0; i < list->count(); ++i) shown << list->item(i)->text();
  if (items != shown) {
    list->clear();
    list->addItems(items);
  }
  if (list->currentRow() != box.selected()) list->setCurrentRow(box.selected());
}

}  // namespace

QWidget* Widget(forms::ListBox& box) {
  auto* list = new List;
  auto* binding = new Binding(list, box, [list, &box] { ShowItems(list, box); });
  list->on_key_pick = binding->Forward([&box](int row) { box.Pick(row); });
  QObject::connect(
      list, &QListWidget::itemClicked, binding,
      binding->Forward([list, &box](QListWidgetItem* item) { box.Pick(list->row(item)); }));
  QObject::connect(
      list, &QListWidget::itemActivated, binding,
      binding->Forward([list, &box](QListWidgetItem* item) { box.Open(list->row(item)); }));
  return list;
}

}  // namespace tarnwell::desktop
