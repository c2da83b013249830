#include "richtext/format_writer.h"

#include <algorithm>
#include <array>
#include <limits>

#include "richtext/code_pages.h"
#include "richtext/head_tables.h"
#include "richtext/kept_words.h"
#include "richtext/rtf_words.h"
#include "richtext/script_words.h"
#include "richtext/text_escape.h"

namespace tarnwell::richtext {
namespace {

std::string Number(std::string_view word, int number) {
  std::string out = "\\";
  out += word;
  return out += std::to_string(number);
}

std::string Switch(std::string_view word, bool on) {
  std::string out = "\\";
  out += word;
  return on ? out : out += '0';
}

constexpr const char* kNoFont = "\1";  // no font's name

std::string ScriptWord(Script script) {
  constexpr std::array<const char*, 3> kWords = {"\\nosupersub", "\\super", "\\sub"};
  return kWords.at(static_cast<std::size_t>(script));
}

std::string Tab(const TabStop& tab) {
  constexpr std::array<const char*, 4> kKinds = {"", "\\tqc", "\\tqr", "\\tqdec"};
  constexpr std::array<const char*, 7> kLeaders = {"",       "\\tldot", "\\tlmdot", "\\tlhyph",
                                                   "\\tlul", "\\tlth",  "\\tleq"};
  std::string out;
  const bool is_bar = tab.kind == TabStop::Kind::kBar;
  if (!is_bar) out += kKinds.at(static_cast<std::size_t>(tab.kind));
  out += kLeaders.at(static_cast<std::size_t>(tab.leader));
  return out += Number(is_bar ? "tb" : "tx", tab.position);
}

}  // namespace

WriterTables::WriterTables(const RichDocument& document)
    : fonts_(document.fonts),
      colors_(document.colors),
      code_page_(document.code_page),
      default_number_(document.default_font) {
  const auto font = std::find_if(fonts_.begin(), fonts_.end(), [&document](const Font& candidate) {
    return candidate.number == document.default_font;
  });
  if (font != fonts_.end()) default_font_ = font->name;
  has_east_asian_fonts_ =
      HasDoubleBytes(code_page_) || std::ranges::any_of(fonts_, [this](const Font& own) {
        return HasDoubleBytes(CodePageOfCharset(own.charset, code_page_));
      });
}

int WriterTables::FontNumber(const std::string& name) {
  const auto named = std::ranges::find(fonts_, name, &Font::name);
  if (named != fonts_.end()) return named->number;
  const int number = FreeNumber();
  fonts_.push_back({number, name, 0, "\\fnil"});
  return number;
}

// Not the default font's, which stays without a name where the table doesn't list it.
int WriterTables::FreeNumber() const {
  int highest = default_number_;
  for (const Font& font : fonts_) highest = std::max(highest, font.number);
  if (highest < std::numeric_limits<int>::max()) return highest + 1;
  int number = 0;
  const auto is_taken = [&] {
    return number == default_number_ ||
           std::ranges::find(fonts_, number, &Font::number) != fonts_.end();
  };
  while (is_taken()) ++number;
  return number;
}

int WriterTables::CodePageOf(const std::string& font) const {
  const std::string& name = font.empty() ? default_font_ : font;
  return CodePageOfFont(fonts_, name, code_page_);
}

int WriterTables::ColorNumber(const std::optional<Color>& color) {
  if (colors_.empty()) colors_.emplace_back();
  const auto place = std::find(colors_.begin(), colors_.end(), color);
  const auto number = static_cast<int>(place - colors_.begin());
  if (place == colors_.end()) colors_.push_back(color);
  return number;
}

bool WriterTables::HasOwnColor() const {
  return colors_.empty() ||
         std::find(colors_.begin(), colors_.end(), std::nullopt) != colors_.end();
}

std::string WriterTables::Rtf() const {
  std::string rtf;
  if (!fonts_.empty()) rtf += "{\\fonttbl";
  for (const Font& font : fonts_) {
    rtf += "{" + Number("f", font.number) + font.other + Number("fcharset", font.charset) + ' ' +
           EscapeName(font.name, CodePageOfCharset(font.charset, code_page_)) + ";}";
  }
  if (!fonts_.empty()) rtf += "}\n";
  if (!colors_.empty()) rtf += "{\\colortbl";
  for (const std::optional<Color>& color : colors_) {
    if (color) {
      rtf +=
          Number("red", color->red) + Number("green", color->green) + Number("blue", color->blue);
    }
    rtf += ';';
  }
  if (!colors_.empty()) rtf += "}\n";
  return rtf;
}

namespace {

// What stands after \plain.
CharacterFormat DefaultCharacter(const WriterTables& tables) {
  CharacterFormat format;
  format.font = tables.default_font();
  // Readers differ in the size of East Asian letters that no word gives.
  if (tables.has_east_asian_fonts()) format.half_points = 0;
  return format;
}

// Those of the model, from one format to the other.
std::string OwnWords(const CharacterFormat& from, const CharacterFormat& to, WriterTables& tables) {
  std::string out;
  const auto shown = [&tables](const std::string& font) {
    return font.empty() ? tables.default_font() : font;
  };
  const std::string font = shown(to.font);
  if (font != shown(from.font)) out += Number("f", tables.FontNumber(font));
  if (to.half_points != from.half_points) out += Number("fs", to.half_points);
  if (to.bold != from.bold) out += Switch("b", to.bold);
  if (to.italic != from.italic) out += Switch("i", to.italic);
  if (to.strike != from.strike) out += Switch("strike", to.strike);
  if (to.underline != from.underline) {
    const std::string_view word = UnderlineWord(static_cast<int>(to.underline));
    out += word.empty() ? "\\ulnone" : "\\" + std::string(word);
  }
  if (to.script != from.script) out += ScriptWord(to.script);
  if (to.color != from.color) out += Number("cf", tables.ColorNumber(to.color));
  if (to.highlight != from.highlight) {
    const int number = tables.ColorNumber(to.highlight);
    out += Number("highlight", number) + Number("chcbpat", number);
  }
  return out;
}

}  // namespace

std::string AllCharacterWords(const CharacterFormat& format, WriterTables& tables) {
  CharacterFormat plain = DefaultCharacter(tables);
  // Readers are told the font behind its switch, the usual one too.
  const bool is_told = !format.font.empty() || !tables.default_font().empty();
  if (is_told && HoldsScripts(format.other)) plain.font = kNoFont;
  const std::string words = OwnWords(plain, format, tables);
  const std::size_t place = FindKept("f", format.other);
  if (place == std::string::npos) return "\\plain" + format.other + words;
  return "\\plain" + format.other.substr(0, place) + words +
         format.other.substr(place + kFontStandsHere.size());
}

std::string CharacterWords(const CharacterFormat& from, const CharacterFormat& to,
                           WriterTables& tables) {
  if (from == to) return {};
  const bool lacks_color = (from.color && !to.color) || (from.highlight && !to.highlight);
  // Only \plain leads to a default font that has no name.
  const bool loses_font = to.font.empty() && from.font != to.font && tables.default_font().empty();
  const bool starts_anew = loses_font || from.other != to.other ||
                           (lacks_color && !tables.HasOwnColor()) || HoldsKept("f", to.other);
  return starts_anew ? AllCharacterWords(to, tables) : OwnWords(from, to, tables);
}

std::string ParagraphWords(const ParagraphFormat& format, const ParagraphFormat* style) {
  constexpr std::array<const char*, 4> kAlignments = {"\\ql", "\\qc", "\\qr", "\\qj"};
  const bool is_styled = format.style != 0;
  // What neither has is left to readers, which have styles of these names of their own.
  const ParagraphFormat plain;
  const ParagraphFormat& base = style != nullptr ? *style : plain;
  const bool names_all = is_styled && style == nullptr;
  std::string out;
  const auto number = [&](std::string_view word, int value, int of_style) {
    if (names_all || value != 0 || of_style != 0) out += Number(word, value);
  };
  if (is_styled) out += Number("s", format.style);
  if (names_all || format.alignment != Alignment::kLeft || base.alignment != Alignment::kLeft) {
    out += kAlignments.at(static_cast<std::size_t>(format.alignment));
  }
  number("fi", format.first_line_indent, base.first_line_indent);
  number("li", format.left_indent, base.left_indent);
  number("ri", format.right_indent, base.right_indent);
  number("sb", format.space_before, base.space_before);
  number("sa", format.space_after, base.space_after);
  number("sl", format.line_spacing, base.line_spacing);
  number("slmult", format.line_spacing_is_multiple ? 1 : 0, base.line_spacing_is_multiple ? 1 : 0);
  if (format.page_break_before) out += "\\pagebb";
  for (const TabStop& tab : format.tabs) out += Tab(tab);
  return out += format.other;
}

}  // namespace tarnwell::richtext
