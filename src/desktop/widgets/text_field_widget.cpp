#include <QApplication>
#include <algorithm>

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

// `show` shows the field's text, `type` gives it what a person typed.
template <typename Show, typename Type>
QWidget* LineOf(forms::TextField& field, Show show, Type type) {
  auto* edit = new LineEdit;
  edit->selects_on_entry = field.select_on_entry();
  edit->setMaxLength(static_cast<int>(field.max_length()));
  auto* binding = new Binding(edit, field, [edit, &field, show] {
    show(*edit);
    edit->ShowSelection(field.selection());
    ShowColor(edit, field);
    SetMark(edit, "marked", field.marked());
    if (edit->isReadOnly() != field.locked()) {
      edit->setReadOnly(field.locked());
      edit->setFocusPolicy(field.locked() ? Qt::ClickFocus : Qt::StrongFocus);
    }
  });
  QObject::connect(
      edit, &QLineEdit::textEdited, binding,
      binding->Forward([edit, type](const QString& text) { edit->Typing([&] { type(text); }); }));
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

}  // namespace

QWidget* Widget(forms::TextField& field) {
  return LineOf(
      field, [&field](LineEdit& edit) { edit.ShowText(field.text(), field.max_length()); },
      [&field](const QString& text) { field.Type(ToCore(text)); });
}

QWidget* Widget(forms::WordsField& field) {
  return LineOf(
      field,
      [&field](LineEdit& edit) {
        const QString words = QString::fromStdString(field.words().bytes());
        if (edit.text() == words) return;
        edit.setMaxLength(
            std::max(static_cast<int>(field.max_length()), static_cast<int>(words.size())));
        edit.setText(words);
      },
      [&field](const QString& text) { field.TypeWords(text::Utf8(text.toStdString())); });
}

}  // namespace tarnwell::desktop
