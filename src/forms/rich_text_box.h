#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/color.h"
#include "forms/control.h"
#include "forms/page.h"
#include "richtext/change.h"
#include "richtext/history.h"
#include "richtext/list_kind.h"
#include "richtext/position.h"
#include "richtext/rich_document.h"
#include "richtext/search.h"

namespace tarnwell::forms {

class MenuItem;

struct RichTextBoxStyle {
  std::string_view spoken_name;
};

// How the text looks at the selection.
struct TextLook {
  FontParts font;                  // as SelectionFont() has it
  std::optional<Color> highlight;  // this and the rest at its start
  richtext::Alignment alignment = richtext::Alignment::kLeft;
  richtext::ListKind list = richtext::ListKind::kNone;
  bool in_table = false;
};

// A formatted document that a person edits. Texts are UTF-8. Positions and ranges that don't exist
// are taken as the nearest that do; richtext/paragraphs.h says what paragraphs and offsets count.
class RichTextBox : public Control {
 public:
  RichTextBox(Container& parent, std::string_view name, RichTextBoxStyle style)
      : Control(parent, name) {
    SetSpokenName(style.spoken_name);
  }

  const richtext::RichDocument& document() const { return document_; }
  // By the program: the cursor at the start, nothing to undo, no handler runs.
  void SetDocument(richtext::RichDocument document);
  void Clear() { SetDocument({}); }
  // No text but blanks, no picture, no table: nothing that a person would miss.
  bool IsBlank() const;

  // A person can select and copy, not change. So it is, too, with a document that is only the
  // beginning of its file.
  bool locked() const { return locked_ || document_.is_part; }
  void SetLocked(bool locked);
  // Of text without a colour of its own; empty for the look's own.
  const std::optional<Color>& text_color() const { return text_color_; }
  void SetTextColor(std::optional<Color> color);
  const std::optional<Color>& background() const { return background_; }
  void SetBackground(std::optional<Color> color);

  // Whether the text is shown on pages, with their margins and what stands above and below it.
  bool shows_pages() const { return shows_pages_; }
  void SetShowsPages(bool shows);

  int paragraph_count() const;
  std::string ParagraphText(int paragraph) const;
  const richtext::Range& selection() const { return selection_; }
  std::string SelectedText() const;  // "\n" between paragraphs
  // What the clipboard gets of it.
  richtext::RichDocument SelectedPart() const;
  // The view scrolls there.
  void Select(richtext::Range range);
  // The first place from there on with exactly this text, within one paragraph.
  std::optional<richtext::Range> Find(std::string_view utf8, richtext::Position from) const;
  // What a right-click offers besides; nullptr for nothing.
  MenuItem* popup_menu() const { return popup_menu_; }
  void SetPopupMenu(MenuItem* menu) { popup_menu_ = menu; }

  // Edits by the program or by a command of the form. Each is one step of undo and runs no
  // `on_change`. They do nothing while the box is locked.

  // Keeps the format of the range's first character; the cursor stands behind the new text.
  void Replace(richtext::Range range, std::string_view utf8);
  // What all letters of the selection have in common, as far as its first thousand changes of
  // format tell; without a selection, of what is typed next.
  FontParts SelectionFont() const;
  // Nothing but these parts; what else the letters have stays.
  void SetSelectionFont(const FontParts& parts);
  // At the start of the selection.
  richtext::Alignment SelectionAlignment() const;
  void SetSelectionAlignment(richtext::Alignment alignment);
  TextLook SelectionLook() const;
  bool CanUndo() const { return !locked() && history_.CanUndo(); }
  bool CanRedo() const { return !locked() && history_.CanRedo(); }

  // A person's gestures. richtext/selection.h says what a selection is in tables.
  void MoveSelection(richtext::Range range);
  // Replaces the selection. "\n" begins a new paragraph, "\f" a new page, U+2028 a new line.
  void Type(std::string_view utf8);
  // Without a selection it stays within a cell and never takes a table.
  void Erase(richtext::Range range);
  // From the cursor back to there, or the selection. At the start of an item it ends the list.
  void Backspace(richtext::Position back_to);
  // In the place of the selection.
  void Paste(const richtext::RichDocument& fragment);
  // The border of a table's column; see Editor.
  void MoveColumnEdge(int paragraph, int from, int to);
  void MoveText(richtext::Range range, richtext::Position to);
  void ToggleBold();
  void ToggleItalic();
  void ToggleUnderline();
  void ChangeFont(const FontParts& parts);
  void Highlight(std::optional<Color> color);
  void Align(richtext::Alignment alignment);
  void SetList(richtext::ListKind kind);
  // By so many steps, outwards below 0.
  void Indent(int steps);
  // Outside tables, of empty cells; the cursor stands in the first.
  void InsertTable(int rows, int columns);
  void EditTable(richtext::TableEdit edit);
  // In a table, selects what the next cell holds, or the one before. A row is added behind the
  // last.
  void TabToCell(bool forward);
  // Of the web or of mail; it becomes a link of the selection, or where nothing is selected of
  // itself. False if it can't be one, or over the end of a paragraph.
  bool Link(std::string_view address);
  void InsertPicture(richtext::Picture picture);
  // Every place that the search finds, as one step; how many they were.
  int ReplaceAll(const richtext::Search& search, std::string_view utf8);
  void Undo();
  void Redo();

  std::function<void()> on_change;  // a person changed the text or its look
  // What was typed or pasted has no room in a document, which stays as it is; see limits.h.
  std::function<void()> on_too_much;
  std::function<void()> on_selection;  // the selection or the cursor moved, or its format changed

  // For the view: each edit adds what it changed. A view that knows the first `known` of all spans
  // asks for the rest; empty if it must show the document anew.
  std::size_t spans_made() const { return spans_made_; }
  std::optional<std::vector<richtext::ChangedSpan>> SpansFrom(std::size_t known) const;
  // Grows with each Select; the view then scrolls to the selection.
  int scroll_requests() const { return scroll_requests_; }

 private:
  bool CanEdit() const { return !locked() && Reachable(); }
  // Runs `edit`, which edits by the editor and gives the new selection, as one step.
  using Edit = std::function<richtext::Range(richtext::Editor&)>;
  // False if it changed nothing.
  bool Do(richtext::StepKind kind, const Edit& edit);
  void Keep(const std::vector<richtext::ChangedSpan>& spans);
  using Reformatting = std::function<void(richtext::CharacterFormat&)>;
  bool ReformatSelection(const Reformatting& change);
  // Gives what changes a format as the parts say.
  static Reformatting ChangeTo(const FontParts& parts);
  void Toggle(const Reformatting& change);
  void EditTableAt(const richtext::Range& range, richtext::TableEdit edit);
  void ChangeParagraphs(const std::function<void(richtext::Editor&)>& change);
  void Finish(const std::optional<richtext::History::Outcome>& outcome);
  // Runs the handlers of a person's edit.
  void Tell(bool changed);
  bool MoveTo(richtext::Range range);
  richtext::Position InsertPlain(richtext::Editor& editor, richtext::Position at,
                                 std::string_view utf8, const richtext::Typing& typing);
  richtext::CharacterFormat StartFormat() const;
  Font FontOf(const richtext::CharacterFormat& format) const;

  richtext::RichDocument document_;
  richtext::History history_;
  richtext::Range selection_;
  // What is typed next at the cursor looks so; until the cursor moves.
  std::optional<richtext::CharacterFormat> typing_format_;
  bool after_blank_ = false;  // the last thing typed was a blank
  bool locked_ = false;
  bool shows_pages_ = false;
  std::optional<Color> text_color_;
  std::optional<Color> background_;
  std::deque<richtext::ChangedSpan> spans_;
  std::size_t spans_made_ = 0;
  int scroll_requests_ = 0;
  MenuItem* popup_menu_ = nullptr;
};

}  // namespace tarnwell::forms
