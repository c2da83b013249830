// Control words to formats.

#pragma once

#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "richtext/rich_document.h"
#include "richtext/rtf_tokenizer.h"
#include "richtext/rtf_words.h"
#include "richtext/script_words.h"

namespace tarnwell::richtext {

// What a group inherits from the group around it and gives back at its end.
struct FormatState {
  CharacterFormat character;
  ParagraphFormat paragraph;
  int paragraph_version = 0;  // another one wherever a word has changed `paragraph`
  TabStop next_tab;           // what the words before a tab's position said
  int text_code_page = 1252;
  int unicode_skip = 1;  // bytes behind a \u that stand for it in older readers
  int field = kNoField;
  FontPlace font_place;
  bool is_settled = true;  // character.other is in the order that SettleScripts gives it
  bool hidden = false;
  bool in_table = false;
};

struct Style {
  CharacterFormat character;
  ParagraphFormat paragraph;
};

// The tables at the head of a document.
struct FormatTables {
  int code_page = 1252;
  int default_font = 0;
  std::vector<Font> fonts;
  std::vector<std::optional<Color>> colors;
  std::map<int, Style> styles;

  // The font's name and its text's code page; for a number that isn't listed the default font, or
  // no name.
  void SetFont(int number, FormatState& state) const;
  std::optional<Color> ColorAt(int index) const;
};

// Before `state` is the format of something.
inline void Settle(FormatState& state) {
  if (std::exchange(state.is_settled, true)) return;
  const bool has_font = !state.character.font.empty();
  SettleScripts(has_font ? state.font_place : FontPlace{}, state.character.other);
}

// What stands after \plain.
void ResetCharacter(const FormatTables& tables, FormatState& state);

// `word` is a kCharacter or kKeptCharacter or kUnknown, `source` as WordSource gives it.
void ApplyCharacterWord(const KnownWord& word, const Token& token, std::string_view source,
                        const FormatTables& tables, FormatState& state);

// `word` is a kParagraph, other than kNesting, or a kKeptParagraph.
void ApplyParagraphWord(const KnownWord& word, const Token& token, std::string_view source,
                        const FormatTables& tables, FormatState& state);

}  // namespace tarnwell::richtext
