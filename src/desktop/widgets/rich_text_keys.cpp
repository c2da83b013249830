// Keys, input methods, the clipboard and drops as gestures of a RichTextBox.

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextTable>
#include <algorithm>
#include <limits>

#include "desktop/widgets/menus.h"
#include "desktop/widgets/rich_text_mime.h"
#include "desktop/widgets/rich_text_view.h"
#include "desktop/widgets/text.h"
#include "forms/form.h"
#include "richtext/selection.h"

namespace tarnwell::desktop {
namespace {

constexpr const char* kLineBreak = "\u2028";
constexpr const char* kPageBreak = "\f";

// More than a key goes.
constexpr int kBlocksOfPage = 150;
constexpr int kBlocksOfStep = 3;
constexpr std::size_t kMoreWorkOfKey = 100;                             // of the renderer
constexpr richtext::Position kEnd{std::numeric_limits<int>::max(), 0};  // or before it

bool MovesCursor(const QKeyEvent& event) {
  constexpr QKeySequence::StandardKey kKeys[] = {QKeySequence::MoveToNextChar,
                                                 QKeySequence::MoveToPreviousChar,
                                                 QKeySequence::MoveToNextWord,
                                                 QKeySequence::MoveToPreviousWord,
                                                 QKeySequence::MoveToNextLine,
                                                 QKeySequence::MoveToPreviousLine,
                                                 QKeySequence::MoveToNextPage,
                                                 QKeySequence::MoveToPreviousPage,
                                                 QKeySequence::MoveToStartOfLine,
                                                 QKeySequence::MoveToEndOfLine,
                                                 QKeySequence::MoveToStartOfBlock,
                                                 QKeySequence::MoveToEndOfBlock,
                                                 QKeySequence::MoveToStartOfDocument,
                                                 QKeySequence::MoveToEndOfDocument,
                                                 QKeySequence::SelectNextChar,
                                                 QKeySequence::SelectPreviousChar,
                                                 QKeySequence::SelectNextWord,
                                                 QKeySequence::SelectPreviousWord,
                                                 QKeySequence::SelectNextLine,
                                                 QKeySequence::SelectPreviousLine,
                                                 QKeySequence::SelectNextPage,
                                                 QKeySequence::SelectPreviousPage,
                                                 QKeySequence::SelectStartOfLine,
                                                 QKeySequence::SelectEndOfLine,
                                                 QKeySequence::SelectStartOfBlock,
                                                 QKeySequence::SelectEndOfBlock,
                                                 QKeySequence::SelectStartOfDocument,
                                                 QKeySequence::SelectEndOfDocument,
                                                 QKeySequence::SelectAll};
  return std::ranges::any_of(
      kKeys, [&event](auto key) { return const_cast<QKeyEvent&>(event).matches(key); });
}

bool Matches(const QKeyEvent& event, QKeySequence::StandardKey key) {
  return const_cast<QKeyEvent&>(event).matches(key);
}

// Both keys, whichever of them this system has.
bool IsRedo(const std::string& key) { return key == "Ctrl+Y" || key == "Ctrl+Shift+Z"; }

// Ctrl and Alt together are how some keyboards reach their third letters.
bool IsText(const QKeyEvent& event) {
  const QString text = event.text();
  const auto modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  if (text.isEmpty() || modifiers == Qt::ControlModifier || modifiers == Qt::AltModifier) {
    return false;
  }
  return text.at(0).isPrint() || text.at(0).isSurrogate() ||
         text.at(0).category() == QChar::Other_Format;
}

}  // namespace

void RichTextView::keyPressEvent(QKeyEvent* event) {
  if (!box_is_there_.Connected()) return;
  // What the screen has a key for is done by its menu, where Qt would move or erase.
  if (box_.form().menus().FindKey(KeyName(*event))) return event->ignore();
  // Nothing waits for the rest of a long document that doesn't come near it.
  const bool moves = MovesCursor(*event);
  const bool goes_far = event->key() == Qt::Key_PageDown || event->key() == Qt::Key_PageUp;
  const int needed = textCursor().blockNumber() + (goes_far ? kBlocksOfPage : kBlocksOfStep);
  while (!renderer_.is_done() && document()->blockCount() < needed) ShowMore(kMoreWorkOfKey);
  if (PressCommandKey(*event) || PressTab(*event) || PressEraseKey(*event) ||
      PressTextKey(*event)) {
    return event->accept();
  }
  if (!moves) return event->ignore();
  StepOverBreak(*event);
  QTextEdit::keyPressEvent(event);
}

// Both sides of a place to break at, or of a sign, are the same place in the text: one step goes
// over it.
void RichTextView::StepOverBreak(const QKeyEvent& event) {
  const bool back = Matches(event, QKeySequence::MoveToPreviousChar) ||
                    Matches(event, QKeySequence::SelectPreviousChar);
  const bool selects = Matches(event, QKeySequence::SelectPreviousChar) ||
                       Matches(event, QKeySequence::SelectNextChar);
  if (!back && !selects && !Matches(event, QKeySequence::MoveToNextChar)) return;
  QTextCursor cursor = textCursor();
  const int start = cursor.position();
  int place = start;
  const auto is_at_edge = [&] {
    return place == cursor.block().position() + (back ? 0 : cursor.block().length() - 1);
  };
  const int step = back ? -1 : 1;
  while (!is_at_edge() && PositionOf(place + step) == PositionOf(start)) place += step;
  if (place == start) return;
  const QSignalBlocker quiet(this);
  cursor.setPosition(place, selects ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
  setTextCursor(cursor);
}

bool RichTextView::PressCommandKey(const QKeyEvent& event) {
  if (Matches(event, QKeySequence::Undo)) return box_.Undo(), true;
  if (Matches(event, QKeySequence::Redo) || IsRedo(KeyName(event))) return box_.Redo(), true;
  if (Matches(event, QKeySequence::Copy)) return CopySelection(), true;
  if (Matches(event, QKeySequence::Cut)) return CutSelection(), true;
  if (Matches(event, QKeySequence::Paste)) return paste(), true;
  if (Matches(event, QKeySequence::SelectAll)) return SelectToEnd({}), true;
  if (!renderer_.is_done()) {
    // Of the document, not of what Qt has of it.
    if (Matches(event, QKeySequence::SelectEndOfDocument)) {
      return SelectToEnd(box_.selection().from), true;
    }
    if (Matches(event, QKeySequence::MoveToEndOfDocument)) return SelectToEnd(kEnd), true;
  }
  if (Matches(event, QKeySequence::Bold)) return box_.ToggleBold(), true;
  if (Matches(event, QKeySequence::Italic)) return box_.ToggleItalic(), true;
  if (Matches(event, QKeySequence::Underline)) return box_.ToggleUnderline(), true;
  return false;
}

bool RichTextView::PressEraseKey(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Backspace && !(event.modifiers() & ~Qt::ShiftModifier)) {
    return Backspace(), true;
  }
  const struct {
    QKeySequence::StandardKey key;
    QTextCursor::MoveOperation operation;
  } kKeys[] = {{QKeySequence::Delete, QTextCursor::NextCharacter},
               {QKeySequence::DeleteStartOfWord, QTextCursor::PreviousWord},
               {QKeySequence::DeleteEndOfWord, QTextCursor::NextWord},
               {QKeySequence::DeleteEndOfLine, QTextCursor::EndOfBlock}};
  for (const auto& [key, operation] : kKeys) {
    if (Matches(event, key)) return EraseTo(operation), true;
  }
  return false;
}

bool RichTextView::PressTextKey(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::ControlModifier) return box_.Type(kPageBreak), true;
    if (modifiers == Qt::ShiftModifier) return box_.Type(kLineBreak), true;
    if (modifiers == Qt::NoModifier) return box_.Type("\n"), true;
    return false;
  }
  if (!IsText(event)) return false;
  return TypeText(event.text()), true;
}

// Tab belongs to the text; with Ctrl it leaves the box, as it does in a box that is locked.
bool RichTextView::PressTab(const QKeyEvent& event) {
  if (event.key() != Qt::Key_Tab && event.key() != Qt::Key_Backtab) return false;
  const bool forward = event.key() == Qt::Key_Tab && !(event.modifiers() & Qt::ShiftModifier);
  if (box_.locked() || (event.modifiers() & Qt::ControlModifier)) {
    return QAbstractScrollArea::focusNextPrevChild(forward), true;
  }
  if (textCursor().currentTable() != nullptr) return box_.TabToCell(forward), true;
  if (forward) return box_.Type("\t"), true;
  return QAbstractScrollArea::focusNextPrevChild(false), true;
}

void RichTextView::SelectToEnd(richtext::Position from) {
  const int last = box_.paragraph_count() - 1;
  const richtext::Position end{last, static_cast<int>(box_.ParagraphText(last).size())};
  box_.Select({std::min(from, end), end});
}

void RichTextView::TypeText(const QString& text) { box_.Type(text.toStdString()); }

void RichTextView::Backspace() {
  QTextCursor cursor = textCursor();
  cursor.clearSelection();
  const richtext::Position from = PositionOf(cursor.position());
  while (cursor.movePosition(QTextCursor::PreviousCharacter) &&
         PositionOf(cursor.position()) == from) {
  }
  box_.Backspace(PositionOf(cursor.position()));
}

void RichTextView::EraseTo(QTextCursor::MoveOperation operation) {
  QTextCursor cursor = textCursor();
  if (!cursor.hasSelection()) {
    cursor.movePosition(operation, QTextCursor::KeepAnchor);
    // Nothing lies between both sides of a place to break at, or of a sign.
    while (RangeOf(cursor).empty() && cursor.movePosition(operation, QTextCursor::KeepAnchor)) {
    }
  }
  box_.Erase(RangeOf(cursor));
}

void RichTextView::inputMethodEvent(QInputMethodEvent* event) {
  if (!box_is_there_.Connected()) return;
  if (event->replacementLength() > 0) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(cursor.position() + event->replacementStart());
    cursor.setPosition(cursor.position() + event->replacementLength(), QTextCursor::KeepAnchor);
    box_.Erase(RangeOf(cursor));
  }
  if (!event->preeditString().isEmpty() && event->commitString().isEmpty()) {
    // Qt takes the selection out when a composition begins.
    box_.Erase(box_.selection());
  }
  const QScopedValueRollback<bool> showing(is_showing_, true);
  const QString commit = event->commitString();
  // What is being composed is Qt's to show; it isn't part of its text.
  QInputMethodEvent composition(commit.isEmpty() ? event->preeditString() : QString(),
                                event->attributes());
  QTextEdit::inputMethodEvent(&composition);
  event->accept();
  if (commit.isEmpty()) return;
  TypeText(commit);
  if (event->preeditString().isEmpty()) return;
  QInputMethodEvent rest(event->preeditString(), event->attributes());
  QTextEdit::inputMethodEvent(&rest);
}

QMimeData* RichTextView::createMimeDataFromSelection() const {
  if (!box_is_there_.Connected()) return new QMimeData;
  return ToMime(box_.SelectedPart()).release();
}

void RichTextView::CopySelection() {
  if (box_.selection().empty()) return;
  QGuiApplication::clipboard()->setMimeData(createMimeDataFromSelection());
}

void RichTextView::CutSelection() {
  if (box_.locked()) return;
  CopySelection();
  box_.Erase(box_.selection());
}

bool RichTextView::canInsertFromMimeData(const QMimeData* source) const {
  return box_is_there_.Connected() && !box_.locked() && HoldsText(*source);
}

void RichTextView::insertFromMimeData(const QMimeData* source) {
  if (source == nullptr || !canInsertFromMimeData(source)) return;
  if (const auto fragment = FromMime(*source)) return box_.Paste(*fragment);
  // A plain text looks like what it comes into.
  TypeText(source->text());
}

void RichTextView::dropEvent(QDropEvent* event) {
  // Takes the drop's own cursor away.
  QDragLeaveEvent leave;
  QTextEdit::dragLeaveEvent(&leave);
  if (!canInsertFromMimeData(event->mimeData())) return event->ignore();
  const QPoint place = event->position().toPoint();
  const richtext::Position to = PositionOf(cursorForPosition(place).position());
  if (event->source() == viewport() && event->dropAction() == Qt::MoveAction) {
    box_.MoveText(box_.selection(), to);
  } else {
    box_.MoveSelection({to, to});
    insertFromMimeData(event->mimeData());
    // Another program's text stays with it: the drag only copies.
    event->setDropAction(Qt::CopyAction);
  }
  event->accept();
}

// What the menu does is meant for what was clicked on, unless that is selected.
void RichTextView::MoveUnderPointer(QPoint place) {
  const richtext::Position to = PositionOf(cursorForPosition(place).position());
  if (!richtext::SelectedBy(box_.document(), box_.selection()).Holds(to)) {
    box_.MoveSelection({to, to});
  }
}

void RichTextView::contextMenuEvent(QContextMenuEvent* event) {
  if (!box_is_there_.Connected()) return;
  MoveUnderPointer(event->pos());
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [this, menu](const char* caption, QKeySequence::StandardKey key, bool enabled,
                                auto act) {
    QAction* const action = menu->addAction(QString::fromLatin1(caption));
    action->setShortcut(key);
    action->setEnabled(enabled);
    connect(action, &QAction::triggered, this, [this, act] {
      if (box_is_there_.Connected()) act();
    });
  };
  const bool has_selection = !box_.selection().empty();
  add("&Undo", QKeySequence::Undo, box_.CanUndo(), [this] { box_.Undo(); });
  add("&Redo", QKeySequence::Redo, box_.CanRedo(), [this] { box_.Redo(); });
  menu->addSeparator();
  add("Cu&t", QKeySequence::Cut, has_selection && !box_.locked(), [this] { CutSelection(); });
  add("&Copy", QKeySequence::Copy, has_selection, [this] { CopySelection(); });
  add("&Paste", QKeySequence::Paste, canPaste(), [this] { paste(); });
  menu->addSeparator();
  add("Select &All", QKeySequence::SelectAll, !document()->isEmpty(), [this] { SelectToEnd({}); });
  forms::MenuItem* const more = box_.popup_menu();
  if (more != nullptr && more->AnyReachable()) {
    menu->addSeparator();
    menu->addMenu(MakeMenu(*more, menu));
  }
  menu->popup(event->globalPos());
  event->accept();
}

}  // namespace tarnwell::desktop
