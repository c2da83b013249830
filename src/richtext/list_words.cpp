#include "richtext/list_words.h"

#include <algorithm>
#include <utility>

#include "richtext/code_pages.h"
#include "richtext/rtf_tokenizer.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kLongestMarker = 64;

// Places of the symbol fonts to what stands there.
constexpr struct {
  char32_t symbol;
  char32_t character;
} kBullets[] = {
    {0xF0B7, 0x2022}, {0xF0A7, 0x25AA}, {0xF0A8, 0x25FB}, {0xF06E, 0x25A0}, {0xF06F, 0x25A1},
    {0xF076, 0x2756}, {0xF0D8, 0x27A2}, {0xF0E0, 0x2192}, {0xF0FC, 0x2713}, {0xF0FE, 0x2612},
};

char32_t ShownBullet(char32_t symbol) {
  for (const auto& bullet : kBullets) {
    if (bullet.symbol == symbol) return bullet.character;
  }
  return symbol;
}

class MarkerReader {
 public:
  MarkerReader(const FormatTables& tables, FormatState state)
      : tables_(tables), state_(std::move(state)) {}

  void Take(const Token& token) {
    if (skip_ > 0 && token.kind != TokenKind::kWord) return Skip(token);
    if (token.kind == TokenKind::kText) TakeBytes(token.text);
    if (token.kind == TokenKind::kByte) {
      const char byte = static_cast<char>(token.number);
      TakeBytes(std::string_view(&byte, 1));
    }
    if (token.kind == TokenKind::kSymbol) TakeSymbol(token.text.front());
    if (token.kind == TokenKind::kWord) TakeWord(token);
  }

  // Without the tab and the blanks behind it.
  std::string Marker() const {
    std::string marker;
    for (std::string_view rest = utf8_; !rest.empty() && marker.size() < kLongestMarker;) {
      const char32_t character = ShownBullet(text::TakeUtf8(rest));
      if (character >= ' ') text::AppendUtf8(character, marker);
    }
    marker.erase(marker.find_last_not_of(' ') + 1);
    marker.erase(0, std::min(marker.find_first_not_of(' '), marker.size()));
    return marker;
  }

 private:
  void TakeWord(const Token& token) {
    const KnownWord word = FindWord(token.text);
    if (word.word == Word::kFont) tables_.SetFont(token.number, state_);
    if (word.word == Word::kPlain) ResetCharacter(tables_, state_);
    if (word.word_class == WordClass::kCharacterOf) {
      text::AppendUtf8(static_cast<char32_t>(word.value), utf8_);
    }
    if (word.word != Word::kUnicode) return;
    joiner_.Take(static_cast<char16_t>(token.number & 0xFFFF), utf8_);
    skip_ = state_.unicode_skip;
  }

  void TakeSymbol(char symbol) {
    if (symbol == '\\' || symbol == '{' || symbol == '}') TakeBytes(std::string_view(&symbol, 1));
    if (symbol == '~') text::AppendUtf8(0xA0, utf8_);
    if (symbol == '-') text::AppendUtf8(0xAD, utf8_);
    if (symbol == '_') text::AppendUtf8(0x2011, utf8_);
  }

  void Skip(const Token& token) {
    const auto skip = static_cast<std::size_t>(std::exchange(skip_, 0));
    if (token.kind != TokenKind::kText) return;
    TakeBytes(token.text.substr(std::min(skip, token.text.size())));
  }

  void TakeBytes(std::string_view bytes) { decoder_.Take(bytes, state_.text_code_page, utf8_); }

  const FormatTables& tables_;
  FormatState state_;
  ByteDecoder decoder_;
  std::string utf8_;
  text::Utf16Joiner joiner_;
  int skip_ = 0;
};

}  // namespace

std::string PlainListDescription(bool numbered) {
  return numbered ? "{\\*\\pn\\pnlvlbody\\pndec\\pnstart1\\pnindent360{\\pntxta .}}"
                  : "{\\*\\pn\\pnlvlblt\\pnindent360{\\pntxtb\\'b7}}";
}

std::string LetterListDescription() {
  return "{\\*\\pn\\pnlvlbody\\pnlcltr\\pnstart1\\pnindent360{\\pntxta .}}";
}

bool DescribesNumbers(std::string_view description) {
  return description.find("\\pnlvlblt") == std::string_view::npos;
}

bool IsNumber(std::string_view marker) {
  const auto counts = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
  };
  return marker != "o" && std::any_of(marker.begin(), marker.end(), counts);
}

std::string ReadMarker(std::string_view body, const FormatTables& tables, FormatState state) {
  MarkerReader reader(tables, std::move(state));
  Tokenizer tokenizer(body);
  for (Token token = tokenizer.Next(); token.kind != TokenKind::kEnd; token = tokenizer.Next()) {
    reader.Take(token);
  }
  return reader.Marker();
}

}  // namespace tarnwell::richtext
