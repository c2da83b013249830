#include "backup/document_writer.h"

#include <algorithm>
#include <set>

#include "backup/live_files.h"
#include "text/letters.h"

namespace tarnwell::backup {
namespace {

constexpr std::string_view kExtensions[] = {".Fl2", ".Fla", ".Fl5", ".Fl6", ".Fl7"};

}  // namespace

std::vector<DocumentItem> LiveDocuments(storage::ProgramFolder& folder) {
  std::vector<DocumentItem> items;
  for (const DocumentFile& fixed : FixedDocuments()) items.push_back({fixed, 0});
  for (int index = 0; index <= kDocumentPositions; ++index) {
    const DocumentFile numbered = NumberedDocument(index);
    if (!numbered.live.empty()) items.push_back({numbered, index});
  }
  HeldNames names;
  for (const HeldList& list : HeldLists()) {
    const auto read = folder.Read(list.list);
    // One that can't be read is left out when its turn comes, and its documents are on no list.
    if (!read.is_unreadable() && read.content.size() < kShortestList) continue;
    items.push_back({{std::string(list.list), std::string(list.list_form)}, kDocumentPositions});
    for (DocumentFile& file : names.Of(list, read.content)) {
      items.push_back({std::move(file), kDocumentPositions});
    }
  }
  return items;
}

std::vector<std::string> OtherDocuments(storage::ProgramFolder& folder,
                                        const std::vector<DocumentItem>& of_set) {
  std::set<std::string> known;
  for (const DocumentItem& item : of_set) known.insert(text::UpperCase(item.file.live));
  return LiveFiles(folder, [&](std::string_view name) {
    const bool is_document = std::ranges::any_of(kExtensions, [&](std::string_view extension) {
      return text::EqualIgnoringCase(text::Right(name, extension.size()), extension);
    });
    return is_document && !known.contains(text::UpperCase(name));
  });
}

DocumentWriter::DocumentWriter(storage::ProgramFolder& folder, Attendant& attendant)
    : folder_(folder), attendant_(attendant), items_(LiveDocuments(folder)) {
  for (const std::string& name : OtherDocuments(folder_, items_)) {
    report_.left_out.push_back({name});
  }
}

int DocumentWriter::total() const { return kBarTotal; }

int DocumentWriter::done() const {
  return next_ < items_.size() ? items_[next_].index + kBarLead : kBarTotal;
}

int DocumentWriter::position() const {
  if (next_ >= items_.size()) return kDocumentPositions;
  const int index = items_[next_].index;
  const bool is_held = next_ > 0 && items_[next_ - 1].index == kDocumentPositions;
  return is_held ? kDocumentPositions : std::max(index - 1, 0);
}

void DocumentWriter::StartDisk(Disk& disk, int) {
  disk_ = &disk;
  first_ = next_;
  count_ = 0;
}

Step DocumentWriter::PutNext() {
  if (next_ >= items_.size()) return Step::kEnd;
  const DocumentItem& item = items_[next_];
  const auto source = OpenLive(folder_, item.file.live);
  Step step = source.file ? Put(item, *source.file) : Step::kBadSource;
  if (step == Step::kDone) {
    ++count_;
    report_.copied.push_back(item.file.live);
  } else if (step == Step::kBadSource) {
    if (source.fault != storage::Fault::kMissing) {
      report_.left_out.push_back(
          {item.file.live, source.file ? storage::Fault::kBroken : source.fault});
    }
    step = Step::kDone;
  }
  if (step == Step::kDone) ++next_;
  return step;
}

// Of a copy that isn't whole nothing stays.
Step DocumentWriter::Put(const DocumentItem& item, storage::File& source) {
  const auto copy = disk_->Make(item.file.form);
  if (!copy) return Step::kRefused;
  Step step = CopyFile(source, *copy, attendant_);
  if (step == Step::kDone) {
    const auto written = disk_->Open(item.file.form);
    step = written ? CompareFiles(*written, source, attendant_) : Step::kDiffers;
  }
  if (step != Step::kDone) disk_->Remove(item.file.form);
  return step;
}

// Each file was flushed and compared in its turn.
Step DocumentWriter::FinishDisk() {
  if (disk_->Flush()) return Step::kDone;
  TakeBack();
  return Step::kRefused;
}

void DocumentWriter::TakeBack() {
  for (std::size_t i = first_; i < next_; ++i) disk_->Remove(items_[i].file.form);
  report_.copied.resize(report_.copied.size() - static_cast<std::size_t>(count_));
  next_ = first_;
  count_ = 0;
}

}  // namespace tarnwell::backup
