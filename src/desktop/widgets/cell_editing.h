#pragma once

#include <QPointer>
#include <QStyledItemDelegate>
#include <functional>

#include "forms/grid.h"

namespace tarnwell::desktop {

// Paints the cells of a grid and edits one with what its column offers or allows. The grid holds
// what is typed, and it decides when an edit ends.
class CellEditing : public QStyledItemDelegate {
 public:
  CellEditing(forms::Grid& grid, QObject* parent) : QStyledItemDelegate(parent), grid_(grid) {}

  std::function<void(const QString& text)> on_type;
  std::function<void()> on_cancel;
  // Enter, or the keys go elsewhere; false where the edit goes on.
  std::function<bool()> on_leave;
  std::function<void(forms::GridStep step)> on_step;

  // nullptr where no cell is being edited.
  QWidget* editor() const { return editor_; }
  // The grid's text in place of the one in the editor, where they differ.
  void ShowTyped(const QString& text);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
  // The grid has had each letter.
  void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakeKey(const QKeyEvent& key);
  void LoseKeys(Qt::FocusReason reason);

  forms::Grid& grid_;
  mutable QPointer<QWidget> editor_;
  mutable bool is_showing_ = false;  // what changes in the editor now nobody types
};

}  // namespace tarnwell::desktop
