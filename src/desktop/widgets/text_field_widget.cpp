#include <QApplication>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/line_edit.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

void ShowColor(QLineEdit* edit, const forms::TextField& field) {
  QColor letters = QApplication::palette(edit).color(QPalette::Text);
  if (field.color()) letters = ToQColor(*field.color());
  // It was chosen for a white field.
  if (CurrentTones() != ToneSet::kLight) letters = Readable(letters, ColorOf(Tone::kField));
  QPalette palette = edit->palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Text, letters);
  }
  if (palette != edit->palette()) edit->setPalette(palette);
}

}  // namespace

QWidget* Widget(forms::TextField& field) {
  auto* edit = new LineEdit;
  edit->selects_on_entry = field.select_on_entry();
  edit->setMaxLength(static_cast<int>(field.max_length()));
  auto* binding = new Binding(edit, field, [edit, &field] {
    edit->ShowText(field.text(), field.max_length());
    edit->ShowSelection(field.selection());
    ShowColor(edit, field);
    SetMark(edit, "marked", field.marked());
    if (edit->isReadOnly() != field.locked()) {
      edit->setReadOnly(field.locked());
      edit->setFocusPolicy(field.locked() ? Qt::ClickFocus : Qt::StrongFocus);
    }
  });
  QObject::connect(edit, &QLineEdit::textEdited, binding,
                   binding->Forward([edit, &field](const QString& text) {
                     edit->Typing([&] { field.Type(ToCore(text)); });
                   }));
  QObject::connect(edit, &QLineEdit::returnPressed, binding, binding->Forward([edit, &field] {
    edit->took_enter = static_cast<bool>(field.on_enter);
    field.PressEnter();
  }));
  if (field.on_arrow) {
    edit->on_arrow = binding->Forward([&field](int step) { field.PressArrow(step); });
  }
  edit->on_click = binding->Forward([&field] { field.Click(); });
  return edit;
}

}  // namespace tarnwell::desktop
