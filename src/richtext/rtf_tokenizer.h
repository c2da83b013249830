// RTF cut into its smallest parts, each with its place in the source.

#pragma once

#include <cstddef>
#include <string_view>

namespace tarnwell::richtext {

enum class TokenKind { kEnd, kGroupStart, kGroupEnd, kWord, kSymbol, kByte, kText, kBinary };

struct Token {
  TokenKind kind = TokenKind::kEnd;
  // A word's name without backslash and number, a symbol's one character, the bytes of a text
  // (without line ends) or of binary data.
  std::string_view text;
  bool has_number = false;
  int number = 0;    // of a word, held within the range of int; the value of \'hh
  bool cut = false;  // binary data that is shorter than it says
  std::size_t begin = 0;
  std::size_t end = 0;

  bool IsWord(std::string_view name) const { return kind == TokenKind::kWord && text == name; }
  bool On() const { return !has_number || number != 0; }
  int NumberOr(int value) const { return has_number ? number : value; }
};

// A part that the source breaks off inside is not given: the source ends before it.
class Tokenizer {
 public:
  explicit Tokenizer(std::string_view source, std::size_t place = 0)
      : source_(source), place_(place) {}

  Token Next();
  void Seek(std::size_t place) { place_ = place; }
  std::size_t place() const { return place_; }
  std::string_view Source(const Token& token) const {
    return source_.substr(token.begin, token.end - token.begin);
  }
  std::string_view source() const { return source_; }

 private:
  Token TakeControl();
  Token TakeWord();
  Token TakeByte();
  Token TakeText();
  Token TakeBinary(int length);
  Token Make(TokenKind kind, std::size_t text_begin, std::size_t text_end, std::size_t end);

  std::string_view source_;
  std::size_t place_ = 0;
};

}  // namespace tarnwell::richtext
