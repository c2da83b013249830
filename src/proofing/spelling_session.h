// A spelling check on its way through a text, from one word that has to be asked about to the next.

#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "forms/services.h"
#include "proofing/checked_text.h"
#include "proofing/user_words.h"
#include "proofing/words.h"

namespace tarnwell::proofing {

// In code page 1252. `wrong` is as it stood in the text; `right` has no capitals that it only got
// from there, so that WithCapitalsOf can put it in the place of other forms of `wrong`.
struct SpellingChange {
  std::string wrong;
  std::string right;
  friend bool operator==(const SpellingChange&, const SpellingChange&) = default;
};

struct SpellingResult {
  std::vector<SpellingChange> changes;  // one for each word replaced, in the order of the text
  std::set<std::string> kept;           // words that were to stay as they are, in these capitals
  bool canceled = false;
};

// A word that the user added is right, and so is one of the dictionary, but for "i". What is left
// and stands in the table of corrections is corrected without asking. Only in capitals it may as
// well be an abbreviation ("HSA"): where its line isn't all in capitals, it is asked about with the
// table's word proposed. So is what neither of them has.
class SpellingSession {
 public:
  SpellingSession(forms::Speller& speller, storage::ProgramFolder& folder, CheckedText& text);

  // Corrects on its way and stops at the next word to ask about, which is shown in the text. False
  // at the end of the text.
  bool FindNext();

  // The word in hand, as DictionaryForm gives it.
  const std::string& word() const { return word_; }
  Surroundings surroundings(std::size_t width) const;
  std::vector<std::string> Suggestions();

  // Answers for the word in hand; FindNext follows. Texts are in code page 1252.
  void Change(std::string_view right);
  void ChangeAll(std::string_view right);
  void IgnoreAll() { ignored_.insert(word_); }
  // False when the word couldn't be saved for later runs.
  storage::Outcome Add() { return user_words_.Add(word_); }
  void Cancel() { result_.canceled = true; }

  const SpellingResult& result() const { return result_; }

 private:
  bool OpenPart(int part);
  bool CorrectPair(const WordPlace& first);
  bool NeedsAnswer(const WordPlace& place);
  bool IsRight() const;
  bool StandsOutInCapitals(const WordPlace& place) const;
  std::string SmallForm(std::string_view right);
  void Replace(const WordPlace& place, std::string_view right, SpellingChange change);

  forms::Speller& speller_;
  CheckedText& text_;
  UserWords user_words_;
  std::set<std::string> ignored_;
  std::map<std::string, std::string> change_all_;  // by the wrong word in small letters

  int part_ = -1;
  std::string content_;  // of the part
  std::vector<WordPlace> words_;
  std::size_t next_ = 0;  // of words_
  WordPlace in_hand_;
  std::string word_;
  SpellingResult result_;
};

}  // namespace tarnwell::proofing
