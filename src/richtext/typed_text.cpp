#include "richtext/typed_text.h"

#include "richtext/limits.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

constexpr char32_t kPictureCharacter = 0xFFFC;
constexpr char32_t kParagraphSeparator = 0x2029;
constexpr std::string_view kLineSeparator = "\u2028";

bool IsControl(char32_t character) {
  return character < ' ' || (character >= 0x7F && character < 0xA0);
}

}  // namespace

std::string TypedText(std::string_view utf8) {
  std::string text;
  std::size_t line = 0;  // where it begins
  while (!utf8.empty()) {
    const bool is_pair = utf8.starts_with("\r\n");
    if (is_pair) utf8.remove_prefix(1);
    char32_t character = text::TakeUtf8(utf8);
    if (character == '\r' || character == kParagraphSeparator) character = '\n';
    const bool is_kept = character == '\n' || character == '\t' || character == '\f';
    if (is_kept || (!IsControl(character) && character != kPictureCharacter)) {
      if (character != '\n' && text.size() - line >= kLongestPasted) {
        text += '\n';
        line = text.size();
      }
      text::AppendUtf8(character, text);
      if (character == '\n') line = text.size();
    }
  }
  return text;
}

std::string WithLineBreaks(std::string_view part) {
  std::string text(part);
  for (std::size_t at = 0; (at = text.find(kLineSeparator, at)) != std::string::npos; ++at) {
    text.replace(at, kLineSeparator.size(), "\n");
  }
  return text;
}

}  // namespace tarnwell::richtext
