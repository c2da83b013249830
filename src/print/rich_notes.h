// The footnotes of a document, at the foot of the columns that name them.

#pragma once

#include <vector>

#include "print/rich_box.h"

namespace tarnwell::print {

// Of the line above the notes of a column, in twips.
inline constexpr int kRoomAboveNotes = 160;

class RichNotes {
 public:
  explicit RichNotes(RichPrinting& printing) : printing_(printing), engine_(printing.engine) {}

  // Lays notes out for the column in hand; endnotes are kept for later.
  std::vector<RichBox> LayOut(std::vector<FoundNote> notes);
  // What they need at the foot of the column in hand, with the line above the first.
  int HeightOf(const std::vector<RichBox>& notes) const;
  // They stand at the foot of the column in hand. Its room is reserved already if `has_room`;
  // otherwise what doesn't fit goes on in the next columns.
  void Add(std::vector<RichBox> notes, bool has_room);

  // What an earlier column had no room for.
  std::vector<RichBox> TakeRest() { return std::exchange(rest_, {}); }
  bool has_rest() const { return !rest_.empty(); }
  std::vector<FoundNote> TakeEndnotes() { return std::exchange(endnotes_, {}); }

  // Once all pages are there.
  void Finish();

 private:
  // The foot of a column.
  struct Foot {
    int page;
    int left;
    int bottom;
    int height;
    std::vector<std::pair<RichBox, std::size_t>> notes;  // and how many lines of it stand here
  };

  bool HasFoot() const;

  RichPrinting& printing_;
  PageEngine& engine_;
  std::vector<Foot> feet_;
  std::vector<RichBox> rest_;
  std::vector<FoundNote> endnotes_;
};

}  // namespace tarnwell::print
