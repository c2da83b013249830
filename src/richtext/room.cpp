#include "richtext/room.h"

#include <algorithm>

#include "richtext/limits.h"
#include "richtext/paragraphs.h"

namespace tarnwell::richtext {
namespace {

struct Amount {
  std::size_t paragraphs = 0;
  std::size_t runs = 0;
  std::size_t text = 0;
};

Amount AmountOf(const RichDocument& document) {
  Amount amount;
  ForEachParagraph(document, [&amount](const Paragraph& paragraph) {
    ++amount.paragraphs;
    amount.runs += paragraph.runs.size();
    for (const Run& run : paragraph.runs) amount.text += ShownText(run).size();
  });
  return amount;
}

bool Fits(const Amount& a, const Amount& b) {
  return a.paragraphs + b.paragraphs <= kMostParagraphs && a.runs + b.runs <= kMostRuns &&
         a.text + b.text <= kMostText;
}

}  // namespace

bool HasRoomFor(const RichDocument& document, const RichDocument& fragment) {
  return !fragment.is_part && Fits(AmountOf(document), AmountOf(fragment));
}

bool HasRoomFor(const RichDocument& document, std::string_view utf8) {
  // A key never asks for the whole document.
  if (utf8.size() < 1000) return true;
  const auto lines = static_cast<std::size_t>(std::ranges::count(utf8, '\n')) + 1;
  return Fits(AmountOf(document), {lines, lines, utf8.size()});
}

}  // namespace tarnwell::richtext
