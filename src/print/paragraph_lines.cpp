#include "print/paragraph_lines.h"

#include <algorithm>
#include <cmath>

#include "print/picture_size.h"
#include "print/tab_stops.h"
#include "text/utf8.h"

namespace tarnwell::print {
namespace {

constexpr int kLeastWidth = 300;  // twips of a line that indents leave, if the column has them
constexpr int kSingleSpacing = 240;

// How many bytes of `text` fit into `width`.
std::size_t FittingBytes(RichStyles& styles, int style, std::string_view text, double width) {
  std::size_t fits = 0;
  std::size_t too_long = text.size() + 1;
  while (fits + 1 < too_long) {
    const std::size_t middle = fits + (too_long - fits) / 2;
    const std::size_t cut = text::CharacterStart(text, middle);
    const bool is_fitting = styles.Width(style, text.substr(0, cut)) <= width;
    (is_fitting ? fits : too_long) = middle;
  }
  return text::CharacterStart(text, fits);
}

std::size_t FirstCharacter(std::string_view text) {
  std::size_t size = 1;
  while (size < text.size() && text::CharacterStart(text, size) != size) ++size;
  return size;
}

int SpacedHeight(const richtext::ParagraphFormat& format, int natural) {
  const int spacing = format.line_spacing;
  if (spacing == 0) return natural;
  if (format.line_spacing_is_multiple) {
    const double height = static_cast<double>(natural) * std::abs(spacing) / kSingleSpacing;
    return static_cast<int>(std::lround(std::min<double>(height, richtext::kLongestLength)));
  }
  return spacing > 0 ? std::max(natural, spacing) : -spacing;
}

}  // namespace

ParagraphLines::ParagraphLines(const richtext::Paragraph& paragraph, RichStyles& styles,
                               RichRoom room)
    : paragraph_(paragraph),
      format_(paragraph.format),
      styles_(styles),
      room_(room),
      reader_(paragraph, styles),
      builder_(styles),
      empty_style_(styles.Find(paragraph.mark)) {
  const int least = std::min(kLeastWidth, room.width);
  left_ = std::clamp(format_.left_indent, 0, room.width - least);
  right_ = std::clamp(room.width - format_.right_indent, left_ + least, room.width);
  const richtext::ParagraphFrame frame = styles.FrameOf(paragraph);
  if (frame.is_empty()) return;
  const int first = std::clamp(format_.left_indent + format_.first_line_indent, 0, left_);
  frame_ = std::make_shared<const RichFrame>(RichFrame{frame, first, right_});
}

void ParagraphLines::StartLine() {
  const int least = std::min(kLeastWidth, room_.width);
  const int first = std::clamp(format_.left_indent + format_.first_line_indent, 0, right_ - least);
  builder_.Start(is_first_ ? first : left_, right_);
  hyphen_ = -1;
  if (is_first_ && format_.list) AddMarker();
  is_first_ = false;
}

// In the letters of the paragraph's end, but plain.
void ParagraphLines::AddMarker() {
  richtext::CharacterFormat format = paragraph_.mark;
  format.underline = richtext::Underline::kNone;
  format.strike = false;
  format.script = richtext::Script::kBaseline;
  format.highlight.reset();
  const int style = styles_.Find(format);
  const std::string& marker = format_.list->marker;
  builder_.AddText(style, marker, styles_.Width(style, marker));
  builder_.AddTab(style, NextTabStop(format_, builder_.end()));
}

bool ParagraphLines::TakeWord() {
  double width = 0;
  widths_.clear();
  for (const RichPart& part : word_.parts) {
    widths_.push_back(styles_.Width(part.style, part.text));
    width += widths_.back();
  }
  const int hyphen = word_.is_hyphenated && !word_.parts.empty() ? word_.parts.back().style : -1;
  if (hyphen >= 0) width += styles_.Width(hyphen, "-");
  if (!word_.parts.empty() && !builder_.HasRoom(width)) {
    if (builder_.is_empty()) TakeStartOfWord();
    return false;
  }
  for (std::size_t i = 0; i < word_.parts.size(); ++i) {
    builder_.AddText(word_.parts[i].style, word_.parts[i].text, widths_[i]);
  }
  for (const RichPart& blanks : word_.blanks) {
    builder_.AddBlanks(blanks.style, blanks.text, styles_.Width(blanks.style, blanks.text));
  }
  hyphen_ = hyphen;
  place_ = word_.end;
  return true;
}

// As much of a word that is wider than the line as fits, and at least one character.
void ParagraphLines::TakeStartOfWord() {
  for (const RichPart& part : word_.parts) {
    std::size_t bytes = FittingBytes(styles_, part.style, part.text, builder_.Room());
    if (bytes == 0 && builder_.is_empty()) bytes = FirstCharacter(part.text);
    const std::string_view start = part.text.substr(0, bytes);
    if (!start.empty()) {
      builder_.AddText(part.style, start, styles_.Width(part.style, start));
      place_ = {part.begin.run, part.begin.byte + bytes};
    }
    if (bytes < part.text.size()) return;
  }
  place_ = word_.end;
}

bool ParagraphLines::TakeTab() {
  const richtext::TabStop stop = NextTabStop(format_, builder_.end());
  const bool is_outside = stop.kind == richtext::TabStop::Kind::kLeft && stop.position > right_;
  if (is_outside && !builder_.is_empty()) return false;
  builder_.AddTab(word_.style, stop);
  hyphen_ = -1;
  place_ = word_.end;
  return true;
}

bool ParagraphLines::TakePicture() {
  const auto [width, height] = SizeOnPage(*word_.picture, right_ - left_, room_.height);
  if (!builder_.HasRoom(width) && !builder_.is_empty()) return false;
  LinePiece piece;
  piece.kind = LinePiece::Kind::kPicture;
  piece.style = word_.style;
  piece.width = width;
  piece.height = height;
  piece.picture = styles_.Shared(word_.picture->bytes);
  builder_.AddPicture(std::move(piece));
  hyphen_ = -1;
  place_ = word_.end;
  return true;
}

RichLine::End ParagraphLines::FillLine() {
  while (true) {
    reader_.Read(place_, word_);
    switch (word_.kind) {
      case RichWord::Kind::kWord:
        if (!TakeWord()) return RichLine::End::kWrapped;
        break;
      case RichWord::Kind::kTab:
        if (!TakeTab()) return RichLine::End::kWrapped;
        break;
      case RichWord::Kind::kPicture:
        if (!TakePicture()) return RichLine::End::kWrapped;
        break;
      case RichWord::Kind::kLineBreak:
      case RichWord::Kind::kPageBreak:
        place_ = word_.end;
        return word_.kind == RichWord::Kind::kLineBreak ? RichLine::End::kLineBreak
                                                        : RichLine::End::kPageBreak;
      case RichWord::Kind::kEnd:
        return RichLine::End::kParagraph;
    }
  }
}

bool ParagraphLines::Next(RichLine& line) {
  if (is_done_) return false;
  const bool is_first = is_first_;
  StartLine();
  const RichLine::End end = FillLine();
  is_done_ = end == RichLine::End::kParagraph;
  if (is_done_ && is_behind_page_break_ && builder_.is_empty()) return false;
  if (end == RichLine::End::kWrapped && hyphen_ >= 0) {
    builder_.AddText(hyphen_, "-", styles_.Width(hyphen_, "-"));
  }
  is_behind_page_break_ = end == RichLine::End::kPageBreak;
  line = builder_.Finish(format_.alignment, end);
  SetHeight(line);
  if (frame_) SetFrame(is_first, line);
  for (const richtext::TabStop& tab : format_.tabs) {
    if (tab.kind == richtext::TabStop::Kind::kBar) line.bars.push_back(tab.position);
  }
  return true;
}

// The frame's level lines take room of their own.
void ParagraphLines::SetFrame(bool is_first, RichLine& line) const {
  const richtext::ParagraphFrame& sides = frame_->sides;
  line.frame = frame_;
  line.begins_frame = is_first && !room_.joints.above;
  line.goes_on_with_frame = is_first && room_.joints.above;
  line.ends_frame = line.end == RichLine::End::kParagraph && !room_.joints.below;
  if (is_first) {
    const richtext::ParagraphFrame::Side& side = line.begins_frame ? sides.top : sides.between;
    const int above = side.distance + side.border.width;
    line.base += above;
    line.height += above;
  }
  if (line.ends_frame) line.height += sides.bottom.distance + sides.bottom.border.width;
}

void ParagraphLines::SetHeight(RichLine& line) {
  line.height = line.base = 0;
  if (line.pieces.empty() && line.end == RichLine::End::kPageBreak) return;
  int ascent = 0;
  int descent = 0;
  bool has_picture = false;
  for (const LinePiece& piece : line.pieces) {
    if (piece.kind == LinePiece::Kind::kPicture) {
      has_picture = true;
      ascent = std::max(ascent, piece.height);
      continue;
    }
    ascent = std::max(ascent, styles_.at(piece.style).ascent);
    descent = std::max(descent, styles_.at(piece.style).descent);
  }
  if (line.pieces.empty()) {
    ascent = styles_.at(empty_style_).ascent;
    descent = styles_.at(empty_style_).descent;
  }
  const int natural = ascent + descent;
  line.height = SpacedHeight(format_, natural);
  if (has_picture) line.height = std::max(line.height, natural);
  line.height = std::max(line.height, 1);
  // Room that a multiple adds lies below the letters, any other above them.
  line.base = line.height - descent;
  if (format_.line_spacing_is_multiple) line.base = std::min(line.base, ascent);
}

}  // namespace tarnwell::print
