#include "desktop/widgets/line_edit.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>
#include <cstdlib>

#include "desktop/widgets/text.h"

namespace tarnwell::desktop {

void LineEdit::ShowText(const std::string& shown, std::size_t most_typed) {
  const QString wanted = FromCore(shown);
  if (text() == wanted) return;
  const auto before_cursor = ToCore(text().left(cursorPosition())).size();
  // What the program sets may be longer than what can be typed.
  // A length that is told anew ends what can be taken back.
  const auto most = static_cast<int>(std::max(most_typed, shown.size()));
  if (most != maxLength()) setMaxLength(most);
  if (is_typing_) {
    const QSignalBlocker quiet(this);
    const bool is_completed = wanted.startsWith(text());
    const qsizetype typed = is_completed ? text().size() : 0;
    is_completed ? end(false) : selectAll();
    insert(wanted.mid(typed));
  } else {
    setText(wanted);
  }
  setCursorPosition(hasFocus() ? static_cast<int>(std::min(before_cursor, shown.size())) : 0);
}

void LineEdit::ShowSelection(const forms::TextSelection& asked) {
  if (asked.number() == followed_) return;
  followed_ = asked.number();
  asked_ = Marked{static_cast<int>(asked.begin()), static_cast<int>(asked.end())};
  MarkOnEntry();
}

void LineEdit::MarkOnEntry() {
  if (!asked_) return selectAll();
  setSelection(asked_->begin, asked_->end - asked_->begin);
  if (asked_->begin == asked_->end) setCursorPosition(asked_->end);
}

void LineEdit::keyPressEvent(QKeyEvent* event) {
  if (on_arrow && event->key() == Qt::Key_Up) return on_arrow(-1);
  if (on_arrow && event->key() == Qt::Key_Down) return on_arrow(1);
  if (IsRedo(*event) && !isReadOnly()) return redo();
  took_enter = false;
  QLineEdit::keyPressEvent(event);
  if (took_enter) event->accept();
}

// Qt marks all when a line is entered with Tab, whatever the form has asked for just before.
void LineEdit::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (!selects_on_entry && !asked_) return;
  MarkOnEntry();
  entered_by_mouse_ = event->reason() == Qt::MouseFocusReason;
}

void LineEdit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  asked_.reset();
}

// On the release, so that a box which the click brings doesn't leave the button down in here.
void LineEdit::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  // The press has put the cursor down and the selection away.
  if (entered_by_mouse_ && !hasSelectedText()) MarkOnEntry();
  entered_by_mouse_ = false;
  if (event->button() == Qt::LeftButton && on_click) on_click();
}

}  // namespace tarnwell::desktop
