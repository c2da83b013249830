#include "desktop/services/mythes_thesaurus.h"

#include <QFile>
#include <cstdio>  // mythes.hxx lacks it
#include <cstring>
#include <mythes.hxx>

#include "desktop/services/dictionary_folders.h"
#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::desktop {
namespace {

constexpr std::size_t kLongestEntry = 100;  // no entry is longer, in characters

}  // namespace

MythesThesaurus::MythesThesaurus(QStringList folders, HunspellSpeller& speller)
    : folders_(std::move(folders)), speller_(speller) {}
MythesThesaurus::~MythesThesaurus() = default;

MyThes* MythesThesaurus::thesaurus() {
  if (was_sought_) return thesaurus_.get();
  was_sought_ = true;
  const auto files =
      FindPair(folders_, QStringLiteral("th_en_US_v2.idx"), QStringLiteral("th_en_US_v2.dat"));
  if (!files) return nullptr;
  thesaurus_ = std::make_unique<MyThes>(QFile::encodeName(files->first).constData(),
                                        QFile::encodeName(files->second).constData());
  // Files that can't be read give a thesaurus without an encoding.
  if (!thesaurus_->get_th_encoding()) thesaurus_.reset();
  return thesaurus_.get();
}

std::vector<forms::Meaning> MythesThesaurus::LookUp(std::string_view word) {
  if (!available()) return {};
  // Entries are in small letters.
  const std::string entry = text::LowerCase(word);
  auto meanings = LookUpEntry(entry);
  if (!meanings.empty()) return meanings;
  for (const std::string& stem : speller_.Stems(entry)) {
    meanings = LookUpEntry(text::LowerCase(stem));
    if (!meanings.empty()) break;
  }
  return meanings;
}

std::vector<forms::Meaning> MythesThesaurus::LookUpEntry(std::string_view word) {
  if (word.empty() || word.size() > kLongestEntry) return {};
  const bool unicode = std::strcmp(thesaurus_->get_th_encoding(), "UTF-8") == 0;
  const auto decoded = [unicode](const char* bytes) {
    return unicode ? text::FromUtf8(text::Utf8(bytes)) : std::string(bytes);
  };
  const std::string entry = unicode ? text::ToUtf8(word).bytes() : std::string(word);
  mentry* found = nullptr;
  const int count = thesaurus_->Lookup(entry.data(), static_cast<int>(entry.size()), &found);
  std::vector<forms::Meaning> meanings;
  for (int i = 0; i < count; ++i) {
    forms::Meaning& meaning = meanings.emplace_back();
    meaning.description = decoded(found[i].defn);
    for (int k = 0; k < found[i].count; ++k) {
      meaning.synonyms.push_back(decoded(found[i].psyns[k]));
    }
  }
  thesaurus_->CleanUpAfterLookup(&found, count);
  return meanings;
}

}  // namespace tarnwell::desktop
