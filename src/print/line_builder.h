// Fills one line from left to right.

#pragma once

#include <string_view>
#include <vector>

#include "print/rich_line.h"
#include "print/rich_words.h"

namespace tarnwell::print {

class LineBuilder {
 public:
  explicit LineBuilder(RichStyles& styles) : styles_(styles) {}

  // Begins a line between two edges, which are twips from the left edge of the column.
  void Start(double left, double right);
  bool is_empty() const { return line_.pieces.empty() && blanks_.empty(); }
  // Behind the last piece and its blanks.
  double end() const {
    return SegmentStart(segment_width_ + blanks_width_) + segment_width_ + blanks_width_;
  }
  // Whether a piece of that width still fits behind the blanks at the end of the line.
  bool HasRoom(double width) const;
  double Room() const { return right_ - end(); }

  void AddText(int style, std::string_view text, double width);
  // Shown once something follows them on the line, or if they are seen by themselves.
  void AddBlanks(int style, std::string_view text, double width);
  void AddTab(int style, const richtext::TabStop& stop);
  void AddPicture(LinePiece piece);

  // The finished line without its height. Only a line that was wrapped is justified.
  RichLine Finish(richtext::Alignment alignment, RichLine::End line_end);

 private:
  struct Blanks {
    int style;
    std::string_view text;
    double width;
  };

  double SegmentStart(double width) const;
  void TakeBlanks();
  void KeepSeenBlanks();
  void EndSegment();
  void Justify(double room);

  RichStyles& styles_;
  RichLine line_;
  double right_ = 0;
  std::vector<Blanks> blanks_;  // behind the last word
  double blanks_width_ = 0;
  // What stands behind the last tab, whose room depends on it.
  richtext::TabStop stop_;
  double tab_begin_ = 0;
  std::size_t segment_ = 0;  // its first piece
  double segment_width_ = 0;
  double width_before_point_ = 0;
  bool has_point_ = false;
};

}  // namespace tarnwell::print
