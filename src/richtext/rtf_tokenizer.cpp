#include "richtext/rtf_tokenizer.h"

#include <algorithm>
#include <limits>

#include "text/letters.h"

namespace tarnwell::richtext {
namespace {

int HexValue(char c) {
  if (text::IsAsciiDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

int NumberOf(std::string_view digits) {
  const bool negative = digits.front() == '-';
  if (negative) digits.remove_prefix(1);
  long long value = 0;
  for (const char digit : digits) {
    value = std::min<long long>(value * 10 + (digit - '0'), std::numeric_limits<int>::max());
  }
  return static_cast<int>(negative ? -value : value);
}

}  // namespace

Token Tokenizer::Make(TokenKind kind, std::size_t text_begin, std::size_t text_end,
                      std::size_t end) {
  Token token;
  token.kind = kind;
  token.text = source_.substr(text_begin, text_end - text_begin);
  token.begin = place_;
  token.end = end;
  place_ = end;
  return token;
}

Token Tokenizer::Next() {
  while (place_ < source_.size() && (source_[place_] == '\r' || source_[place_] == '\n')) ++place_;
  if (place_ >= source_.size()) return Make(TokenKind::kEnd, place_, place_, place_);
  switch (source_[place_]) {
    case '{':
      return Make(TokenKind::kGroupStart, place_, place_ + 1, place_ + 1);
    case '}':
      return Make(TokenKind::kGroupEnd, place_, place_ + 1, place_ + 1);
    case '\\':
      return TakeControl();
    default:
      return TakeText();
  }
}

Token Tokenizer::TakeText() {
  const std::size_t found = source_.find_first_of("{}\\\r\n", place_);
  const std::size_t end = std::min(found, source_.size());
  return Make(TokenKind::kText, place_, end, end);
}

Token Tokenizer::TakeControl() {
  const std::size_t sign = place_ + 1;
  if (sign >= source_.size()) return Make(TokenKind::kEnd, place_, place_, place_);
  if (text::IsAsciiLetter(source_[sign])) return TakeWord();
  if (source_[sign] == '\'') return TakeByte();
  return Make(TokenKind::kSymbol, sign, sign + 1, sign + 1);
}

Token Tokenizer::TakeByte() {
  const std::size_t digits = place_ + 2;
  if (source_.size() < digits + 2) return Make(TokenKind::kEnd, place_, place_, place_);
  const int high = HexValue(source_[digits]);
  const int low = HexValue(source_[digits + 1]);
  if (high < 0 || low < 0) return Make(TokenKind::kSymbol, place_ + 1, digits, digits);
  Token token = Make(TokenKind::kByte, digits, digits + 2, digits + 2);
  token.has_number = true;
  token.number = high * 16 + low;
  return token;
}

Token Tokenizer::TakeWord() {
  const std::size_t name = place_ + 1;
  std::size_t end = name;
  while (end < source_.size() && text::IsAsciiLetter(source_[end])) ++end;
  const std::size_t name_end = end;
  std::size_t digits = end;
  if (digits < source_.size() && source_[digits] == '-') ++digits;
  std::size_t digits_end = digits;
  while (digits_end < source_.size() && text::IsAsciiDigit(source_[digits_end])) ++digits_end;
  const bool has_number = digits_end > digits;
  if (has_number) end = digits_end;
  const std::size_t number_end = end;
  if (end < source_.size() && source_[end] == ' ') ++end;

  Token token = Make(TokenKind::kWord, name, name_end, end);
  token.has_number = has_number;
  if (has_number) token.number = NumberOf(source_.substr(name_end, number_end - name_end));
  if (token.text != "bin" || token.number <= 0) return token;
  const std::size_t begin = token.begin;
  Token binary = TakeBinary(token.number);
  binary.begin = begin;
  return binary;
}

Token Tokenizer::TakeBinary(int length) {
  const std::size_t left = source_.size() - place_;
  const std::size_t size = std::min(static_cast<std::size_t>(length), left);
  Token token = Make(TokenKind::kBinary, place_, place_ + size, place_ + size);
  token.cut = size < static_cast<std::size_t>(length);
  return token;
}

}  // namespace tarnwell::richtext
