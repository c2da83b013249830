#include "desktop/widgets/item_model.h"

#include "desktop/widgets/text.h"

namespace tarnwell::desktop {

void ItemModel::Follow() {
  const int place = list_.changed_place();
  switch (list_.change()) {
    case forms::ListChange::kNone:
    case forms::ListChange::kSelected:
      return;
    case forms::ListChange::kInserted:
      if (Items() != count_ + 1) break;
      beginInsertRows({}, place, place);
      ++count_;
      return endInsertRows();
    case forms::ListChange::kRemoved:
      if (Items() != count_ - 1) break;
      beginRemoveRows({}, place, place);
      --count_;
      return endRemoveRows();
    case forms::ListChange::kItems:
      break;
  }
  // All of it, also where one change came on top of another.
  beginResetModel();
  count_ = Items();
  endResetModel();
}

int ItemModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count_; }

QVariant ItemModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  if (index.row() >= Items()) return {};
  return FromCore(list_.items()[static_cast<std::size_t>(index.row())]);
}

}  // namespace tarnwell::desktop
