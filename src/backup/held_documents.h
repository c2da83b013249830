// The documents of the set of company documents, and what each is called on a disk.

#pragma once

#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwell::backup {

// A file of the program, and its name on a disk.
struct DocumentFile {
  std::string live;
  std::string form;
  std::string older_form = {};  // where a set of an older program may have it; empty for the same
};

// Those that have a name of their own.
std::span<const DocumentFile> FixedDocuments();

inline constexpr int kDocumentPositions = 162;  // the last index
// The progress bar's place of an index lies so far ahead of it, and its maximum.
inline constexpr int kBarLead = 5;
inline constexpr int kBarTotal = 168;
// The file with that index, from 0; an empty name where there is none.
DocumentFile NumberedDocument(int index);

// A list of documents that the user named.
struct HeldList {
  std::string_view list;
  std::string_view list_form;
  std::string_view extension;    // of its documents
  std::string_view form;         // and of their copies
  std::string_view distinction;  // behind a stem that another list's document has already
};
std::span<const HeldList> HeldLists();

// A list of fewer bytes counts as none.
inline constexpr std::uint64_t kShortestList = 4;

// Names the copies of one set, list after list in the order of HeldLists. A later document with the
// stem of an earlier one gets another stem, by a rule that a restore repeats from the same lists.
class HeldNames {
 public:
  HeldNames();
  // The documents of a list, each file once. `content` is that of the list's file.
  std::vector<DocumentFile> Of(const HeldList& list, std::string_view content);

 private:
  std::string FreeName(const HeldList& list, std::string stem);

  std::set<std::string> taken_;  // in capitals
};

}  // namespace tarnwell::backup
