#include "print/rich_cell.h"

#include <algorithm>
#include <charconv>

#include "richtext/kept_words.h"

namespace tarnwell::print {
namespace {

constexpr int kLeastCellText = 200;  // twips of a cell's text, however narrow the cell

richtext::Cell LookOf(const richtext::Cell& cell) {
  richtext::Cell look;
  look.top = cell.top;
  look.left = cell.left;
  look.bottom = cell.bottom;
  look.right = cell.right;
  look.fill = cell.fill;
  look.other = cell.other;
  return look;
}

}  // namespace

// Other word processors have "clpadl" say what stands above the text and "clpadt" what stands to
// its left.
forms::Margins CellMargins(const richtext::TableRow& row, const richtext::Cell& cell) {
  constexpr int kMost = 1440;
  const auto told = [&](std::string_view own, std::string_view of_row, int usual) {
    const auto number = NumberBehind(own, cell.other);
    return std::clamp(number ? *number : NumberBehind(of_row, row.other).value_or(usual), 0, kMost);
  };
  const int gap = std::clamp(row.half_gap, 0, kMost);
  return {told("\\clpadt", "\\trpaddl", gap), told("\\clpadl", "\\trpaddt", 0),
          told("\\clpadr", "\\trpaddr", gap), told("\\clpadb", "\\trpaddb", 0)};
}

RichCell::RichCell(RichPrinting& printing, const richtext::Cell& cell, const CellPlace& place,
                   int most_height)
    : look_(LookOf(cell)),
      place_(place),
      box_(printing,
           std::max(place.right - place.left - place.inside.left - place.inside.right,
                    kLeastCellText),
           most_height) {
  box_.Add(cell.paragraphs);
}

int RichCell::TopInRow(int row_height) const {
  const int spare = std::max(row_height - HeightLeft(), 0);
  if (richtext::HoldsKept("clvertalc", look_.other)) return spare / 2;
  return richtext::HoldsKept("clvertalb", look_.other) ? spare : 0;
}

void RichCell::PlaceFill(PageEngine& engine, int x, int top, int bottom) const {
  if (!look_.fill) return;
  engine.Add(forms::PlacedBox{x + place_.left, top, place_.right - place_.left, bottom - top,
                              std::nullopt, ToPageColor(*look_.fill)});
}

void RichCell::PlaceNext(std::size_t count, int x, int y) {
  box_.PlaceNext(count, x + place_.left + place_.inside.left, y + place_.inside.top);
}

void RichCell::PlaceBorders(PageEngine& engine, int x, int top, int bottom) const {
  const int left = x + place_.left;
  const int right = x + place_.right;
  PlaceBorder(engine, look_.top, {left, top, right, top});
  PlaceBorder(engine, look_.left, {left, top, left, bottom});
  PlaceBorder(engine, look_.bottom, {left, bottom, right, bottom});
  PlaceBorder(engine, look_.right, {right, top, right, bottom});
}

std::optional<int> NumberBehind(std::string_view word, std::string_view words) {
  for (std::size_t at = words.find(word); at != std::string_view::npos;
       at = words.find(word, at + 1)) {
    const std::string_view rest = words.substr(at + word.size());
    int number = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    if (error == std::errc()) return number;
  }
  return std::nullopt;
}

}  // namespace tarnwell::print
