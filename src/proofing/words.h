// The words of a text that are worth checking, and where they stand. Texts are UTF-8 here, as the
// documents are; a word taken out of them is in code page 1252.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwell::proofing {

struct WordPlace {
  std::size_t offset = 0;  // bytes
  std::size_t length = 0;

  std::size_t end() const { return offset + length; }
  std::string_view In(std::string_view text) const { return text.substr(offset, length); }
  friend bool operator==(const WordPlace&, const WordPlace&) = default;
};

// In the order of the text. An apostrophe between two letters belongs to the word. Left out are web
// and mail addresses, the letters of "i.e." and "(i)" and of an "i." that begins a line, words with
// a digit, and words with a letter that the code page can't hold.
std::vector<WordPlace> WordsOf(std::string_view text);

// The line of the text in which the word stands.
std::string_view LineAround(std::string_view text, const WordPlace& word);

// Nothing but blanks lies between the two.
bool StandTogether(std::string_view text, const WordPlace& first, const WordPlace& second);

// The word as dictionaries have it: in code page 1252, with plain apostrophes, without the hyphens
// that only show at a line's end.
std::string DictionaryForm(std::string_view word);

// The sentence around a word in three pieces of one line, in code page 1252: so much of it as fits
// `width` characters on either side, with "..." where it was cut.
struct Surroundings {
  std::string before;
  std::string word;
  std::string after;
};
Surroundings SurroundingsOf(std::string_view text, const WordPlace& word, std::size_t width);

}  // namespace tarnwell::proofing
