#include "proofing/user_words.h"

#include "proofing/capitals.h"
#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/letters.h"

namespace tarnwell::proofing {
namespace {

constexpr std::string_view kOwner = "'s";

}  // namespace

UserWords::UserWords(storage::ProgramFolder& folder) : folder_(folder) {
  auto list = storage::ReadNameList(folder, storage::file_names::kUserWords);
  fault_ = list.fault;
  for (std::string& word : list.names) words_.insert(std::move(word));
}

bool UserWords::Has(std::string_view word) const {
  if (words_.empty()) return false;
  if (word.ends_with(kOwner)) word.remove_suffix(kOwner.size());
  if (words_.contains(word)) return true;
  const std::string small = text::LowerCase(word);
  if (words_.contains(small)) return WithCapitalsOf(word, small) == word;
  // A name that stands in capitals.
  return text::UpperCase(word) == word && words_.contains(WithCapitalsOf("Aa", small));
}

storage::Outcome UserWords::Add(std::string_view word) {
  if (word.ends_with(kOwner)) word.remove_suffix(kOwner.size());
  if (!words_.emplace(word).second) return {};
  if (fault_ != storage::Fault::kNone) return fault_;
  return storage::WriteNameList(folder_, storage::file_names::kUserWords,
                                {words_.begin(), words_.end()});
}

}  // namespace tarnwell::proofing
