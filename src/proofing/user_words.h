// The words that the user added to the dictionary. docs/formats/user-words.md has the layout.

#pragma once

#include <set>
#include <string>
#include <string_view>

#include "storage/program_folder.h"

namespace tarnwell::proofing {

class UserWords {
 public:
  // Reads the list of earlier runs.
  explicit UserWords(storage::ProgramFolder& folder);

  // The word, as DictionaryForm gives it, is in the list; or with the capitals that the beginning
  // of a sentence or a heading gives it; or as an owner ("Tarnwell's").
  bool Has(std::string_view word) const;

  // When it couldn't be saved, it counts only as long as this object lives. A list that couldn't be
  // read is never written.
  storage::Outcome Add(std::string_view word);

 private:
  storage::ProgramFolder& folder_;
  storage::Fault fault_ = storage::Fault::kNone;  // of reading the list
  std::set<std::string, std::less<>> words_;
};

}  // namespace tarnwell::proofing
