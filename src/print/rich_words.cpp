#include "print/rich_words.h"

#include <algorithm>

#include "text/utf8.h"

namespace tarnwell::print {
namespace {

// A longer word is broken in any case, so that reading it again for each line stays cheap.
constexpr std::size_t kLongestWord = 400;  // bytes

constexpr char32_t kSoftHyphen = 0xAD;
constexpr char32_t kZeroWidthSpace = 0x200B;

// Scripts that are written without blanks.
bool IsIdeograph(char32_t c) {
  return (c >= 0x2E80 && c <= 0x9FFF) || (c >= 0xAC00 && c <= 0xD7A3) ||
         (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFF00 && c <= 0xFF60) ||
         (c >= 0x20000 && c <= 0x3FFFD);
}

bool Opens(char32_t c) {
  return std::u32string_view(U"([{\u3008\u300A\u300C\u300E\u3010\uFF08").find(c) !=
         std::u32string_view::npos;
}

bool Closes(char32_t c) {
  return std::u32string_view(
             U")]}.,:;!?\u3001\u3002\u3009\u300B\u300D\u300F\u3011\uFF01\uFF09"
             U"\uFF0C\uFF0E\uFF1A\uFF1B\uFF1F")
             .find(c) != std::u32string_view::npos;
}

bool EndsPart(char32_t c) {
  return c == '-' || c == kSoftHyphen || c == 0x2010 || c == 0x2013 || c == 0x2014 ||
         c == kZeroWidthSpace;
}

bool MayBreakBetween(char32_t before, char32_t after) {
  if (before == 0) return false;
  if (EndsPart(before)) return !EndsPart(after);
  return (IsIdeograph(before) || IsIdeograph(after)) && !Opens(before) && !Closes(after);
}

bool IsMark(char c) { return c == '\t' || c == '\n' || c == '\f'; }

void TakeMark(char mark, int style, RichWord& word) {
  word.kind = mark == '\t'   ? RichWord::Kind::kTab
              : mark == '\n' ? RichWord::Kind::kLineBreak
                             : RichWord::Kind::kPageBreak;
  word.style = style;
  ++word.end.byte;
}

void AddPart(int style, std::string_view text, RunPlace begin, std::vector<RichPart>& parts) {
  if (!text.empty()) parts.push_back({style, text, begin});
}

}  // namespace

void RichWordReader::Read(RunPlace place, RichWord& word) {
  word.kind = RichWord::Kind::kEnd;
  word.parts.clear();
  word.blanks.clear();
  word.is_hyphenated = false;
  last_ = 0;
  length_ = 0;
  for (word.end = place; word.end.run < paragraph_.runs.size(); word.end = {word.end.run + 1, 0}) {
    const richtext::Run& run = paragraph_.runs[word.end.run];
    if (std::holds_alternative<richtext::Opaque>(run.content)) continue;
    const bool is_first = word.kind == RichWord::Kind::kEnd;
    const int style = styles_.Find(run.format);
    if (const auto* picture = std::get_if<richtext::Picture>(&run.content)) {
      if (!is_first) return;
      word.kind = RichWord::Kind::kPicture;
      word.style = style;
      word.picture = picture;
      word.end = {word.end.run + 1, 0};
      return;
    }
    const std::string_view text = std::get<std::string>(run.content);
    if (word.end.byte >= text.size()) continue;
    if (IsMark(text[word.end.byte])) {
      if (is_first) TakeMark(text[word.end.byte], style, word);
      return;
    }
    word.kind = RichWord::Kind::kWord;
    if (!ReadText(text, style, word)) return;
  }
}

bool RichWordReader::ReadText(std::string_view text, int style, RichWord& word) {
  if (!word.blanks.empty()) return ReadBlanks(text, style, word);
  const RunPlace begin = word.end;
  const auto take_until = [&](std::size_t byte) {
    AddPart(style, text.substr(begin.byte, byte - begin.byte), begin, word.parts);
    word.end.byte = byte;
  };
  for (std::size_t byte = begin.byte; byte < text.size();) {
    if (text[byte] == ' ') {
      take_until(byte);
      return ReadBlanks(text, style, word);
    }
    std::string_view rest = text.substr(byte);
    const char32_t next = text::TakeUtf8(rest);
    const std::size_t size = text.size() - byte - rest.size();
    const bool is_too_long = length_ + size > kLongestWord && length_ > 0;
    // A dash that begins a word is a sign: it stays with what follows.
    const bool is_sign = length_ == 1;
    if (IsMark(text[byte]) || is_too_long || (!is_sign && MayBreakBetween(last_, next))) {
      take_until(byte);
      return false;
    }
    last_ = next;
    length_ += size;
    if (next == kSoftHyphen || next == kZeroWidthSpace) {
      take_until(byte);
      word.is_hyphenated = next == kSoftHyphen;
      word.end.byte += size;
      return false;
    }
    byte += size;
  }
  take_until(text.size());
  return true;
}

bool RichWordReader::ReadBlanks(std::string_view text, int style, RichWord& word) {
  const RunPlace begin = word.end;
  word.end.byte = std::min(text.find_first_not_of(' ', begin.byte), text.size());
  AddPart(style, text.substr(begin.byte, word.end.byte - begin.byte), begin, word.blanks);
  return word.end.byte == text.size();
}

}  // namespace tarnwell::print
