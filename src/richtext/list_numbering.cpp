#include "richtext/list_numbering.h"

#include <algorithm>
#include <charconv>

namespace tarnwell::richtext {
namespace {

constexpr int kMostNumber = 1'000'000;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// The counting part of a marker: its last digits, or a letter that stands alone.
struct Counter {
  std::size_t begin = 0;
  std::size_t size = 0;
};

Counter FindCounter(std::string_view marker) {
  std::size_t end = marker.size();
  while (end > 0 && !IsDigit(marker[end - 1])) --end;
  std::size_t begin = end;
  while (begin > 0 && IsDigit(marker[begin - 1])) --begin;
  if (begin != end) return {begin, end - begin};
  const auto letter = std::ranges::find_if(marker, IsLetter);
  const auto at = static_cast<std::size_t>(letter - marker.begin());
  if (letter == marker.end() || std::ranges::count_if(marker, IsLetter) != 1) return {};
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

int CountLike(const ListItem& item, const std::vector<Block>& blocks) {
  return static_cast<int>(std::ranges::count_if(blocks, [&item](const Block& block) {
    const ListItem* const other = ItemOf(block);
    return other != nullptr && CountTogether(item, *other);
  }));
}

// The marker with its counting part cut out, to compare by.
std::string Shape(const std::string& marker) {
  const Counter counter = FindCounter(marker);
  std::string shape = marker;
  const bool is_letter = counter.size > 0 && !IsDigit(marker[counter.begin]);
  return shape.replace(counter.begin, counter.size, is_letter ? "a" : "1");
}

}  // namespace

std::string CountedOn(const std::string& marker, int by) {
  const Counter counter = FindCounter(marker);
  if (counter.size == 0) return marker;
  const std::string_view old = std::string_view(marker).substr(counter.begin, counter.size);
  std::string counted;
  if (IsDigit(old.front())) {
    int number = kMostNumber;
    std::from_chars(old.data(), old.data() + old.size(), number);
    if (number >= kMostNumber) return marker;
    counted = std::to_string(std::max(number + by, 0));
  } else {
    counted = AsLetter(old.front(), by);
  }
  return std::string(marker).replace(counter.begin, counter.size, counted);
}

bool CountTogether(const ListItem& a, const ListItem& b) {
  return a.numbered && b.numbered && a.level == b.level && a.list_number == b.list_number &&
         Shape(a.marker) == Shape(b.marker);
}

void NumberAnew(std::vector<Block>& blocks) {
  for (std::size_t i = 1; i < blocks.size(); ++i) {
    const ListItem* const item = ItemOf(blocks[i]);
    if (item == nullptr) continue;
    for (std::size_t k = i; k-- > 0;) {
      const ListItem* const before = ItemOf(blocks[k]);
      if (before == nullptr || before->level < item->level) break;
      if (!CountTogether(*before, *item)) continue;
      std::get<Paragraph>(blocks[i]).format.list->marker = CountedOn(before->marker, 1);
      break;
    }
  }
}

int ShiftOf(const ListItem& item, const std::vector<Block>& before,
            const std::vector<Block>& after) {
  return item.numbered ? CountLike(item, after) - CountLike(item, before) : 0;
}

}  // namespace tarnwell::richtext
