// Breaks a formatted paragraph into lines.

#pragma once

#include "print/line_builder.h"
#include "print/rich_words.h"

namespace tarnwell::print {

// Whether a paragraph's frame goes on above or below it.
struct FrameJoints {
  bool above = false;
  bool below = false;
};

// What a column offers, in twips.
struct RichRoom {
  int width = 0;
  int height = 0;  // the most that a picture may take
  FrameJoints joints = {};
};

// Needs the paragraph to stay.
class ParagraphLines {
 public:
  ParagraphLines(const richtext::Paragraph& paragraph, RichStyles& styles, RichRoom room);

  // The run that the next line begins in.
  std::size_t next_run() const { return place_.run; }

  // The next line; false behind the last. There is at least one, and behind a page break only what
  // follows it.
  bool Next(RichLine& line);

 private:
  void StartLine();
  void AddMarker();
  // Both add `word_` and return true, or leave it for the next line.
  bool TakeWord();
  bool TakeTab();
  bool TakePicture();
  void TakeStartOfWord();
  // Fills the line; returns why it ends.
  RichLine::End FillLine();
  void SetHeight(RichLine& line);
  void SetFrame(bool is_first, RichLine& line) const;

  const richtext::Paragraph& paragraph_;
  const richtext::ParagraphFormat& format_;
  RichStyles& styles_;
  RichRoom room_;
  RichWordReader reader_;
  LineBuilder builder_;
  std::shared_ptr<const RichFrame> frame_;  // null: there is none
  int left_ = 0;
  int right_ = 0;
  RunPlace place_;
  RichWord word_;
  std::vector<double> widths_;  // of the word's parts
  int hyphen_ = -1;             // the look of the hyphen that a line's end shows; -1 for none
  int empty_style_;             // gives a line with nothing on it its height
  bool is_first_ = true;
  bool is_done_ = false;
  bool is_behind_page_break_ = false;
};

}  // namespace tarnwell::print
