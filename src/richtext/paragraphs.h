// Finding one's way in a document by its paragraphs.
//
// The shown text of a paragraph is that of its runs: a picture stands in it as U+FFFC, an opaque
// run as nothing. A document that is empty or ends with a table has one more paragraph than it
// stores, an empty one at its end, where a person goes on writing.

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "richtext/position.h"
#include "richtext/rich_document.h"

namespace tarnwell::richtext {

inline constexpr std::string_view kPicturePlace = "\uFFFC";

// Where a paragraph stands. Outside a table row, cell and index are 0.
struct Place {
  std::size_t block = 0;  // blocks.size() for the paragraph that isn't stored
  bool in_table = false;
  std::size_t row = 0;
  std::size_t cell = 0;
  std::size_t index = 0;  // in the cell
  bool operator==(const Place&) const = default;

  bool InSameCell(const Place& other) const {
    return in_table && other.in_table && block == other.block && row == other.row &&
           cell == other.cell;
  }
};

// False behind the last block.
bool IsTable(const RichDocument& document, std::size_t block);

int CountParagraphs(const Block& block);
int CountParagraphs(const RichDocument& document);

// `paragraph` is one of the document's.
Place FindPlace(const RichDocument& document, int paragraph);
// The number of a block's first paragraph, or of what would stand behind the last block.
int FirstParagraphOf(const RichDocument& document, std::size_t block);
// That of the cell's first paragraph.
int FirstParagraphOf(const RichDocument& document, const Place& cell);

const Cell& CellAt(const RichDocument& document, const Place& place);
// An empty paragraph for the one that isn't stored.
const Paragraph& ParagraphAt(const RichDocument& document, const Place& place);
const Paragraph& ParagraphAt(const RichDocument& document, int paragraph);

bool IsOpaque(const Run& run);
std::string_view ShownText(const Run& run);
std::string ShownText(const Paragraph& paragraph);
int ShownLength(const Paragraph& paragraph);

// The nearest position that there is, at the beginning of a character.
Position Clamped(const RichDocument& document, Position position);
// Both ends so, in their order.
Range Clamped(const RichDocument& document, Range range);
Position EndOf(const RichDocument& document);

// What the range shows, in UTF-8, a line feed between two paragraphs.
std::string ShownText(const RichDocument& document, const Range& range);

// The first place at or behind `from` where a paragraph shows exactly this text.
std::optional<Range> FindText(const RichDocument& document, std::string_view utf8, Position from);

// Every stored paragraph in reading order.
template <typename Visit>
void ForEachParagraph(const RichDocument& document, Visit visit) {
  for (const Block& block : document.blocks) {
    if (const auto* const paragraph = std::get_if<Paragraph>(&block)) {
      visit(*paragraph);
      continue;
    }
    for (const TableRow& row : std::get<Table>(block).rows) {
      for (const Cell& cell : row.cells) {
        for (const Paragraph& paragraph : cell.paragraphs) visit(paragraph);
      }
    }
  }
}

// The name of the font in which text without a font of its own stands; may be empty.
std::string DefaultFontName(const RichDocument& document);

}  // namespace tarnwell::richtext
