// Lets the paragraphs and tables of a document flow down its columns and pages.

#pragma once

#include <optional>
#include <vector>

#include "print/rich_notes.h"
#include "print/rich_pages.h"

namespace tarnwell::print {

// What columns that end level need, in twips.
struct ColumnLevel {
  int height = 0;  // 0: they needn't end level
  int notes = 0;   // of all of their notes together
};

class RichTextFlow {
 public:
  // Without `pages` they are the engine's own, and sections have no columns.
  RichTextFlow(RichPrinting& printing, RichPages* pages)
      : printing_(printing), engine_(printing.engine), notes_(printing), pages_(pages) {}

  void Add(const richtext::Paragraph& paragraph, FrameJoints joints);
  void Add(const richtext::Table& table);
  // The section of that number follows.
  void Begin(std::size_t number, ColumnLevel level);
  // From the position on.
  void SetColumns(const richtext::Section& section, ColumnLevel level);
  // Places what waits, and the notes.
  void End();

 private:
  struct Line {
    RichLine line;
    int gap = 0;  // above it, unless it begins a column
    std::vector<FoundNote> notes;
    int height() const { return gap + line.height; }
  };

  void AddEndnotes();
  void AskForPage();
  void GoToAskedColumns();
  void GoToAskedPage();
  void Take(Line line, bool stays_with_next);
  void PlaceKept(int height);
  void Place(Line& line);

  RichPrinting& printing_;
  PageEngine& engine_;
  RichNotes notes_;
  RichPages* pages_;
  std::vector<Line> kept_;
  int kept_height_ = 0;
  int gap_ = 0;                               // below the last paragraph
  bool breaks_ = false;                       // what comes next begins a page
  std::optional<std::size_t> asked_section_;  // which begins with it
  ColumnLevel asked_level_;
  bool has_content_ = false;
};

}  // namespace tarnwell::print
