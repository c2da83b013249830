#include "backup/document_reader.h"

#include <algorithm>

#include "backup/document_writer.h"
#include "storage/sequential_file.h"
#include "text/letters.h"

namespace tarnwell::backup {
namespace {

constexpr std::string_view kTest = "Test1.hb1";

}  // namespace

std::vector<std::string> DocumentReader::Check(Disk& disk, const DiskInfo& info) {
  int files = 0;
  for (const std::string& name : disk.Names().value_or(std::vector<std::string>())) {
    if (IsForm(set_, year_, name) && !text::EqualIgnoringCase(name, kTest)) ++files;
  }
  if (files >= info.count) return {};
  return {"It has " + std::to_string(files) + " of its " + std::to_string(info.count) + " files."};
}

int DocumentReader::total(const DiskInfo&) const { return kBarTotal; }

// A disk may hold any part of the set: what is there is taken.
Step DocumentReader::TakeDisk(Disk& disk, const DiskInfo& info, storage::Replacement& made) {
  std::vector<DocumentFile> files(FixedDocuments().begin(), FixedDocuments().end());
  for (int index = 0; index <= kDocumentPositions; ++index) {
    if (DocumentFile file = NumberedDocument(index); !file.live.empty()) {
      files.push_back(std::move(file));
    }
  }
  if (const Step lists = TakeLists(disk, made); lists != Step::kDone) return lists;
  const std::vector<DocumentFile> held = HeldDocuments();
  files.insert(files.end(), held.begin(), held.end());
  const int end = info.next > 0 ? std::min(info.position + kBarLead, kBarTotal) : kBarTotal;
  const int room = std::max(end - bar_, 0);
  int done = 0;
  for (const DocumentFile& file : files) {
    if (const Step step = TakeFile(disk, file, made); step != Step::kDone) return step;
    attendant_.MoveBar(bar_ + ++done * room / static_cast<int>(files.size()));
    if (!attendant_.GoOn()) return Step::kStopped;
  }
  bar_ += room;
  return Step::kDone;
}

Step DocumentReader::TakeLists(Disk& disk, storage::Replacement& made) {
  for (const HeldList& list : HeldLists()) {
    const std::string form(list.list_form);
    const auto file = disk.Has(form) ? disk.Open(form) : nullptr;
    if (!file && disk.Has(form)) return Step::kBadSource;
    if (!file || file->Size().value_or(0) == 0) continue;
    const std::string live(list.list);
    if (const Step step = Take(disk, form, live, made); step != Step::kDone) return step;
    taken_[live] = form;
    const auto size = file->Size();
    if (!size || *size > storage::SequentialReader::kMaxSequentialFile) return Step::kBadSource;
    std::string content(static_cast<std::size_t>(*size), '\0');
    if (file->ReadAt(0, content) != static_cast<std::ptrdiff_t>(content.size())) {
      return Step::kBadSource;
    }
    lists_[live] = std::move(content);
  }
  return Step::kDone;
}

std::vector<DocumentFile> DocumentReader::HeldDocuments() const {
  std::vector<DocumentFile> files;
  HeldNames names;
  for (const HeldList& list : HeldLists()) {
    const auto content = lists_.find(std::string(list.list));
    if (content == lists_.end()) continue;
    const std::vector<DocumentFile> listed = names.Of(list, content->second);
    files.insert(files.end(), listed.begin(), listed.end());
  }
  return files;
}

// Where an older program copied two documents to one name, both get what is there, unless a later
// disk has the one that it should be.
Step DocumentReader::TakeFile(Disk& disk, const DocumentFile& file, storage::Replacement& made) {
  const auto taken = taken_.find(file.live);
  if (taken != taken_.end() && taken->second == file.form) return Step::kDone;
  std::string form = file.form;
  if (!disk.Has(form)) form = taken == taken_.end() ? file.older_form : std::string();
  if (form.empty() || !disk.Has(form)) return Step::kDone;
  const Step step = Take(disk, form, file.live, made);
  if (step == Step::kDone) taken_[file.live] = form;
  return step;
}

// What the set could have held goes; what no list names stays. The settings that the set holds are
// replaced where they are in it.
Step DocumentReader::Finish(storage::Replacement& made) {
  for (const auto& [live, form] : taken_) report_.copied.push_back(live);
  const std::vector<DocumentItem> live = LiveDocuments(folder_);
  for (const DocumentItem& item : live) {
    const bool is_document = !text::EqualIgnoringCase(text::Right(item.file.live, 4), ".fil");
    if (is_document) made.Remove(item.file.live);
  }
  for (const std::string& name : OtherDocuments(folder_, live)) {
    if (!made.HasMade(name)) report_.left_out.push_back({name});
  }
  for (const DocumentFile& file : HeldDocuments()) {
    if (!taken_.contains(file.live)) {
      report_.left_out.push_back({file.live, storage::Fault::kMissing});
    }
  }
  return Step::kDone;
}

}  // namespace tarnwell::backup
