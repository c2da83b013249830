// Paragraphs and tables below each other in a box of their own: in a cell, a header or a note.

#pragma once

#include <memory>
#include <span>
#include <vector>

#include "print/paragraph_lines.h"
#include "print/rich_printing.h"

namespace tarnwell::print {

class RowBox;

class RichBox {
 public:
  // `most_height` is what a picture may take.
  RichBox(RichPrinting& printing, int width, int most_height)
      : printing_(printing), room_{width, most_height} {}

  // What is added needn't stay.
  void Add(std::span<const richtext::Paragraph> paragraphs);
  void Add(const std::vector<richtext::Block>& blocks);

  // What isn't placed yet, and the space below the last line.
  int HeightLeft() const;
  // How many lines, or rows of a table, of it fit into `room`.
  std::size_t FittingLines(int room) const;
  // How high the next `count` of them are.
  int HeightOf(std::size_t count) const;
  std::size_t count_left() const { return items_->size() - next_; }
  // The least height of so many columns that hold what isn't placed yet.
  int LevelHeight(int columns) const;
  // The next `count` of them stand somewhere else.
  void Drop(std::size_t count) { next_ += count; }
  bool is_done() const { return count_left() == 0; }
  // The left top corner of the next `count` lines comes to (x, y).
  void PlaceNext(std::size_t count, int x, int y);

  // The notes that the texts name, once each.
  std::vector<FoundNote> TakeNotes() { return std::exchange(notes_, {}); }

 private:
  struct Item {
    RichLine line;
    std::shared_ptr<RowBox> row;  // in the line's place
    int gap = 0;                  // above it
    bool stays_with_next = false;
    int height() const { return gap + line.height; }
  };

  void AddParagraph(const richtext::Paragraph& paragraph, FrameJoints joints);
  void AddNested(const std::string& tables);
  void AddTable(const richtext::Table& table);
  bool FitsIn(int columns, int height) const;

  RichPrinting& printing_;
  RichRoom room_;
  // A box that goes on in another column shares them.
  std::shared_ptr<std::vector<Item>> items_ = std::make_shared<std::vector<Item>>();
  std::vector<FoundNote> notes_;
  std::size_t next_ = 0;  // item that isn't placed yet
  int last_gap_ = 0;      // below the last item
};

}  // namespace tarnwell::print
