#include "richtext/head_tables.h"
#include "richtext/rtf_capture.h"
#include "richtext/rtf_tokenizer.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kMostStyles = 1024;

// The number of the style and what it is based on; number 0 is no paragraph style.
struct StyleNumbers {
  int number = 0;
  int base = 0;
};

StyleNumbers ReadNumbers(std::string_view body) {
  StyleNumbers numbers;
  Tokenizer tokenizer(body);
  for (Token token = tokenizer.Next(); token.kind != TokenKind::kEnd; token = tokenizer.Next()) {
    if (token.kind == TokenKind::kSymbol && token.text == "*") return {};  // a character style
    if (token.IsWord("s")) numbers.number = token.NumberOr(0);
    if (token.IsWord("sbasedon")) numbers.base = token.NumberOr(0);
  }
  return numbers;
}

void ReadStyle(std::string_view body, FormatTables& tables) {
  const StyleNumbers numbers = ReadNumbers(body);
  if (numbers.number == 0 || tables.styles.size() >= kMostStyles) return;
  FormatState state;
  ResetCharacter(tables, state);
  const auto base = tables.styles.find(numbers.base);
  if (base != tables.styles.end()) {
    state.character = base->second.character;
    state.paragraph = base->second.paragraph;
  }
  Tokenizer tokenizer(body);
  for (Token token = tokenizer.Next(); token.kind != TokenKind::kEnd; token = tokenizer.Next()) {
    if (token.kind != TokenKind::kWord) continue;
    const KnownWord word = FindWord(token.text);
    const std::string_view source = WordSource(tokenizer, token);
    if (word.word_class == WordClass::kCharacter) {
      ApplyCharacterWord(word, token, source, tables, state);
    } else if (word.word_class == WordClass::kParagraph && word.word != Word::kStyle) {
      ApplyParagraphWord(word, token, source, tables, state);
    }
  }
  tables.styles[numbers.number] = {std::move(state.character), std::move(state.paragraph)};
}

}  // namespace

void ReadStyles(std::string_view body, FormatTables& tables) {
  Tokenizer tokenizer(body);
  for (Token token = tokenizer.Next(); token.kind != TokenKind::kEnd; token = tokenizer.Next()) {
    if (token.kind != TokenKind::kGroupStart) continue;
    const auto style = CaptureGroup(tokenizer, token.end);
    if (!style) return;
    ReadStyle(style->body, tables);
    tokenizer.Next();
  }
}

}  // namespace tarnwell::richtext
