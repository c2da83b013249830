#include <QApplication>
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
  std::function<void()> on_click;
  // Enter had a meaning here, so the default button doesn't get it.
  bool took_enter = false;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    took_enter = false;
    QLineEdit::keyPressEvent(event);
    if (took_enter) event->accept();
  }
  // On the release, so that a box which the click brings doesn't leave the button down in here.
  void mouseReleaseEvent(QMouseEvent* event) override {
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && on_click) on_click();
  }
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
  auto* edit = new LineEdit;
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
  edit->on_click = binding->Forward([&field] { field.Click(); });
  return edit;
}

}  // namespace tarnwell::desktop
