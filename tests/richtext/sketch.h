// Documents as short texts, for tests of editing.

#pragma once

#include <string>
#include <string_view>

#include "richtext/paragraphs.h"
#include "richtext/rich_text_reader.h"

namespace tarnwell::richtext {

// A paragraph: its marker and ">" in a list, bold text in stars, "{}" for what isn't shown.
inline std::string Sketch(const Paragraph& paragraph) {
  std::string out;
  if (paragraph.format.list) out += paragraph.format.list->marker + ">";
  for (const Run& run : paragraph.runs) {
    const std::string star = run.format.bold ? "*" : "";
    if (std::holds_alternative<Opaque>(run.content)) out += "{}";
    if (std::holds_alternative<Picture>(run.content)) out += "#";
    if (const auto* const text = std::get_if<std::string>(&run.content)) out += star + *text + star;
  }
  if (!paragraph.section_break.empty()) out += "$";
  return out;
}

// A bar between two blocks. Of a table "[", ";" between rows, "," between cells, "/" between the
// paragraphs of a cell, "]".
inline std::string Sketch(const RichDocument& document) {
  std::string out;
  for (const Block& block : document.blocks) {
    if (&block != &document.blocks.front()) out += '|';
    if (const auto* const paragraph = std::get_if<Paragraph>(&block)) {
      out += Sketch(*paragraph);
      continue;
    }
    out += '[';
    for (const TableRow& row : std::get<Table>(block).rows) {
      if (out.back() != '[') out += ';';
      for (const Cell& cell : row.cells) {
        if (&cell != &row.cells.front()) out += ',';
        for (const Paragraph& paragraph : cell.paragraphs) {
          if (&paragraph != &cell.paragraphs.front()) out += '/';
          out += Sketch(paragraph);
        }
      }
    }
    out += ']';
  }
  return out;
}

// The RTF document of a sketch of plain texts, numbers and tables; "*" switches bold, "{}" is a
// bookmark.
inline std::string RtfOf(std::string_view sketch) {
  std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Times;}}\\pard ";
  int cells = 0;
  const auto row = [&cells] {
    std::string words = "\\cell\\trowd";
    for (int i = 0; i <= cells; ++i) words += "\\cellx" + std::to_string(1000 * (i + 1));
    cells = 0;
    return words + "\\row\\pard\\intbl ";
  };
  bool bold = false;
  bool in_table = false;
  std::string paragraph;
  const auto flush = [&](const std::string& end) {
    if (const std::size_t at = paragraph.find('>'); at != std::string::npos) {
      paragraph = "{\\pntext " + paragraph.substr(0, at) + "\\tab}" + paragraph.substr(at + 1);
      if (!in_table) paragraph = "\\pard" + paragraph;
    }
    rtf += paragraph + end;
    paragraph.clear();
  };
  for (std::size_t i = 0; i < sketch.size(); ++i) {
    const char c = sketch[i];
    if (c == '|') {
      if (sketch[i - 1] != ']') flush("\\par\\pard ");
    } else if (c == '[') {
      in_table = true;
      rtf += "\\pard\\intbl ";
    } else if (c == '/') {
      flush("\\par ");
    } else if (c == ',') {
      flush("\\cell\\pard\\intbl ");
      ++cells;
    } else if (c == ';') {
      flush(row());
    } else if (c == ']') {
      flush(row() + "\\pard ");
      in_table = false;
    } else if (c == '*') {
      bold = !bold;
      paragraph += bold ? "\\b " : "\\b0 ";
    } else if (c == '{') {
      paragraph += "{\\*\\bkmkstart x}";
    } else if (c == '#') {
      paragraph += "{\\pict\\pngblip 89504e47}";
    } else if (c != '}') {
      paragraph += c;
    }
  }
  if (!sketch.ends_with(']')) flush("\\par");
  return rtf + "}";
}

inline RichDocument FromSketch(std::string_view sketch) { return ReadRichText(RtfOf(sketch)); }

}  // namespace tarnwell::richtext
