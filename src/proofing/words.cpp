#include "proofing/words.h"

#include <algorithm>

#include "proofing/addresses.h"
#include "text/code_page_1252.h"
#include "text/letters.h"
#include "text/utf8.h"

namespace tarnwell::proofing {
namespace {

enum class Kind { kBlank, kLetter, kForeignLetter, kApostrophe, kDigit, kOther };

constexpr char32_t kRightQuote = 0x2019;
constexpr char32_t kSoftHyphen = 0xAD;
constexpr char32_t kNoBreakSpace = 0xA0;

bool IsIn(char32_t character, char32_t first, char32_t last) {
  return character >= first && character <= last;
}

// Of a character that isn't ASCII.
Kind KindOfWide(char32_t character) {
  if (character == kNoBreakSpace) return Kind::kBlank;
  if (character == kRightQuote) return Kind::kApostrophe;
  if (character == kSoftHyphen) return Kind::kLetter;
  std::string utf8;
  text::AppendUtf8(character, utf8);
  const text::Utf8 wide(utf8);
  const std::string narrow = text::FromUtf8(wide);
  if (text::ToUtf8(narrow) != wide) {
    // Punctuation, signs and drawings part words as they do in the code page.
    const bool sign = IsIn(character, 0x2000, 0x2BFF) || IsIn(character, 0x3000, 0x303F) ||
                      IsIn(character, 0xE000, 0xF8FF) || IsIn(character, 0xFE00, 0xFE0F) ||
                      IsIn(character, 0xFFF0, 0xFFFF) || IsIn(character, 0x1F000, 0x1FAFF);
    return sign ? Kind::kOther : Kind::kForeignLetter;
  }
  const bool has_cases = text::UpperCase(narrow) != narrow || text::LowerCase(narrow) != narrow;
  return has_cases || character == 0xDF ? Kind::kLetter : Kind::kOther;  // DF is the sharp s
}

Kind KindOf(char32_t character) {
  if (character >= 0x80) return KindOfWide(character);
  if (character == ' ' || IsIn(character, '\t', '\r')) return Kind::kBlank;
  if (IsIn(character | 0x20, 'a', 'z')) return Kind::kLetter;
  if (IsIn(character, '0', '9')) return Kind::kDigit;
  return character == '\'' ? Kind::kApostrophe : Kind::kOther;
}

bool IsLetterAt(std::string_view text, std::size_t place) {
  return place < text.size() && IsIn(static_cast<unsigned char>(text[place]) | 0x20, 'a', 'z');
}

bool BeginsLine(std::string_view text, std::size_t place) {
  while (place > 0 && (text[place - 1] == ' ' || text[place - 1] == '\t')) --place;
  return place == 0 || text[place - 1] == '\r' || text[place - 1] == '\n';
}

// A letter that numbers a paragraph, "i." or "i)" at its beginning or "(i)", or stands in an
// abbreviation, "i.e.".
bool IsLoneLetter(std::string_view text, const WordPlace& word) {
  if (word.length != 1) return false;
  const std::size_t begin = word.offset;
  const char behind = word.end() < text.size() ? text[word.end()] : ' ';
  const bool in_bracket = begin > 0 && text[begin - 1] == '(';
  if (behind == ')' && in_bracket) return true;
  if ((behind == ')' || behind == '.') && BeginsLine(text, begin)) return true;
  if (behind == ')') return text[begin] != 'i';
  if (behind == '.' && IsLetterAt(text, word.end() + 1)) return true;
  return begin >= 2 && text[begin - 1] == '.' && IsLetterAt(text, begin - 2);
}

// Puts the words together, one character after the other.
class WordCollector {
 public:
  void Take(Kind kind, std::size_t begin, std::size_t end) {
    switch (kind) {
      case Kind::kBlank:
      case Kind::kOther:
        return Close();
      case Kind::kApostrophe:
        return;  // a letter behind it takes it in
      case Kind::kLetter:
      case Kind::kForeignLetter:
      case Kind::kDigit:
        if (length_ == 0) begin_ = begin;
        length_ = end - begin_;
        checkable_ = checkable_ && kind == Kind::kLetter;
    }
  }
  void Close() {
    if (length_ > 0 && checkable_) words_.push_back({begin_, length_});
    length_ = 0;
    checkable_ = true;
  }
  std::vector<WordPlace> words() && { return std::move(words_); }

  // Drops the words from `begin` on.
  void Forget(std::size_t begin) {
    while (!words_.empty() && words_.back().offset >= begin) words_.pop_back();
  }

 private:
  std::vector<WordPlace> words_;
  std::size_t begin_ = 0;
  std::size_t length_ = 0;
  bool checkable_ = true;
};

}  // namespace

std::vector<WordPlace> WordsOf(std::string_view text) {
  WordCollector collector;
  std::size_t run = 0;  // where the run without blanks began
  const auto end_run = [&](std::size_t end) {
    collector.Close();
    if (IsAddress(text.substr(run, end - run))) collector.Forget(run);
  };
  for (std::string_view rest = text; !rest.empty();) {
    const std::size_t begin = text.size() - rest.size();
    const Kind kind = KindOf(text::TakeUtf8(rest));
    const std::size_t end = text.size() - rest.size();
    if (kind == Kind::kBlank) {
      end_run(begin);
      run = end;
    }
    collector.Take(kind, begin, end);
  }
  end_run(text.size());
  std::vector<WordPlace> words = std::move(collector).words();
  std::erase_if(words, [&](const WordPlace& word) { return IsLoneLetter(text, word); });
  return words;
}

std::string_view LineAround(std::string_view text, const WordPlace& word) {
  const std::size_t before = text.find_last_of("\r\n", word.offset);
  const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
  const std::size_t end = text.find_first_of("\r\n", word.end());
  return text.substr(begin, end == std::string_view::npos ? end : end - begin);
}

bool StandTogether(std::string_view text, const WordPlace& first, const WordPlace& second) {
  const std::string_view gap = text.substr(first.end(), second.offset - first.end());
  return !gap.empty() && gap.find_first_not_of(' ') == std::string_view::npos;
}

std::string DictionaryForm(std::string_view word) {
  constexpr char kNarrowRightQuote = '\x92';
  constexpr char kNarrowSoftHyphen = '\xAD';
  std::string form = text::FromUtf8(text::Utf8(word));
  std::erase(form, kNarrowSoftHyphen);
  std::ranges::replace(form, kNarrowRightQuote, '\'');
  return form;
}

}  // namespace tarnwell::proofing
