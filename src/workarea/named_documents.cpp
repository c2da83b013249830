#include "workarea/named_documents.h"

#include "storage/file_names.h"
#include "text/letters.h"

namespace tarnwell::workarea {

NamedDocuments::NamedDocuments(storage::ProgramFolder& folder, const NamedDocumentKind& kind)
    : folder_(folder),
      kind_(kind),
      names_(folder,
             {.file = kind.list,
              .key =
                  [extension = kind.extension](std::string_view listed) {
                    return text::UpperCase(storage::file_names::OfUserName(listed, extension));
                  },
              .goes_when_empty = true}) {}

std::vector<std::string> NamedDocuments::Names() const {
  std::vector<std::string> names = names_.names();
  for (std::string& name : names) {
    const std::size_t end = name.size() - text::Right(name, kind_.extension.size()).size();
    if (kind_.lists_files && text::EqualIgnoringCase(name.substr(end), kind_.extension)) {
      name.resize(end);
    }
  }
  return names;
}

bool NamedDocuments::IsListed(std::string_view name) const {
  return names_.Find(name) != parts::UserNames::kNone;
}

bool NamedDocuments::Has(std::string_view name) const {
  return IsListed(name) || folder_.Exists(FileOf(name));
}

// Of the name as the list gives it back.
std::string NamedDocuments::FileOf(std::string_view name) const {
  return storage::file_names::OfUserName(parts::UserNames::AsListed(name), kind_.extension);
}

std::string NamedDocuments::Listed(std::string_view name) const {
  return kind_.lists_files ? std::string(name).append(kind_.extension) : std::string(name);
}

storage::Outcome NamedDocuments::Add(std::string_view name) { return names_.Add(Listed(name)); }

storage::Outcome NamedDocuments::Delete(std::string_view name) {
  if (const auto deleted = folder_.Delete(FileOf(name)); !deleted) return deleted;
  return Remove(name);
}

}  // namespace tarnwell::workarea
