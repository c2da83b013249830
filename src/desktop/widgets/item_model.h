#pragma once

#include <QAbstractListModel>

#include "forms/item_list.h"

namespace tarnwell::desktop {

// The items of a list. Needs the list to stay as long as it is asked.
class ItemModel : public QAbstractListModel {
 public:
  ItemModel(const forms::ItemList& list, QObject* parent)
      : QAbstractListModel(parent), list_(list), count_(Items()) {}

  // The list has told of a change.
  void Follow();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  int Items() const { return static_cast<int>(list_.items().size()); }

  const forms::ItemList& list_;
  int count_;  // told to the views
};

}  // namespace tarnwell::desktop
