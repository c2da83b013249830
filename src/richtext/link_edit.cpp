#include <string>
#include <utility>

#include "richtext/editor.h"

namespace tarnwell::richtext {
namespace {

constexpr Color kLinkBlue{0x05, 0x63, 0xC1};

}  // namespace

// What is part of another field already stays its part.
void Editor::Link(const Range& range, std::string_view address) {
  const Place place = FindPlace(document_, range.from.paragraph);
  if (CountAt(place) == 0 || range.empty()) return;
  Paragraph paragraph = CopyAt(place);
  SplitRuns front = Split(paragraph.runs, range.from.offset);
  SplitRuns back = Split(front.tail, range.to.offset - range.from.offset);
  const int field = static_cast<int>(document_.fields.size());
  for (Run& run : back.head) {
    if (run.field != kNoField) continue;
    run.field = field;
    run.format.color = kLinkBlue;
    run.format.underline = Underline::kSingle;
  }
  document_.fields.push_back(
      {"\\field{\\*\\fldinst HYPERLINK \"" + std::string(address) + "\"}", kNoField});
  paragraph.runs = std::move(front.head);
  AppendRuns(std::move(back.head), paragraph.runs);
  AppendRuns(std::move(back.tail), paragraph.runs);
  Replace(place, 1, {std::move(paragraph)});
}

}  // namespace tarnwell::richtext
