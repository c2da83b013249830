#include "richtext/keep_unshown.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwell::richtext {
namespace {

constexpr std::string_view kPicturePlace = "\uFFFC";

bool IsOpaque(const Run& run) { return std::holds_alternative<Opaque>(run.content); }

// What the run is in the paragraph's text: a picture stands as one character.
std::string_view ShownText(const Run& run) {
  if (const auto* const text = std::get_if<std::string>(&run.content)) return *text;
  return IsOpaque(run) ? std::string_view{} : kPicturePlace;
}

std::string ShownText(const Paragraph& paragraph) {
  std::string text;
  for (const Run& run : paragraph.runs) text += ShownText(run);
  return text;
}

// The part of `before` that isn't in `after` and the part of `after` that stands in its place.
struct Change {
  std::size_t begin;
  std::size_t end_before;
  std::size_t end_after;

  std::size_t Moved(std::size_t offset) const {
    if (offset <= begin) return offset;
    return offset >= end_before ? offset - end_before + end_after : end_after;
  }
};

Change FindChange(std::string_view before, std::string_view after) {
  const std::size_t shorter = std::min(before.size(), after.size());
  std::size_t begin = 0;
  while (begin < shorter && before[begin] == after[begin]) ++begin;
  std::size_t behind = 0;
  while (behind < shorter - begin &&
         before[before.size() - 1 - behind] == after[after.size() - 1 - behind]) {
    ++behind;
  }
  return {begin, before.size() - behind, after.size() - behind};
}

// Where a character ends, from `offset` on.
std::size_t CharacterEnd(std::string_view text, std::size_t offset) {
  const auto is_follower = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
  while (offset < text.size() && is_follower(text[offset])) ++offset;
  return offset;
}

// Puts `run` where the text of `runs` is `offset` bytes long, behind other opaque runs there.
void Insert(Run run, std::size_t offset, std::vector<Run>& runs) {
  auto place = runs.begin();
  while (place != runs.end() && (offset >= ShownText(*place).size())) {
    if (offset == 0 && !IsOpaque(*place)) break;
    offset -= ShownText(*place).size();
    ++place;
  }
  if (offset == 0 || place == runs.end()) {
    runs.insert(place, std::move(run));
    return;
  }
  Run rest = *place;
  auto& head = std::get<std::string>(place->content);
  rest.content = head.substr(offset);
  head.resize(offset);
  place = runs.insert(place + 1, std::move(rest));
  runs.insert(place, std::move(run));
}

}  // namespace

void KeepUnshown(const Paragraph& before, Paragraph& after) {
  std::erase_if(after.runs, IsOpaque);
  const std::string text = ShownText(after);
  const Change change = FindChange(ShownText(before), text);
  std::size_t offset = 0;
  for (const Run& run : before.runs) {
    offset += ShownText(run).size();
    if (IsOpaque(run)) Insert(run, CharacterEnd(text, change.Moved(offset)), after.runs);
  }
  if (after.section_break.empty()) after.section_break = before.section_break;
  if (after.format.other.empty()) after.format.other = before.format.other;
  if (after.mark.other.empty()) after.mark.other = before.mark.other;
}

}  // namespace tarnwell::richtext
