// Edits a document and notes what it takes to take them back.

#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "richtext/change.h"
#include "richtext/list_kind.h"
#include "richtext/position.h"
#include "richtext/rich_document.h"
#include "richtext/run_edit.h"
#include "richtext/table_edit.h"

namespace tarnwell::richtext {

// Ranges and positions are Clamped() ones of the document; selection.h says what a range takes in.
// What isn't shown stays, unless whole paragraphs go with it. No edit but EditTable changes the
// grid of a table, and none makes two tables meet.
class Editor {
 public:
  explicit Editor(RichDocument& document)
      : document_(document), fields_before_(document.fields.size()) {}

  // Joins what is left of the first and of the last paragraph; tables between them go. Of cells it
  // takes the contents. Gives the position where it was.
  Position Erase(const Range& range);

  // One line of text. Each of these gives the position behind what was inserted.
  Position InsertText(Position at, std::string_view utf8, const Typing& typing);
  // Several, parted by "\n", at one go; each line end does what BreakParagraph does.
  Position InsertLines(Position at, std::string_view utf8, const Typing& typing);
  // Begins a new paragraph, or ends the list in an item that is empty. At the very beginning of a
  // document that begins with a table, the new paragraph stands before the table.
  Position BreakParagraph(Position at);
  // Makes an item of a list an ordinary paragraph.
  void EndList(Position at);
  // Makes the paragraphs items, which go on in a list of their kind that ends above them; or, with
  // kNone, ordinary paragraphs.
  void SetList(const Range& range, ListKind kind);
  // By so many steps, backwards below 0: items by levels, other paragraphs by kIndentStep. Text
  // keeps some room.
  void Indent(const Range& range, int steps);
  // One paragraph goes into the text, several part it; in a cell tables give their text.
  Position Insert(Position at, RichDocument fragment);

  // Of empty cells, as wide as the text, outside tables. Gives the beginning of its first cell.
  Position InsertTable(Position at, int rows, int columns);
  // Does it to the rows or columns that the range touches of the table in which it begins. Cells
  // that are merged stay so, and what they hold stays as long as a part of them does. Gives where
  // the cursor belongs then.
  Position EditTable(const Range& range, TableEdit edit);
  // Of a range within one paragraph.
  void Link(const Range& range, std::string_view address);

  void Reformat(const Range& range, const std::function<void(CharacterFormat&)>& change);
  // Of every paragraph that the range touches.
  void ReformatParagraphs(const Range& range, const std::function<void(ParagraphFormat&)>& change);

  // The edges of cells at `from` go to `to`, or as near as their tables have room: those that touch
  // the paragraph's own. Twips from the page's left margin.
  void MoveColumnEdge(int paragraph, int from, int to);

  // In the order in which they were made.
  const std::vector<Change>& changes() const { return changes_; }
  const std::vector<ChangedSpan>& spans() const { return spans_; }
  // How many fields the document had; what it has beyond came with fragments.
  std::size_t fields_before() const { return fields_before_; }

 private:
  // Puts `after` in the place of `count` blocks, or paragraphs of a cell, and counts the items of a
  // list behind them anew.
  void Replace(const Place& first, std::size_t count, std::vector<Block> after);
  void Make(Change change);
  void ShiftItemsBehind(std::size_t change);
  // How many paragraphs from `place` on are items of lists, at most `most`.
  std::size_t ItemsFrom(Place place, std::size_t most) const;
  std::vector<Block> BlocksAt(const Place& first, std::size_t count) const;
  // 0 for the paragraph that isn't stored.
  std::size_t CountAt(const Place& place) const;
  // A copy, in the document's default font for the paragraph that isn't stored.
  Paragraph CopyAt(const Place& place) const;

  // Within a cell, or from one paragraph outside tables to another.
  void EraseBetween(const Range& range);
  // Takes the tables in which it begins and ends.
  void EraseTables(const Range& range);
  Position InsertInline(const Place& place, Position at, Paragraph inserted);
  Position InsertBlocks(const Place& place, Position at, std::vector<Block> inserted);
  void TakeFields(RichDocument& fragment);
  void ReformatIn(int number, const Range& range, const std::function<void(Paragraph&)>& change);
  // Of the paragraphs that the range touches, as many at one go as stand behind each other;
  // `change` is told what stands above them.
  using Rewriting = std::function<void(const std::vector<Block>& above, std::vector<Block>&)>;
  void Rewrite(const Range& range, const Rewriting& change);
  // How many paragraphs stand behind each other from there on, at most `most`.
  std::size_t ParagraphsFrom(const Place& first, int most) const;
  // The items of lists that end right above the place.
  std::vector<Block> ItemsAbove(Place place) const;

  RichDocument& document_;
  std::size_t fields_before_;
  std::vector<Change> changes_;
  std::vector<ChangedSpan> spans_;
};

}  // namespace tarnwell::richtext
