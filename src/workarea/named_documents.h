// Documents that the user names, each in a file of its own, and the list of their names.
// docs/formats/jobhold.md has the layout.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "parts/user_names.h"
#include "storage/program_folder.h"

namespace tarnwell::workarea {

struct NamedDocumentKind {
  std::string_view list;       // file of the list
  std::string_view extension;  // of the documents' files
  bool lists_files = false;    // the list's lines end in the extension too
};

// Names whose documents would have the same file count as the same name.
class NamedDocuments {
 public:
  NamedDocuments(storage::ProgramFolder& folder, const NamedDocumentKind& kind);

  // A missing list gives no names, and so does one that can't be read: the outcome tells.
  storage::Outcome Read() { return names_.Read(); }
  // In list order, as the user knows them: without the extension that the list may have.
  std::vector<std::string> Names() const;
  // It is on the list, or a file that would be its document's is there.
  bool Has(std::string_view name) const;
  bool IsListed(std::string_view name) const;
  std::string FileOf(std::string_view name) const;

  // Puts the name at the list's end, unless it is there. Its document's file is the caller's.
  storage::Outcome Add(std::string_view name);
  storage::Outcome Remove(std::string_view name) { return names_.Remove(Listed(name)); }
  // The document, then its name.
  storage::Outcome Delete(std::string_view name);

 private:
  std::string Listed(std::string_view name) const;

  storage::ProgramFolder& folder_;
  NamedDocumentKind kind_;
  parts::UserNames names_;
};

}  // namespace tarnwell::workarea
