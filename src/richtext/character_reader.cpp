#include <algorithm>

#include "richtext/code_pages.h"
#include "richtext/format_reader.h"
#include "richtext/kept_words.h"
#include "richtext/limits.h"

namespace tarnwell::richtext {
namespace {

constexpr int kDefaultHalfPoints = 24;

void SetHidden(const Token& token, std::string_view source, FormatState& state) {
  std::string& other = state.character.other;
  RemoveKept(token.text, other);
  if (token.On()) KeepWord(source, other);
  state.hidden = IsHidden(other);
}

}  // namespace

void FormatTables::SetFont(int number, FormatState& state) const {
  const auto find = [this](int wanted) {
    return std::find_if(fonts.begin(), fonts.end(),
                        [wanted](const Font& font) { return font.number == wanted; });
  };
  auto font = find(number);
  if (font == fonts.end()) font = find(default_font);
  const bool known = font != fonts.end();
  state.character.font = known ? font->name : std::string();
  state.text_code_page = known ? CodePageOfCharset(font->charset, code_page) : code_page;
}

std::optional<Color> FormatTables::ColorAt(int index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= colors.size()) return std::nullopt;
  return colors[static_cast<std::size_t>(index)];
}

void ResetCharacter(const FormatTables& tables, FormatState& state) {
  state.character = CharacterFormat{};
  state.hidden = false;
  state.font_place = {};
  tables.SetFont(tables.default_font, state);
}

void ApplyCharacterWord(const KnownWord& word, const Token& token, std::string_view source,
                        const FormatTables& tables, FormatState& state) {
  CharacterFormat& format = state.character;
  switch (word.word) {
    case Word::kPlain:
      return ResetCharacter(tables, state);
    case Word::kBold:
      format.bold = token.On();
      return;
    case Word::kItalic:
      format.italic = token.On();
      return;
    case Word::kStrike:
      format.strike = token.On();
      return;
    case Word::kUnderline:
      format.underline = token.On() ? static_cast<Underline>(word.value) : Underline::kNone;
      return;
    case Word::kSuper:
      format.script = token.On() ? Script::kSuperscript : Script::kBaseline;
      return;
    case Word::kSub:
      format.script = token.On() ? Script::kSubscript : Script::kBaseline;
      return;
    case Word::kNoSuperSub:
      format.script = Script::kBaseline;
      return;
    case Word::kFont:
      state.font_place = FontPlaceIn(format.other);
      state.is_settled = false;
      return tables.SetFont(token.NumberOr(0), state);
    case Word::kSize:
      format.half_points = std::clamp(token.NumberOr(kDefaultHalfPoints), 1, kLargestHalfPoints);
      return;
    case Word::kColor:
      format.color = tables.ColorAt(token.NumberOr(0));
      return;
    case Word::kHighlight:
      format.highlight = tables.ColorAt(token.NumberOr(0));
      return;
    case Word::kHidden:
      return SetHidden(token, source, state);
    default:
      state.is_settled = false;
      if (token.text == "chbrdr") RemoveBorder(format.other);
      return KeepProperty(token.text, source, format.other);
  }
}

}  // namespace tarnwell::richtext
