#include "desktop/services/hunspell_speller.h"

#include <QFile>
#include <hunspell/hunspell.hxx>

#include "desktop/services/dictionary_folders.h"
#include "text/code_page_1252.h"

namespace tarnwell::desktop {
namespace {

constexpr std::size_t kMostSuggestions = 12;
// Longer runs of letters are no words; trying to repair one takes the library long.
constexpr std::size_t kLongestRepaired = 60;

bool IsUnicode(const Hunspell& dictionary) { return dictionary.get_dict_encoding() == "UTF-8"; }

// Dictionaries come in UTF-8 or, older ones, in Latin 1, which the core's code page holds.
std::string Encoded(const Hunspell& dictionary, std::string_view word) {
  return IsUnicode(dictionary) ? text::ToUtf8(word).bytes() : std::string(word);
}

std::vector<std::string> Decoded(const Hunspell& dictionary, std::vector<std::string> words) {
  if (IsUnicode(dictionary)) {
    for (std::string& word : words) word = text::FromUtf8(text::Utf8(word));
  }
  return words;
}

}  // namespace

HunspellSpeller::HunspellSpeller(QStringList folders) : folders_(std::move(folders)) {}
HunspellSpeller::~HunspellSpeller() = default;

Hunspell* HunspellSpeller::dictionary() {
  if (was_sought_) return dictionary_.get();
  was_sought_ = true;
  const auto files = FindPair(folders_, QStringLiteral("en_US.aff"), QStringLiteral("en_US.dic"));
  if (!files) return nullptr;
  dictionary_ = std::make_unique<Hunspell>(QFile::encodeName(files->first).constData(),
                                           QFile::encodeName(files->second).constData());
  // Damaged files give a dictionary that takes no word for a word.
  if (!dictionary_->spell(std::string("the"))) dictionary_.reset();
  return dictionary_.get();
}

bool HunspellSpeller::IsCorrect(std::string_view word) {
  return !available() || dictionary_->spell(Encoded(*dictionary_, word));
}

std::vector<std::string> HunspellSpeller::Suggest(std::string_view word) {
  if (!available() || word.size() > kLongestRepaired) return {};
  auto words = Decoded(*dictionary_, dictionary_->suggest(Encoded(*dictionary_, word)));
  if (words.size() > kMostSuggestions) words.resize(kMostSuggestions);
  return words;
}

std::vector<std::string> HunspellSpeller::Stems(std::string_view word) {
  if (!available()) return {};
  return Decoded(*dictionary_, dictionary_->stem(Encoded(*dictionary_, word)));
}

}  // namespace tarnwell::desktop
