#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <algorithm>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

class LineEdit : public QLineEdit {
 public:
  explicit LineEdit(const forms::TextField& field)
      : select_on_entry_(field.select_on_entry()),
        takes_arrows_(static_cast<bool>(field.on_arrow)) {}

  std::function<void()> on_click;
  std::function<void(int)> on_arrow;
  // Enter had a meaning here, so the default button doesn't get it.
  bool took_enter = false;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (takes_arrows_ && event->key() == Qt::Key_Up) return on_arrow(-1);
    if (takes_arrows_ && event->key() == Qt::Key_Down) return on_arrow(1);
    took_enter = false;
    QLineEdit::keyPressEvent(event);
    if (took_enter) event->accept();
  }
  void focusInEvent(QFocusEvent* event) override {
    QLineEdit::focusInEvent(event);
    if (!select_on_entry_) return;
    selectAll();
    entered_by_mouse_ = event->reason() == Qt::MouseFocusReason;
  }
  // On the release, so that a box which the click brings doesn't leave the button down in here.
  void mouseReleaseEvent(QMouseEvent* event) override {
    QLineEdit::mouseReleaseEvent(event);
    // The press has put the cursor down and the selection away.
    if (entered_by_mouse_ && !hasSelectedText()) selectAll();
    entered_by_mouse_ = false;
    if (event->button() == Qt::LeftButton && on_click) on_click();
  }

 private:
  bool select_on_entry_;
  bool takes_arrows_;
  bool entered_by_mouse_ = false;
};

// Shows the control's text and leaves the cursor behind the same characters as before.
void ShowText(QLineEdit* edit, const forms::TextField& field) {
  const QString text = FromCore(field.text());
  if (edit->text() == text) return;
  const auto before_cursor = ToCore(edit->text().left(edit->cursorPosition())).size();
  // What the program sets may be longer than what can be typed.
  edit->setMaxLength(static_cast<int>(std::max(field.max_length(), field.text().size())));
  edit->setText(text);
  edit->setCursorPosition(static_cast<int>(std::min(before_cursor, field.text().size())));
  if (!edit->hasFocus()) edit->setCursorPosition(0);
}

void ShowColor(QLineEdit* edit, const forms::TextField& field) {
  const QPalette usual = QApplication::palette(edit);
  QPalette palette = edit->palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Text,
                     field.color() ? ToQColor(*field.color()) : usual.color(QPalette::Text));
  }
  if (palette != edit->palette()) edit->setPalette(palette);
}

}  // namespace

QWidget* Widget(forms::TextField& field) {
  auto* edit = new LineEdit(field);
  edit->setMaxLength(static_cast<int>(field.max_length()));
  auto* binding = new Binding(edit, field, [edit, &field] {
    ShowText(edit, field);
    ShowColor(edit, field);
    SetMark(edit, "marked", field.marked());
  });
  QObject::connect(edit, &QLineEdit::textEdited, binding,
                   binding->Forward([&field](const QString& text) { field.Type(ToCore(text)); }));
  QObject::connect(edit, &QLineEdit::returnPressed, binding, binding->Forward([edit, &field] {
    edit->took_enter = static_cast<bool>(field.on_enter);
    field.PressEnter();
  }));
  edit->on_arrow = binding->Forward([&field](int step) { field.PressArrow(step); });
  edit->on_click = binding->Forward([&field] { field.Click(); });
  return edit;
}

}  // namespace tarnwell::desktop
