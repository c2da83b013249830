#include "proofing/spelling_session.h"

#include <algorithm>

#include "proofing/capitals.h"
#include "proofing/corrections.h"
#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::proofing {
namespace {

// The correction in UTF-8, with the typographic apostrophe where the wrong word has one.
std::string InApostrophesOf(std::string_view wrong_utf8, std::string_view right) {
  std::string written(right);
  if (wrong_utf8.find("\u2019") != std::string_view::npos) {
    std::ranges::replace(written, '\'', '\x92');
  }
  return text::ToUtf8(written).bytes();
}

}  // namespace

SpellingSession::SpellingSession(forms::Speller& speller, storage::ProgramFolder& folder,
                                 CheckedText& text)
    : speller_(speller), text_(text), user_words_(folder) {}

bool SpellingSession::OpenPart(int part) {
  if (part >= text_.parts()) return false;
  part_ = part;
  content_ = text_.part(part);
  words_ = WordsOf(content_);
  next_ = 0;
  return true;
}

bool SpellingSession::FindNext() {
  while (true) {
    while (next_ == words_.size()) {
      if (!OpenPart(part_ + 1)) return false;
    }
    const WordPlace place = words_[next_++];
    if (CorrectPair(place) || !NeedsAnswer(place)) continue;
    in_hand_ = place;
    text_.Show(part_, place.offset, place.length);
    return true;
  }
}

// Corrects two words that the table has together. `next_` is behind the first.
bool SpellingSession::CorrectPair(const WordPlace& first) {
  if (next_ == words_.size() || !StandTogether(content_, first, words_[next_])) return false;
  const WordPlace second = words_[next_];
  const std::string word = DictionaryForm(first.In(content_));
  const std::string_view right = FindCorrection(word, DictionaryForm(second.In(content_)));
  if (right.empty()) return false;
  const WordPlace both{first.offset, second.end() - first.offset};
  Replace(both, WithCapitalsOf(word, right),
          {text::FromUtf8(text::Utf8(both.In(content_))), std::string(right)});
  return true;
}

// Corrects the word if that needs no answer. Afterwards `word_` is the word.
bool SpellingSession::NeedsAnswer(const WordPlace& place) {
  word_ = DictionaryForm(place.In(content_));
  if (user_words_.Has(word_) || ignored_.contains(word_)) {
    result_.kept.insert(word_);
    return false;
  }
  std::string right;
  if (const auto found = change_all_.find(text::LowerCase(word_)); found != change_all_.end()) {
    right = found->second;
  } else {
    if (IsRight()) return false;
    right = FindCorrection(word_);
    if (right.empty() || StandsOutInCapitals(place)) {
      result_.kept.insert(word_);  // until it is changed
      return true;
    }
  }
  const std::string written = WithCapitalsOf(word_, right);
  if (written != word_) Replace(place, written, {word_, right});
  return false;
}

// The dictionary may take "i" for the letter. Without a dictionary only the table's words are
// wrong.
bool SpellingSession::IsRight() const {
  if (word_ == "i") return false;
  if (!speller_.available()) return FindCorrection(word_).empty();
  return speller_.IsCorrect(word_);
}

bool SpellingSession::StandsOutInCapitals(const WordPlace& place) const {
  if (word_.size() < 2 || text::UpperCase(word_) != word_) return false;
  const std::string line = text::FromUtf8(text::Utf8(LineAround(content_, place)));
  return text::UpperCase(line) != line;
}

Surroundings SpellingSession::surroundings(std::size_t width) const {
  return SurroundingsOf(content_, in_hand_, width);
}

std::vector<std::string> SpellingSession::Suggestions() {
  std::vector<std::string> words = speller_.Suggest(word_);
  const std::string_view right = FindCorrection(word_);
  if (right.empty()) return words;
  const std::string best = WithCapitalsOf(word_, right);
  std::erase(words, best);
  words.insert(words.begin(), best);
  return words;
}

// What the change list says for the word in hand. A word that is written with a capital everywhere
// keeps it: then the dictionary doesn't have it without.
std::string SpellingSession::SmallForm(std::string_view right) {
  std::string small = WithoutCapitalsOf(word_, right);
  return speller_.IsCorrect(small) ? small : std::string(right);
}

void SpellingSession::Change(std::string_view right) {
  Replace(in_hand_, right, {word_, SmallForm(right)});
}

void SpellingSession::ChangeAll(std::string_view right) {
  change_all_[text::LowerCase(word_)] = SmallForm(right);
  Change(right);
}

// Goes on behind the replacement, which isn't checked itself.
void SpellingSession::Replace(const WordPlace& place, std::string_view right,
                              SpellingChange change) {
  const std::string utf8 = InApostrophesOf(place.In(content_), right);
  text_.Replace(part_, place.offset, place.length, utf8);
  result_.kept.erase(change.wrong);
  result_.changes.push_back(std::move(change));
  // The text may have cut it, to what a row can hold.
  OpenPart(part_);
  const std::size_t behind = place.offset + utf8.size();
  next_ = static_cast<std::size_t>(
      std::ranges::lower_bound(words_, behind, {}, &WordPlace::offset) - words_.begin());
}

}  // namespace tarnwell::proofing
