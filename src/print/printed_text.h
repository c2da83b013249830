// What a paragraph shows on paper beyond its own text: numbers of pages and notes, capitals.

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::print {

// Of the page that a header or a footer stands on.
struct PageNumbers {
  int number = 1;
  std::string text;  // the number as the section writes it
  int pages = 1;     // of the document
};

struct FoundNote {
  std::string rtf;
  std::string number;  // empty: the text has a sign of its own
  bool is_endnote = false;
};

class PrintedText {
 public:
  // The paragraph as it is printed. Each run that stands for a note holds it in `notes` by its
  // place; what isn't shown is gone but for tables inside a cell.
  struct Printed {
    richtext::Paragraph paragraph;
    std::vector<std::size_t> note_runs;
    std::vector<FoundNote> notes;
  };
  Printed Of(const richtext::Paragraph& paragraph);
  // Whether Of would change anything, or find a note.
  static bool Changes(const richtext::Paragraph& paragraph);

  // In a note's own text: its number.
  void BeginNote(std::string number) { note_ = std::move(number); }
  void EndNote() {
    note_.reset();
    pending_.clear();
  }

 private:
  void AddText(const richtext::Run& run, std::string text, Printed& printed) const;
  void AddKept(const richtext::Run& run, const std::string& rtf, Printed& printed);
  std::string NextNumber(bool is_endnote);

  std::optional<std::string> note_;
  std::string pending_;  // number that stands in the text, and whose note is to come
  std::size_t pending_run_ = 0;
  int footnotes_ = 0;
  int endnotes_ = 0;
};

// Puts the numbers into the fields and signs of a header or a footer.
void SetPageNumbers(const PageNumbers& numbers, richtext::RichDocument& part);

}  // namespace tarnwell::print
