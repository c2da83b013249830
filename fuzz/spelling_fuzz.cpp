// Any bytes as a text that is checked, with any answers: words lie in the text, one behind the
// other, the check comes to an end, and its words are never taken from the middle of a character.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "memory_file_system.h"
#include "proofing/spelling_session.h"

namespace {

using namespace tarnwell;

void Require(bool holds) {
  if (!holds) std::abort();
}

// Knows the words of an even length.
class EvenSpeller : public forms::Speller {
 public:
  bool available() override { return true; }
  bool IsCorrect(std::string_view word) override { return word.size() % 2 == 0; }
  std::vector<std::string> Suggest(std::string_view word) override { return {std::string(word)}; }
};

// Each part can hold only so much.
class ShortParts : public proofing::CheckedText {
 public:
  explicit ShortParts(std::string_view text) : half_(text.size() / 2), text_(text) {}
  int parts() override { return 2; }
  std::string part(int index) override {
    return index == 0 ? text_.substr(0, half_) : text_.substr(half_);
  }
  void Show(int index, std::size_t offset, std::size_t length) override {
    Require(length > 0 && offset + length <= part(index).size());
  }
  void Replace(int index, std::size_t offset, std::size_t length, std::string_view utf8) override {
    Show(index, offset, length);
    text_.replace(index == 0 ? offset : half_ + offset, length, utf8.substr(0, length));
    if (index == 0) half_ -= length - std::min(length, utf8.size());
  }

 private:
  std::size_t half_;
  std::string text_;
};

void CheckWords(std::string_view text) {
  std::size_t end = 0;
  for (const proofing::WordPlace& place : proofing::WordsOf(text)) {
    Require(place.offset >= end && place.length > 0 && place.end() <= text.size());
    Require((static_cast<unsigned char>(text[place.offset]) & 0xC0) != 0x80);
    end = place.end();
    const auto pieces = proofing::SurroundingsOf(text, place, 10);
    Require(pieces.before.size() <= 11 && pieces.word.size() <= 11 && pieces.after.size() <= 11);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  CheckWords(bytes);
  fuzz::MemoryFileSystem files;
  storage::ProgramFolder folder(files, "/user");
  EvenSpeller speller;
  ShortParts text(bytes);
  proofing::SpellingSession session(speller, folder, text);
  for (std::size_t asked = 0; session.FindNext(); ++asked) {
    Require(asked <= size);
    switch (bytes[asked] % 5) {
      case 0:
        session.Change(bytes.substr(asked, 3));
        break;
      case 1:
        session.ChangeAll(bytes.substr(asked, 7));
        break;
      case 2:
        session.IgnoreAll();
        break;
      case 3:
        session.Add();
        break;
      default:
        break;
    }
  }
  return 0;
}
