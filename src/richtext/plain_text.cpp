#include "richtext/plain_text.h"

#include <algorithm>

#include "richtext/limits.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

void Append(const std::vector<Paragraph>& paragraphs, std::string& text);

void Append(const Paragraph& paragraph, std::string& text) {
  for (const Run& run : paragraph.runs) {
    if (const auto* const part = std::get_if<std::string>(&run.content)) text += *part;
  }
}

void Append(const Table& table, std::string& text) {
  for (const TableRow& row : table.rows) {
    if (&row != &table.rows.front()) text += '\n';
    for (const Cell& cell : row.cells) {
      if (&cell != &row.cells.front()) text += '\t';
      Append(cell.paragraphs, text);
    }
  }
}

void Append(const std::vector<Paragraph>& paragraphs, std::string& text) {
  for (const Paragraph& paragraph : paragraphs) {
    if (&paragraph != &paragraphs.front()) text += '\n';
    Append(paragraph, text);
  }
}

// A picture, or a drawing or an object that this program can keep but not show.
bool IsPicture(const Run& run) {
  if (std::holds_alternative<Picture>(run.content)) return true;
  const auto* const kept = std::get_if<Opaque>(&run.content);
  constexpr std::string_view kDrawings[] = {"\\pict", "\\shp", "\\object", "\\do\\"};
  return kept != nullptr && std::ranges::any_of(kDrawings, [kept](std::string_view word) {
           return kept->rtf.find(word) != std::string::npos;
         });
}

// False where limits.h has no room for all of the line.
bool AppendParagraph(std::string_view line, std::size_t& room, RichDocument& document) {
  if (document.blocks.size() == kMostParagraphs) return false;
  const std::size_t most = std::min(room, kLongestParagraph);
  const bool is_whole = line.size() <= most;
  if (!is_whole) line = line.substr(0, text::CharacterStart(line, most));
  room -= line.size();
  Paragraph paragraph;
  std::string text;
  std::copy_if(line.begin(), line.end(), std::back_inserter(text), [](char c) {
    return static_cast<unsigned char>(c) >= ' ' || c == '\t' || c == '\f';
  });
  if (!text.empty()) paragraph.runs.push_back({{}, std::move(text), kNoField});
  document.blocks.emplace_back(std::move(paragraph));
  return is_whole;
}

}  // namespace

std::string PlainText(const RichDocument& document) {
  std::string text;
  for (const Block& block : document.blocks) {
    if (&block != &document.blocks.front()) text += '\n';
    std::visit([&text](const auto& part) { Append(part, text); }, block);
  }
  return text;
}

bool IsBlank(const RichDocument& document) {
  constexpr std::string_view kNoBreakSpace = "\u00A0";
  const std::string text = PlainText(document);
  std::string_view rest = text;
  while (!rest.empty()) {
    if (rest.starts_with(kNoBreakSpace)) {
      rest.remove_prefix(kNoBreakSpace.size());
    } else if (std::string_view(" \t\n\f").find(rest.front()) != std::string_view::npos) {
      rest.remove_prefix(1);
    } else {
      return false;
    }
  }
  return true;
}

bool HoldsNothing(const RichDocument& document) {
  return IsBlank(document) && std::ranges::all_of(document.blocks, [](const Block& block) {
           const auto* const paragraph = std::get_if<Paragraph>(&block);
           return paragraph != nullptr && std::ranges::none_of(paragraph->runs, IsPicture);
         });
}

RichDocument FromPlainText(std::string_view utf8) {
  RichDocument document;
  // Other programs don't agree on the font of a text that names none.
  if (utf8.empty()) document.fonts.push_back({0, kUsualFont, 0, "\\froman"});
  std::size_t room = kMostText;
  while (!utf8.empty() && !document.is_part) {
    const std::size_t end = std::min(utf8.find_first_of("\r\n"), utf8.size());
    document.is_part = !AppendParagraph(utf8.substr(0, end), room, document);
    const bool is_pair = utf8.substr(end).starts_with("\r\n");
    utf8.remove_prefix(std::min(end + (is_pair ? 2 : 1), utf8.size()));
  }
  return document;
}

}  // namespace tarnwell::richtext
