#include <QKeyEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <algorithm>
#include <functional>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

// The view has one character for each line end, whichever the text has.
std::string OnView(std::string_view text) {
  std::string lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.substr(i, 2) == "\r\n") continue;
    lines += text[i] == '\r' ? '\n' : text[i];
  }
  return lines;
}

class PlainTextEdit : public QPlainTextEdit {
 public:
  PlainTextEdit() { setTabChangesFocus(true); }

  // Unlike Qt's plain text it keeps a blank that doesn't break.
  QString Lines() const {
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
  }

  // What a person put in may have been cut, at its end, where the cursor stands.
  void ShowLines(const std::string& text) {
    const QString wanted = FromCore(OnView(text));
    const auto before = Lines();
    if (before == wanted) return;
    const auto cut = std::max<qsizetype>(before.size() - wanted.size(), 0);
    const int cursor = hasFocus() ? textCursor().position() - static_cast<int>(cut) : 0;
    const QSignalBlocker quiet(this);
    setPlainText(wanted);
    Mark(cursor, cursor);
  }

  void ShowSelection(const forms::TextBox& box) {
    const forms::TextSelection& asked = box.selection();
    if (asked.number() == followed_) return;
    followed_ = asked.number();
    const std::string_view text = box.text();
    const auto place = [&](std::size_t at) {
      return static_cast<int>(OnView(text.substr(0, at)).size());
    };
    Mark(place(asked.begin()), place(asked.end()));
  }

  void SetLocked(bool locked) {
    setTextInteractionFlags(locked ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                   : Qt::TextEditorInteraction);
  }

  std::function<void()> on_enter;  // says in `took_enter` whether Enter had a meaning here
  bool took_enter = false;
  std::function<void()> on_click;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (IsRedo(*event) && !isReadOnly()) return redo();
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (is_enter) on_enter();
    if (!is_enter || !took_enter) QPlainTextEdit::keyPressEvent(event);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    QPlainTextEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) on_click();
  }

 private:
  void Mark(int begin, int end) {
    const int last = document()->characterCount() - 1;
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::clamp(begin, 0, last));
    cursor.setPosition(std::clamp(end, 0, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
  }

  int followed_ = 0;
};

}  // namespace

QWidget* Widget(forms::TextBox& box) {
  auto* edit = new PlainTextEdit;
  auto* binding = new Binding(edit, box, [edit, &box] {
    edit->ShowLines(box.text());
    edit->ShowSelection(box);
    edit->SetLocked(box.locked());
    SetMark(edit, "marked", box.marked());
  });
  QObject::connect(edit, &QPlainTextEdit::textChanged, binding,
                   binding->Forward([edit, &box] { box.Type(ToCore(edit->Lines())); }));
  edit->on_enter = binding->Forward([edit, &box] { edit->took_enter = box.PressEnter(); });
  edit->on_click = binding->Forward([&box] { box.Click(); });
  return edit;
}

}  // namespace tarnwell::desktop
