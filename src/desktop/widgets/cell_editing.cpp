#include "desktop/widgets/cell_editing.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTimer>

#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

const QColor kNoteColor(0xC0, 0x60, 0x00);

QLineEdit* LineOf(QWidget* editor) {
  auto* box = qobject_cast<QComboBox*>(editor);
  return box ? box->lineEdit() : qobject_cast<QLineEdit*>(editor);
}

QComboBox* MakeBox(const std::vector<std::string>& choices, QLineEdit* line, QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setEditable(true);
  box->setLineEdit(line);
  // What a person types stays what they typed, though it is the beginning of a choice.
  box->setCompleter(nullptr);
  box->setInsertPolicy(QComboBox::NoInsert);
  for (const std::string& choice : choices) box->addItem(FromCore(choice));
  return box;
}

// Swallows the next press of the mouse, which the caller knows to be on its way.
class PressSwallower : public QObject {
 public:
  PressSwallower() : QObject(qApp) {
    qApp->installEventFilter(this);
    QTimer::singleShot(0, this, [this] { deleteLater(); });
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return watched->isWidgetType() && (event->type() == QEvent::MouseButtonPress ||
                                       event->type() == QEvent::MouseButtonDblClick);
  }
};

}  // namespace

QWidget* CellEditing::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                   const QModelIndex& index) const {
  const forms::GridColumn& column = grid_.column(index.column());
  auto* line = new QLineEdit;
  line->setMaxLength(static_cast<int>(column.max_length));
  line->setFrame(false);
  line->setAlignment(static_cast<Qt::Alignment>(index.data(Qt::TextAlignmentRole).toInt()));
  if (column.choices.empty()) {
    line->setParent(parent);
    editor_ = line;
  } else {
    editor_ = MakeBox(column.choices, line, parent);
  }
  connect(line, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (!is_showing_ && on_type) on_type(text);
  });
  return editor_;
}

void CellEditing::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QScopedValueRollback showing(is_showing_, true);
  QLineEdit* line = LineOf(editor);
  const QString text =
      grid_.typed() ? FromCore(*grid_.typed()) : index.data(Qt::EditRole).toString();
  // The arrows start at the choice that stands there; where none does, before the first.
  if (auto* box = qobject_cast<QComboBox*>(editor)) box->setCurrentIndex(box->findText(text));
  line->setText(text);
  line->selectAll();
}

void CellEditing::destroyEditor(QWidget* editor, const QModelIndex& index) const {
  if (editor == editor_) editor_ = nullptr;
  QStyledItemDelegate::destroyEditor(editor, index);
}

void CellEditing::ShowTyped(const QString& text) {
  QLineEdit* line = LineOf(editor_);
  if (!line || line->text() == text) return;
  const QScopedValueRollback showing(is_showing_, true);
  const int cursor = line->cursorPosition();
  line->setText(text);
  line->setCursorPosition(cursor);
}

void CellEditing::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (index.data(Qt::ForegroundRole).isValid()) {
    const QColor ground = option->widget->palette().color(QPalette::Window);
    const QColor letters = Readable(option->palette.color(QPalette::Text), ground);
    option->palette.setColor(QPalette::Text, letters);
  }
  if (index.row() + 1 == grid_.highlight()) option->state |= QStyle::State_Selected;
}

// A cell with a note has a coloured corner.
void CellEditing::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  if (grid_.style(index.row() + 1, index.column()).note.empty()) return;
  const QPoint corner = option.rect.topRight();
  const int side = option.rect.height() / 3;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(kNoteColor);
  painter->drawPolygon(QPolygon({corner, corner - QPoint(side, 0), corner + QPoint(0, side)}));
  painter->restore();
}

bool CellEditing::TakeKey(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Escape:
      on_cancel();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      on_leave();
      return true;
    case Qt::Key_Tab:
      on_step(forms::GridStep::kNext);
      return true;
    case Qt::Key_Backtab:
      on_step(forms::GridStep::kPrevious);
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
      // In a list they choose.
      if (qobject_cast<QComboBox*>(editor_)) return false;
      on_step(key.key() == Qt::Key_Up ? forms::GridStep::kUp : forms::GridStep::kDown);
      return true;
    default:
      return false;
  }
}

// Another window, the menu bar and an open list only borrow the keys.
void CellEditing::LoseKeys(Qt::FocusReason reason) {
  if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
      reason == Qt::MenuBarFocusReason || !on_leave) {
    return;
  }
  // The grid takes the click itself: it knows which cell is meant.
  if (reason == Qt::MouseFocusReason && QApplication::focusWidget() == parent()) return;
  if (on_leave() || !editor_) return;
  editor_->setFocus(Qt::OtherFocusReason);
  // The click that was to lead elsewhere must not do there what the person was told first.
  if (reason == Qt::MouseFocusReason) new PressSwallower;
}

bool CellEditing::eventFilter(QObject* watched, QEvent* event) {
  if (watched != editor_) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) event->accept();
      return false;
    case QEvent::KeyPress:
      return TakeKey(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusOut:
      LoseKeys(static_cast<QFocusEvent*>(event)->reason());
      return false;
    default:
      return false;
  }
}

}  // namespace tarnwell::desktop
