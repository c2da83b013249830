#include "print/text_boxes.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "print/rich_cell.h"
#include "richtext/kept_pieces.h"
#include "richtext/kept_things.h"
#include "richtext/paragraphs.h"

namespace tarnwell::print {
namespace {

using richtext::KeptPiece;
using richtext::Paragraph;

constexpr int kLeastSide = 360;  // twips
constexpr int kInside = 144;     // that a text keeps off the box's left and right edge

bool IsShape(const KeptPiece& piece) { return piece.name == "shp" || piece.name == "do"; }

std::string TextOf(const KeptPiece& shape) {
  const std::string rtf = "{\\uc" + std::to_string(shape.unicode_skip) + std::string(shape.source);
  for (const richtext::KeptThing& thing : richtext::KeptThings({rtf + "}"})) {
    if (thing.kind == richtext::KeptKind::kTextBox) return thing.rtf;
  }
  return {};
}

// The picture that fills the shape, as a group; empty if there is none.
std::string PictureOf(const KeptPiece& shape) {
  const std::size_t property = shape.body.find("{\\sn pib}");
  if (property == std::string_view::npos) return {};
  const std::size_t begin = shape.body.find("{\\pict", property);
  if (begin == std::string_view::npos) return {};
  const auto groups = richtext::KeptPieces(shape.body.substr(begin));
  return groups.empty() ? std::string() : std::string(groups.front().source);
}

struct ShapePlace {
  int left = 0;
  int width = 0;
  int height = 0;
};

ShapePlace PlaceOf(const KeptPiece& shape, const forms::PageSetup& paper) {
  const auto told = [&](std::string_view word) {
    const int number = NumberBehind(word, shape.body).value_or(0);
    return std::clamp(number, -richtext::kLongestLength, richtext::kLongestLength);
  };
  ShapePlace place;
  if (shape.name == "shp") {
    place = {told("\\shpleft"), told("\\shpright") - told("\\shpleft"),
             told("\\shpbottom") - told("\\shptop")};
  } else {
    place = {told("\\dpx"), told("\\dpxsize"), told("\\dpysize")};
  }
  const bool is_from_edge = shape.body.find("\\shpbxpage") != std::string_view::npos ||
                            shape.body.find("\\dobxpage") != std::string_view::npos;
  if (is_from_edge) place.left -= paper.margins.left;
  place.width = std::max(place.width, kLeastSide);
  place.height = std::max(place.height, kLeastSide);
  return place;
}

std::optional<richtext::Table> TextBoxOf(RichPrinting& printing, const KeptPiece& shape) {
  const std::string text = TextOf(shape);
  const std::string picture = text.empty() ? PictureOf(shape) : std::string();
  if (text.empty() && picture.empty()) return std::nullopt;
  const ShapePlace place = PlaceOf(shape, printing.engine.paper());
  richtext::Cell cell;
  cell.right_edge = place.left + place.width;
  bool shows_something = false;
  const richtext::RichDocument part = printing.parts.Read(text.empty() ? picture : text);
  richtext::ForEachParagraph(part, [&](const Paragraph& paragraph) {
    cell.paragraphs.push_back(paragraph);
    for (richtext::Run& run : cell.paragraphs.back().runs) {
      run.field = richtext::kNoField;  // of the part
      if (auto* const image = std::get_if<richtext::Picture>(&run.content); image && text.empty()) {
        image->width = place.width;
        image->height = place.height;
        image->scale_x = image->scale_y = 100;
      }
      shows_something = shows_something || !std::holds_alternative<richtext::Opaque>(run.content);
    }
  });
  if (!shows_something) return std::nullopt;
  const bool has_line = shape.body.find("{\\sn fLine}{\\sv 0}") == std::string_view::npos;
  if (!text.empty() && has_line) {
    cell.top = cell.left = cell.bottom = cell.right = {"brdrs", 10, std::nullopt, {}};
  }
  richtext::TableRow row{place.left, text.empty() ? 0 : kInside, {}, {}};
  row.cells.push_back(std::move(cell));
  return richtext::Table{{std::move(row)}};
}

}  // namespace

std::vector<richtext::Table> TextBoxesOf(RichPrinting& printing, const Paragraph& paragraph) {
  std::vector<richtext::Table> boxes;
  for (const richtext::Run& run : paragraph.runs) {
    const auto* const opaque = std::get_if<richtext::Opaque>(&run.content);
    if (opaque == nullptr || opaque->resets_paragraph) continue;
    const bool may_be = opaque->rtf.find("\\shpinst") != std::string::npos ||
                        opaque->rtf.find("\\dptxbxtext") != std::string::npos;
    if (!may_be) continue;
    for (const KeptPiece& piece : richtext::KeptPieces(opaque->rtf)) {
      if (!IsShape(piece)) continue;
      if (auto box = TextBoxOf(printing, piece)) boxes.push_back(std::move(*box));
    }
  }
  return boxes;
}

}  // namespace tarnwell::print
