#include "richtext/rtf_writer.h"

#include <algorithm>
#include <utility>

#include "richtext/head_tables.h"
#include "richtext/kept_pieces.h"
#include "richtext/kept_words.h"
#include "richtext/rich_text_writer.h"

namespace tarnwell::richtext {
namespace {

std::string CharsetWords(int code_page) {
  switch (code_page) {
    case 10000:
      return "\\mac";
    case 437:
      return "\\pc";
    case 850:
      return "\\pca";
    default:
      return "\\ansi\\ansicpg" + std::to_string(code_page);
  }
}

std::string PageWords(const Page& page) {
  const Page plain;
  std::string out;
  const auto add = [&out](const char* word, int value, int usual) {
    if (value != usual) out += word + std::to_string(value);
  };
  add("\\paperw", page.width, plain.width);
  add("\\paperh", page.height, plain.height);
  add("\\margl", page.left_margin, plain.left_margin);
  add("\\margr", page.right_margin, plain.right_margin);
  add("\\margt", page.top_margin, plain.top_margin);
  add("\\margb", page.bottom_margin, plain.bottom_margin);
  return out;
}

// The format that holds behind the last paragraph.
CharacterFormat LastMark(const RichDocument& document) {
  if (document.blocks.empty()) return {};
  const Block& last = document.blocks.back();
  if (const auto* const paragraph = std::get_if<Paragraph>(&last)) return paragraph->mark;
  const std::vector<TableRow>& rows = std::get<Table>(last).rows;
  if (rows.empty() || rows.back().cells.empty()) return {};
  return rows.back().cells.back().paragraphs.back().mark;
}

}  // namespace

RtfWriter::RtfWriter(const RichDocument& document) : document_(document), tables_(document) {
  if (document.prologue.find("\\stylesheet") == std::string::npos) return;
  FormatTables tables;
  tables.fonts = document.fonts;
  tables.colors = document.colors;
  for (const KeptPiece& piece : KeptPieces(document.prologue)) {
    if (piece.name != "stylesheet") continue;
    ReadStyles(piece.body, tables);
    break;
  }
  styles_ = std::move(tables.styles);
}

std::string RtfWriter::Write() && {
  std::vector<const Paragraph*> paragraphs;
  for (const Block& block : document_.blocks) paragraphs.push_back(std::get_if<Paragraph>(&block));
  const std::vector<int> next = FieldsBehind(paragraphs);
  for (std::size_t i = 0; i < paragraphs.size(); ++i) {
    if (paragraphs[i] == nullptr) {
      WriteTable(std::get<Table>(document_.blocks[i]));
      continue;
    }
    WriteParagraph(*paragraphs[i], next[i], false);
    const std::string& section_break = paragraphs[i]->section_break;
    out_ += section_break.empty() ? "\\par\n" : section_break + "\n";
    words_open_ = false;
  }
  std::string rtf = "{\\rtf1" + CharsetWords(document_.code_page) + "\\deff" +
                    std::to_string(document_.default_font) + '\n';
  rtf += tables_.Rtf();
  const std::string head = PageWords(document_.base_page) + document_.prologue;
  rtf += head;
  if (!head.empty()) rtf += '\n';
  rtf += out_;
  // Hidden, it would be taken for text of one more paragraph.
  if (!document_.epilogue.empty() && IsHidden(LastMark(document_).other)) rtf += "\\plain";
  return rtf + document_.epilogue + "}\n";
}

void RtfWriter::WriteTable(const Table& table) {
  for (const TableRow& row : table.rows) {
    if (row.cells.empty()) continue;
    WriteRowDefinition(row);
    for (const Cell& cell : row.cells) WriteCell(cell);
    out_ += "\\row\n";
  }
}

void RtfWriter::WriteRowDefinition(const TableRow& row) {
  Words("\\trowd\\trgaph" + std::to_string(row.half_gap) + "\\trleft" +
        std::to_string(row.left_edge));
  Words(row.other);
  for (const Cell& cell : row.cells) {
    out_ += '\n';
    Words(cell.other);
    WriteBorder("\\clbrdrt", cell.top);
    WriteBorder("\\clbrdrl", cell.left);
    WriteBorder("\\clbrdrb", cell.bottom);
    WriteBorder("\\clbrdrr", cell.right);
    if (cell.fill) Words("\\clcbpat" + std::to_string(tables_.ColorNumber(cell.fill)));
    Words("\\cellx" + std::to_string(cell.right_edge));
  }
  out_ += '\n';
}

void RtfWriter::WriteBorder(std::string_view word, const Border& border) {
  if (border == Border{}) return;
  Words(word);
  if (!border.style.empty()) Words("\\" + border.style);
  if (border.width != 0) Words("\\brdrw" + std::to_string(border.width));
  if (border.color) Words("\\brdrcf" + std::to_string(tables_.ColorNumber(border.color)));
  Words(border.other);
}

void RtfWriter::WriteCell(const Cell& cell) {
  if (cell.paragraphs.empty()) Words("\\pard\\intbl\\plain");
  std::vector<const Paragraph*> paragraphs;
  for (const Paragraph& paragraph : cell.paragraphs) paragraphs.push_back(&paragraph);
  const std::vector<int> next = FieldsBehind(paragraphs);
  for (std::size_t i = 0; i < paragraphs.size(); ++i) {
    WriteParagraph(*paragraphs[i], next[i], true);
    if (i + 1 < paragraphs.size()) out_ += "\\par\n";
    words_open_ = false;
  }
  out_ += "\\cell\n";
  words_open_ = false;
}

void RtfWriter::Words(std::string_view words) {
  if (words.empty()) return;
  out_ += words;
  words_open_ = true;
}

void RtfWriter::Text(std::string_view text) {
  if (text.empty()) return;
  const bool ends_words = text.front() == '\\' || text.front() == '{' || text.front() == '}';
  if (words_open_ && !ends_words) out_ += ' ';
  words_open_ = false;
  out_ += text;
}

std::string WriteRichText(const RichDocument& document) { return RtfWriter(document).Write(); }

StoredForm StoredFormOf(std::string bytes, const RichDocument& read) {
  return {std::move(bytes), WriteRichText(read)};
}

// Writing is much quicker than reading the old bytes again.
std::string SaveRichText(const RichDocument& document, const StoredForm& read_from) {
  std::string rtf = WriteRichText(document);
  return rtf == read_from.rewritten ? read_from.bytes : rtf;
}

}  // namespace tarnwell::richtext
