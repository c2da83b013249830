#include "richtext/html_styles.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <iterator>

namespace tarnwell::richtext {
namespace {

constexpr int kTwipsPerPoint = 20;
constexpr int kSingleSpacing = 240;

std::string Hex(const Color& color) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string out = "#";
  for (const std::uint8_t part : {color.red, color.green, color.blue}) {
    out += kDigits[part >> 4];
    out += kDigits[part & 0xF];
  }
  return out;
}

}  // namespace

std::string Points(int twips) {
  std::string out = std::to_string(twips / kTwipsPerPoint);
  const int rest = std::abs(twips % kTwipsPerPoint) * 5;
  if (twips < 0 && twips > -kTwipsPerPoint) out = "-0";
  if (rest != 0) out += (rest < 10 ? ".0" : ".") + std::to_string(rest);
  return out + "pt";
}

std::string CharacterStyle(const CharacterFormat& format) {
  std::string style = "font-size:" + Points(format.half_points * kTwipsPerPoint / 2);
  if (!format.font.empty()) {
    style += ";font-family:'";
    std::copy_if(format.font.begin(), format.font.end(), std::back_inserter(style),
                 [](char c) { return c != '\'' && c != '\\'; });
    style += '\'';
  }
  if (format.bold) style += ";font-weight:bold";
  if (format.italic) style += ";font-style:italic";
  const bool underlined = format.underline != Underline::kNone;
  if (underlined || format.strike) {
    style += ";text-decoration:";
    style += underlined && format.strike ? "underline line-through"
             : underlined                ? "underline"
                                         : "line-through";
  }
  if (format.script == Script::kSuperscript) style += ";vertical-align:super";
  if (format.script == Script::kSubscript) style += ";vertical-align:sub";
  if (format.color) style += ";color:" + Hex(*format.color);
  if (format.highlight) style += ";background-color:" + Hex(*format.highlight);
  return style;
}

std::string ParagraphStyle(const ParagraphFormat& format) {
  constexpr std::array<const char*, 4> kAlignments = {"left", "center", "right", "justify"};
  std::string style = "text-align:";
  style += kAlignments.at(static_cast<std::size_t>(format.alignment));
  style += ";margin:" + Points(format.space_before) + ' ' + Points(format.right_indent) + ' ' +
           Points(format.space_after) + ' ' + Points(format.left_indent);
  if (format.first_line_indent != 0) style += ";text-indent:" + Points(format.first_line_indent);
  if (format.line_spacing_is_multiple && format.line_spacing > 0) {
    style += ";line-height:" + std::to_string(format.line_spacing * 100LL / kSingleSpacing) + '%';
  } else if (!format.line_spacing_is_multiple && format.line_spacing != 0) {
    style += ";line-height:" + Points(std::abs(format.line_spacing));
  }
  if (format.page_break_before) style += ";page-break-before:always";
  return style;
}

std::string CellStyle(const Cell& cell, int left_edge) {
  std::string style = "vertical-align:top;width:" + Points(cell.right_edge - left_edge);
  const auto side = [&style](const char* name, const Border& border) {
    if (border.style.empty() || border.style == "brdrnone" || border.style == "brdrnil") return;
    style += std::string(";border-") + name + ':';
    style += Points(border.width) + (border.style == "brdrdb" ? " double" : " solid");
    if (border.color) style += ' ' + Hex(*border.color);
  };
  side("top", cell.top);
  side("left", cell.left);
  side("bottom", cell.bottom);
  side("right", cell.right);
  if (cell.fill) style += ";background-color:" + Hex(*cell.fill);
  return style;
}

}  // namespace tarnwell::richtext
