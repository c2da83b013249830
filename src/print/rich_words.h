// Takes a paragraph apart into what may stand on one line or on two.

#pragma once

#include <string_view>
#include <vector>

#include "print/rich_style.h"

namespace tarnwell::print {

// A place in a paragraph's runs.
struct RunPlace {
  std::size_t run = 0;
  std::size_t byte = 0;
};

// Text of one look.
struct RichPart {
  int style = 0;
  std::string_view text;
  RunPlace begin;
};

// A word with the blanks behind it, or one of what stands between words.
struct RichWord {
  enum class Kind { kWord, kTab, kLineBreak, kPageBreak, kPicture, kEnd };
  Kind kind = Kind::kEnd;
  std::vector<RichPart> parts;   // of a word; none where blanks begin a paragraph
  std::vector<RichPart> blanks;  // that a line's end swallows
  bool is_hyphenated = false;    // shows a hyphen if a line ends behind it
  int style = 0;                 // of a tab, a break or a picture
  const richtext::Picture* picture = nullptr;
  RunPlace end;
};

class RichWordReader {
 public:
  RichWordReader(const richtext::Paragraph& paragraph, RichStyles& styles)
      : paragraph_(paragraph), styles_(styles) {}

  // The word at `place`. Its texts are the paragraph's own.
  void Read(RunPlace place, RichWord& word);

 private:
  // Both return whether the word may go on in the next run.
  bool ReadText(std::string_view text, int style, RichWord& word);
  bool ReadBlanks(std::string_view text, int style, RichWord& word);

  const richtext::Paragraph& paragraph_;
  RichStyles& styles_;
  char32_t last_ = 0;       // character of the word; 0: none yet
  std::size_t length_ = 0;  // of the word, in bytes
};

}  // namespace tarnwell::print
