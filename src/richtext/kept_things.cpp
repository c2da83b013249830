#include "richtext/kept_things.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "richtext/field_link.h"
#include "richtext/kept_pieces.h"
#include "richtext/kept_words.h"
#include "richtext/nested_table.h"
#include "richtext/paragraphs.h"
#include "richtext/rich_text_reader.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

std::string TextOf(const KeptPiece& piece, std::string_view body) {
  return "\\uc" + std::to_string(piece.unicode_skip) + "\\pard\\plain " + std::string(body);
}

// What stands in the first group of that name; empty if there is none.
std::string_view GroupIn(std::string_view body, std::string_view name) {
  const std::size_t begin = body.find("{" + std::string(name));
  if (begin == std::string_view::npos) return {};
  const std::vector<KeptPiece> groups = KeptPieces(body.substr(begin));
  return groups.empty() ? std::string_view() : groups.front().body;
}

std::optional<KeptKind> KindOf(const KeptPiece& piece) {
  static constexpr std::array<std::pair<std::string_view, KeptKind>, 12> kNames = {{
      {"chftn", KeptKind::kNoteNumber},
      {"chpgn", KeptKind::kPageNumber},
      {"shp", KeptKind::kDrawing},
      {"shpgrp", KeptKind::kDrawing},
      {"do", KeptKind::kDrawing},
      {"pict", KeptKind::kPicture},
      {"shppict", KeptKind::kPicture},
      {"object", KeptKind::kObject},
      {"field", KeptKind::kField},
      {"annotation", KeptKind::kComment},
      {"chdate", KeptKind::kField},
      {"chtime", KeptKind::kField},
  }};
  const auto* const known =
      std::ranges::find(kNames, piece.name, &std::pair<std::string_view, KeptKind>::first);
  return known == kNames.end() ? std::nullopt : std::optional(known->second);
}

std::string FirstWord(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return std::string(text.substr(0, text.find(' ')));
}

KeptThing ThingOf(const KeptPiece& piece, KeptKind kind) {
  KeptThing thing{kind, {}, {}};
  if (kind == KeptKind::kDrawing) {
    for (const std::string_view name : {"\\shptxt", "\\dptxbxtext"}) {
      const std::string_view text = GroupIn(piece.body, name);
      if (text.empty()) continue;
      thing.kind = KeptKind::kTextBox;
      thing.rtf = TextOf(piece, text);
    }
  }
  if (kind == KeptKind::kComment) thing.rtf = TextOf(piece, piece.body);
  if (kind == KeptKind::kField && piece.is_group) {
    thing.name = FirstWord(InstructionText(piece.body));
    if (thing.name == "PAGE") thing.kind = KeptKind::kPageNumber;
  }
  return thing;
}

}  // namespace

std::vector<KeptThing> KeptThings(const Opaque& opaque, std::string_view words) {
  if (opaque.resets_paragraph) {
    return {{KeptKind::kNestedTable, Unnested(opaque.rtf), {}}};
  }
  std::vector<KeptThing> things;
  std::string author;
  const std::vector<KeptPiece> pieces = KeptPieces(opaque.rtf);
  for (const KeptPiece& piece : pieces) {
    if (piece.name == "atnauthor") author = TextOfPart(TextOf(piece, piece.body), 100);
    const std::optional<KeptKind> kind = KindOf(piece);
    if (!kind) continue;
    KeptThing& thing = things.emplace_back(ThingOf(piece, *kind));
    if (*kind == KeptKind::kComment) thing.name = std::exchange(author, {});
    // A field whose result is empty on purpose, such as an entry of an index.
    if (*kind == KeptKind::kField && (thing.name == "XE" || thing.name == "TC")) things.pop_back();
  }
  // Text that isn't shown stands in it as it is.
  if (pieces.empty() && !opaque.rtf.empty()) {
    const bool is_deleted = HoldsKept("deleted", words);
    const KeptKind kind = is_deleted ? KeptKind::kDeletedText : KeptKind::kHiddenText;
    things.push_back({kind, "\\uc1 " + opaque.rtf, {}});
  }
  return things;
}

std::string TextOfPart(std::string_view rtf, std::size_t most) {
  std::string text;
  const RichDocument part = ReadRichText("{\\rtf1\\ansi\\uc1 " + std::string(rtf) + "}");
  ForEachParagraph(part, [&](const Paragraph& paragraph) {
    if (text.size() >= most) return;
    if (!text.empty()) text += ' ';
    text += ShownText(paragraph);
  });
  text.resize(text::CharacterStart(text, std::min(text.size(), most)));
  std::ranges::replace_if(
      text, [](char c) { return c == '\n' || c == '\t' || c == '\f'; }, ' ');
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

}  // namespace tarnwell::richtext
