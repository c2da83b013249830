#include <algorithm>

#include "proofing/words.h"
#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::proofing {
namespace {

constexpr char kDots = '\x85';  // "..." as one character

// In one line.
std::string Narrow(std::string_view utf8) {
  std::string narrow = text::FromUtf8(text::Utf8(utf8));
  std::ranges::replace_if(
      narrow, [](char c) { return c >= '\0' && c < ' '; }, ' ');
  return narrow;
}

// Where the sentence that holds `place` begins and ends.
std::size_t SentenceBegin(std::string_view text, std::size_t place) {
  while (place > 0) {
    const char before = text[place - 1];
    const bool blank_here = place < text.size() && text[place] == ' ';
    if (before == '\n' || before == '\r') break;
    if (blank_here && (before == '.' || before == '!' || before == '?')) break;
    --place;
  }
  return place;
}

std::size_t SentenceEnd(std::string_view text, std::size_t place) {
  for (; place < text.size(); ++place) {
    if (text[place] == '\n' || text[place] == '\r') return place;
    if (text[place] != '.' && text[place] != '!' && text[place] != '?') continue;
    if (place + 1 == text.size() || text[place + 1] == ' ') return place + 1;
  }
  return place;
}

}  // namespace

Surroundings SurroundingsOf(std::string_view text, const WordPlace& word, std::size_t width) {
  const std::size_t begin = SentenceBegin(text, word.offset);
  const std::size_t end = SentenceEnd(text, word.end());
  Surroundings pieces{Narrow(text.substr(begin, word.offset - begin)), Narrow(word.In(text)),
                      Narrow(text.substr(word.end(), end - word.end()))};
  pieces.before.erase(0, std::min(pieces.before.find_first_not_of(' '), pieces.before.size()));
  pieces.after = text::TrimRight(pieces.after);
  if (pieces.before.size() > width) {
    const std::size_t cut = pieces.before.size() - width;
    pieces.before =
        kDots + pieces.before.substr(std::max(cut, pieces.before.find(' ', cut - 1) + 1));
  }
  if (pieces.after.size() > width) {
    const std::size_t blank = pieces.after.rfind(' ', width);
    pieces.after.resize(blank == std::string::npos || blank == 0 ? width : blank);
    pieces.after += kDots;
  }
  if (pieces.word.size() > width) {
    pieces.word.resize(width);
    pieces.word += kDots;
  }
  return pieces;
}

}  // namespace tarnwell::proofing
