#include "richtext/list_numbering.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "text/letters.h"

namespace tarnwell::richtext {
namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMostNumber = 1'000'000;

// The counting part of a marker: its last digits, or a letter that stands alone.
struct Counter {
  std::size_t begin = 0;
  std::size_t size = 0;
};

Counter FindCounter(std::string_view marker) {
  std::size_t end = marker.size();
  while (end > 0 && !text::IsAsciiDigit(marker[end - 1])) --end;
  std::size_t begin = end;
  while (begin > 0 && text::IsAsciiDigit(marker[begin - 1])) --begin;
  if (begin != end) return {begin, end - begin};
  const auto letter = std::ranges::find_if(marker, text::IsAsciiLetter);
  const auto at = static_cast<std::size_t>(letter - marker.begin());
  if (letter == marker.end() || std::ranges::count_if(marker, text::IsAsciiLetter) != 1) return {};
  return {at, 1};
}

std::string AsLetter(char letter, int by) {
  const char first = letter >= 'a' ? 'a' : 'A';
  const int place = std::clamp(letter - first + by, 0, 25);
  return {static_cast<char>(first + place)};
}

const ListItem* ItemOf(const Block& block) {
  const auto* const paragraph = std::get_if<Paragraph>(&block);
  return paragraph != nullptr && paragraph->format.list ? &*paragraph->format.list : nullptr;
}

// The marker with its counting part cut out, to compare by.
std::string Shape(const std::string& marker) {
  const Counter counter = FindCounter(marker);
  std::string shape = marker;
  const bool is_letter = counter.size > 0 && !text::IsAsciiDigit(marker[counter.begin]);
  return shape.replace(counter.begin, counter.size, is_letter ? "a" : "1");
}

std::tuple<int, int, std::string> KindOf(const ListItem& item) {
  return {item.level, item.list_number, Shape(item.marker)};
}

}  // namespace

std::string CountedOn(const std::string& marker, int by) {
  const Counter counter = FindCounter(marker);
  if (counter.size == 0) return marker;
  const std::string_view old = std::string_view(marker).substr(counter.begin, counter.size);
  std::string counted;
  if (text::IsAsciiDigit(old.front())) {
    int number = kMostNumber;
    std::from_chars(old.data(), old.data() + old.size(), number);
    if (number >= kMostNumber) return marker;
    counted = std::to_string(std::max(number + by, 0));
  } else {
    counted = AsLetter(old.front(), by);
  }
  return std::string(marker).replace(counter.begin, counter.size, counted);
}

void NumberAnew(std::vector<Block>& blocks) {
  // The last marker of each kind that goes on; a higher level or other text ends those below it.
  std::map<std::tuple<int, int, std::string>, std::string> last;
  for (Block& block : blocks) {
    const ListItem* const item = ItemOf(block);
    const int ended = item == nullptr ? 0 : item->level + 1;
    last.erase(last.lower_bound({ended, kLeast, {}}), last.end());
    if (item == nullptr || !item->numbered) continue;
    std::string& marker = std::get<Paragraph>(block).format.list->marker;
    const auto [before, is_first] = last.try_emplace(KindOf(*item), marker);
    if (!is_first) before->second = marker = CountedOn(before->second, 1);
  }
}

ItemShifts::ItemShifts(const std::vector<Block>& before, const std::vector<Block>& after) {
  const auto count = [this](const std::vector<Block>& blocks, int by) {
    for (const Block& block : blocks) {
      const ListItem* const item = ItemOf(block);
      if (item != nullptr && item->numbered) shifts_[KindOf(*item)] += by;
    }
  };
  count(before, -1);
  count(after, 1);
}

int ItemShifts::Of(const ListItem& item) const {
  if (!item.numbered) return 0;
  const auto shift = shifts_.find(KindOf(item));
  return shift == shifts_.end() ? 0 : shift->second;
}

}  // namespace tarnwell::richtext
