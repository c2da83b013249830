#include "richtext/html.h"

#include <string_view>

#include "richtext/base64.h"
#include "richtext/field_link.h"
#include "richtext/html_styles.h"
#include "richtext/merged_cells.h"

namespace tarnwell::richtext {
namespace {

void AppendEscaped(std::string_view text, std::string& out) {
  for (const char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      case '\n':
        out += "<br>";
        break;
      case '\f':
        out += "<br style=\"page-break-before:always\">";
        break;
      case '\t':
        out += "<span style=\"white-space:pre\">\t</span>";
        break;
      default:
        out += c;
    }
  }
}

class HtmlWriter {
 public:
  explicit HtmlWriter(const RichDocument& document) : document_(document) {}

  std::string Write() && {
    out_ = "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"></head><body>\n";
    for (const Block& block : document_.blocks) {
      std::visit([this](const auto& part) { Write(part); }, block);
    }
    return out_ + "</body></html>\n";
  }

 private:
  void Write(const Paragraph& paragraph) {
    out_ += "<p style=\"" + ParagraphStyle(paragraph.format) + "\">";
    if (paragraph.format.list && !paragraph.format.list->marker.empty()) {
      WriteText(paragraph.format.list->marker + '\t', paragraph.mark);
    }
    for (const Run& run : paragraph.runs) WriteRun(run);
    if (paragraph.runs.empty()) WriteText("\u00A0", paragraph.mark);
    out_ += "</p>\n";
  }

  void Write(const Table& table) {
    std::vector<const TableRow*> rows;
    for (const TableRow& row : table.rows) rows.push_back(&row);
    const auto spans = CellSpansOf(rows, GridOf(rows));
    out_ += "<table style=\"border-collapse:collapse\">\n";
    for (std::size_t row = 0; row < rows.size(); ++row) {
      out_ += "<tr>";
      int left_edge = rows[row]->left_edge;
      for (std::size_t i = 0; i < spans[row].size(); ++i) {
        const Cell& cell = rows[row]->cells[i];
        if (!spans[row][i].is_covered) Write(cell, left_edge, spans[row][i]);
        left_edge = cell.right_edge;
      }
      out_ += "</tr>\n";
    }
    out_ += "</table>\n";
  }

  void Write(const Cell& cell, int left_edge, const CellSpan& span) {
    out_ += "<td";
    if (span.columns > 1) out_ += " colspan=\"" + std::to_string(span.columns) + '"';
    if (span.rows > 1) out_ += " rowspan=\"" + std::to_string(span.rows) + '"';
    out_ += " style=\"" + CellStyle(cell, left_edge) + "\">";
    for (const Paragraph& paragraph : cell.paragraphs) Write(paragraph);
    out_ += "</td>";
  }

  void WriteRun(const Run& run) {
    const std::string link = LinkOf(document_, run.field);
    if (!link.empty()) {
      out_ += "<a href=\"";
      AppendEscaped(link, out_);
      out_ += "\">";
    }
    if (const auto* const text = std::get_if<std::string>(&run.content)) {
      WriteText(*text, run.format);
    } else if (const auto* const picture = std::get_if<Picture>(&run.content)) {
      Write(*picture);
    }
    if (!link.empty()) out_ += "</a>";
  }

  void WriteText(std::string_view text, const CharacterFormat& format) {
    out_ += "<span style=\"";
    AppendEscaped(CharacterStyle(format), out_);
    out_ += "\">";
    AppendEscaped(text, out_);
    out_ += "</span>";
  }

  void Write(const Picture& picture) {
    out_ += "<img alt=\"\"";
    if (picture.width > 0 && picture.height > 0) {
      const auto shown = [](long long length, int scale) {
        return Points(static_cast<int>(length * scale / 100));
      };
      out_ += " style=\"width:" + shown(picture.width, picture.scale_x) +
              ";height:" + shown(picture.height, picture.scale_y) + '"';
    }
    out_ += picture.kind == Picture::Kind::kPng ? " src=\"data:image/png;base64,"
                                                : " src=\"data:image/jpeg;base64,";
    out_ += Base64(picture.bytes) + "\">";
  }

  const RichDocument& document_;
  std::string out_;
};

}  // namespace

std::string ToHtml(const RichDocument& document) { return HtmlWriter(document).Write(); }

}  // namespace tarnwell::richtext
