#include "backup/held_documents.h"

#include "storage/file_names.h"
#include "storage/program_folder.h"
#include "storage/sequential_file.h"
#include "text/letters.h"

namespace tarnwell::backup {
namespace {

namespace file_names = storage::file_names;

constexpr std::size_t kExtension = 4;

constexpr HeldList kHeldLists[] = {
    {file_names::kJobDescriptions, "JobHold.Hb2", ".Fl5", ".Hb2", " (5)"},
    {file_names::kDisciplinaryActions, "DiscpHold.Hb2", ".Fl6", ".Hb2", " (6)"},
    {file_names::kEvaluations, "EvalHold.Hb2", ".Fl7", ".Hb2", " (7)"},
    {file_names::kArchive, "ArchiveHold.Hb3", ".Fla", ".Hb3", " (a)"},
};

std::string StemOf(const std::string& file) { return file.substr(0, file.size() - kExtension); }

DocumentFile Numbered(std::string live) {
  std::string form = StemOf(live) + ".hb1";
  return {std::move(live), std::move(form)};
}

}  // namespace

std::span<const DocumentFile> FixedDocuments() {
  static const DocumentFile kFixed[] = {
      {std::string(file_names::kToDoNames), "ToDoName.hb1"},
      {std::string(file_names::kDisplaySettings), std::string(file_names::kDisplaySettingsBackup)},
      {std::string(file_names::kToDoList), "ToDoActv.hb1"},
      {std::string(file_names::kHinv3), "Hinv3.hb1"},
      {std::string(file_names::kDocumentStatus), "Stat1.hb1"},
      {std::string(file_names::kWorksheetTitles), "RAList.hb1"},
  };
  return kFixed;
}

DocumentFile NumberedDocument(int index) {
  constexpr int kComments = 47;
  constexpr int kTexts = 94;
  constexpr int kWorksheets = 141;
  if (index == 1) return Numbered(std::string(file_names::kDisclaimer));
  if (index < kComments || index > kDocumentPositions) return {};
  if (index < kTexts) return Numbered(file_names::DocumentComments(index - kComments));
  if (index < kWorksheets) return Numbered(file_names::DocumentText(index - kTexts));
  if (index < kDocumentPositions) return Numbered(file_names::Worksheet(index - kWorksheets));
  return Numbered(std::string(file_names::kRecoveryPlan));
}

std::span<const HeldList> HeldLists() { return kHeldLists; }

HeldNames::HeldNames() {
  for (const HeldList& list : kHeldLists) taken_.insert(text::UpperCase(list.list_form));
}

std::vector<DocumentFile> HeldNames::Of(const HeldList& list, std::string_view content) {
  std::vector<DocumentFile> files;
  std::set<std::string> listed;
  storage::SequentialReader reader{std::string(content)};
  while (!reader.AtEnd()) {
    const std::string name = reader.Next();
    if (text::Trim(name).empty()) continue;
    const std::string live = file_names::OfUserName(name, list.extension);
    if (!listed.insert(text::UpperCase(live)).second) continue;
    const std::string stem = StemOf(live);
    files.push_back({live, FreeName(list, stem), stem + std::string(list.form)});
  }
  return files;
}

std::string HeldNames::FreeName(const HeldList& list, std::string stem) {
  std::string name = stem + std::string(list.form);
  for (std::size_t letters = stem.size();
       !storage::IsPlainFileName(name) || !taken_.insert(text::UpperCase(name)).second;) {
    // Behind a stem that would make the name too long, in the place of its last letters.
    stem = stem.substr(0, letters) + std::string(list.distinction);
    name = stem + std::string(list.form);
    letters = storage::IsPlainFileName(name) ? stem.size() : letters - 1;
  }
  return name;
}

}  // namespace tarnwell::backup
