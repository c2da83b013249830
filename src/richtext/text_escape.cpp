#include "richtext/text_escape.h"

#include <algorithm>

#include "richtext/code_pages.h"
#include "text/code_page_1252.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

enum class Kind { kText, kSymbols, kName };

bool IsPlain(char c) {
  return c >= ' ' && static_cast<unsigned char>(c) < 0x80 && c != '\\' && c != '{' && c != '}';
}

void AppendByte(char byte, std::string& out) {
  constexpr char kDigits[] = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(byte);
  out += "\\'";
  out += kDigits[code >> 4];
  out += kDigits[code & 0xF];
}

void AppendFallback(char32_t character, int code_page, std::string& out) {
  std::string utf8;
  text::AppendUtf8(character, utf8);
  const std::string nearest = code_page == 1252 ? text::FromUtf8(text::Utf8(utf8)) : "?";
  const auto is_letter = [](char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; };
  if (nearest.size() != 1 || nearest == "?") {
    out += '?';
  } else if (is_letter(nearest.front())) {
    out += nearest;  // a blank or a digit would belong to the escape
  } else {
    AppendByte(nearest.front(), out);
  }
}

void AppendUnit(char32_t unit, std::string& out) {
  out += "\\u";
  out += std::to_string(static_cast<int>(unit) - (unit > 0x7FFF ? 0x10000 : 0));
}

void AppendUnicode(char32_t character, int code_page, std::string& out) {
  if (character > 0xFFFF) {
    AppendUnit(0xD800 + ((character - 0x10000) >> 10), out);
    out += '?';
    AppendUnit(0xDC00 + ((character - 0x10000) & 0x3FF), out);
    out += '?';
  } else {
    AppendUnit(character, out);
    AppendFallback(character, code_page, out);
  }
}

// The control of a character that has one; empty if it hasn't.
std::string_view ControlOf(char32_t character) {
  switch (character) {
    case U'\t':
      return "\\tab ";
    case U'\n':
      return "\\line ";
    case U'\f':
      return "\\page ";
    case 0xA0:
      return "\\~";
    case 0xAD:
      return "\\-";
    case 0x2011:
      return "\\_";
    default:
      return {};
  }
}

std::string Escape(std::string_view utf8, int code_page, Kind kind) {
  const auto is_plain = [kind](char c) { return kind == Kind::kSymbols ? c == ' ' : IsPlain(c); };
  std::string out;
  out.reserve(utf8.size() + utf8.size() / 8);
  while (!utf8.empty()) {
    const auto* const plain_end = std::find_if_not(utf8.begin(), utf8.end(), is_plain);
    out.append(utf8.begin(), plain_end);
    utf8.remove_prefix(static_cast<std::size_t>(plain_end - utf8.begin()));
    if (utf8.empty()) break;
    const char32_t character = text::TakeUtf8(utf8);
    const std::string_view control =
        kind != Kind::kName ? ControlOf(character) : std::string_view{};
    if (!control.empty()) {
      out += control;
    } else if (character >= 0x80 || (kind == Kind::kSymbols && character > ' ')) {
      AppendUnicode(character, code_page, out);
    } else if (character >= ' ') {
      out += '\\';
      out += static_cast<char>(character);
    }
  }
  return out;
}

}  // namespace

std::string EscapeText(std::string_view utf8, int code_page) {
  return Escape(utf8, code_page, code_page == kSymbolCodePage ? Kind::kSymbols : Kind::kText);
}

std::string EscapeName(std::string_view utf8, int code_page) {
  return Escape(utf8, code_page, Kind::kName);
}

}  // namespace tarnwell::richtext
