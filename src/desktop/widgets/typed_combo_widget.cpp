#include <QKeyEvent>
#include <QWheelEvent>
#include <functional>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/drop_down.h"
#include "desktop/widgets/line_edit.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

// The line and the list are Qt's; what a key, a pick or leaving means is the control's.
class TypedDropDown : public QComboBox {
 public:
  TypedDropDown() {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(kMostShown);
    setSizeAdjustPolicy(AdjustToContents);
    setInsertPolicy(NoInsert);
    setLineEdit(line_);
    setCompleter(nullptr);
    line_->selects_on_entry = true;
    // Qt would pick an item that only looks like the text when the line is left.
    disconnect(line_, SIGNAL(editingFinished()), this, nullptr);
  }

  LineEdit& line() { return *line_; }

  void ShowList(const forms::TypedCombo& combo) {
    const QString text = line_->text();
    const int cursor = line_->cursorPosition();
    const int begin = line_->selectionStart();
    const int length = line_->selectionLength();
    FitWidth(this, combo.items().size());
    selected_ = combo.selected();
    // A new item in the line would end what a person can take back; the list opens on it all the
    // same.
    if (!ShowItems(this, combo.items())) return;
    // Qt puts the item into the line.
    setCurrentIndex(selected_);
    line_->setText(text);
    line_->setCursorPosition(cursor);
    if (begin >= 0) line_->setSelection(begin, length);
  }

  void showPopup() override {
    may_open = true;
    if (on_open) on_open();
    if (!may_open) return;
    if (currentIndex() != selected_) setCurrentIndex(selected_);
    QComboBox::showPopup();
  }

  std::function<void()> on_open;  // says in `may_open` whether the list comes
  bool may_open = true;
  std::function<void()> on_enter;
  std::function<void()> on_escape;  // says in `took_escape` whether Esc had a meaning here
  bool took_escape = false;
  std::function<void(int step)> on_arrow;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

  void keyPressEvent(QKeyEvent* event) override {
    const bool is_plain = !(event->modifiers() & ~Qt::KeypadModifier);
    switch (event->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
        return on_enter();
      case Qt::Key_Escape:
        on_escape();
        return event->setAccepted(took_escape);
      case Qt::Key_PageUp:
      case Qt::Key_PageDown:
        return event->ignore();
      case Qt::Key_Up:
      case Qt::Key_Down:
        if (is_plain) return on_arrow(event->key() == Qt::Key_Up ? -1 : 1);
        break;
      default:
        break;
    }
    QComboBox::keyPressEvent(event);
  }

 private:
  LineEdit* line_ = new LineEdit;
  int selected_ = -1;  // the entry that stands in the line
};

}  // namespace

QWidget* Widget(forms::TypedCombo& combo) {
  auto* box = new TypedDropDown;
  box->line().setMaxLength(static_cast<int>(combo.max_length()));
  auto* binding = new Binding(box, combo, [box, &combo] {
    // The line is one of its own to a screen reader.
    box->line().setAccessibleName(box->accessibleName());
    box->line().setAccessibleDescription(box->accessibleDescription());
    box->ShowList(combo);
    box->line().ShowText(combo.text(), combo.max_length());
    box->line().ShowSelection(combo.selection());
  });
  QObject::connect(&box->line(), &QLineEdit::textEdited, binding,
                   binding->Forward([box, &combo](const QString& text) {
                     box->line().Typing([&] { combo.Type(ToCore(text)); });
                   }));
  QObject::connect(box, &QComboBox::activated, binding,
                   binding->Forward([&combo](int index) { combo.Pick(index); }));
  box->on_open = binding->Forward([box, &combo] { box->may_open = combo.Open(); });
  box->on_enter = binding->Forward([&combo] { combo.PressEnter(); });
  box->on_escape = binding->Forward([box, &combo] { box->took_escape = combo.PressEscape(); });
  box->on_arrow = binding->Forward([&combo](int step) { combo.PressArrow(step); });
  return box;
}

}  // namespace tarnwell::desktop
