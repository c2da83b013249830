#include "record_book/record_store.h"

#include "record_book/name_index.h"
#include "storage/record_file.h"
#include "storage/structure.h"
#include "text/letters.h"

namespace tarnwell::record_book {
namespace {

using storage::Outcome;
using storage::ProgramFolder;
using storage::RecordFile;

constexpr int kPictureLength = 250;
constexpr std::string_view kDeletedRecord = "*****";
constexpr std::string_view kDeletedMark = "****";  // what a reader looks for
constexpr std::string_view kDeletedItem = "#####                                        ";

RecordFile OpenRecords(ProgramFolder& folder, const BookLayout& layout) {
  return RecordFile(folder, layout.records, layout.record_length);
}

bool IsUnreadable(const RecordFile& file, storage::Fault* fault) {
  if (file.is_open() && !file.has_failed()) return false;
  if (fault) *fault = file.fault();
  return true;
}

// A zero byte is no blank: behind the end of the file the first field is full of them.
bool LooksFree(const BookLayout& layout, std::string_view bytes) {
  const std::string_view name = bytes.substr(0, layout.fields[0].width);
  return name.starts_with(kDeletedMark) || text::TrimRight(name).size() == layout.fields[0].width;
}

// `old` is what the record holds so far.
std::string Pack(const BookLayout& layout, const BookRecord& record, std::string_view old) {
  storage::StructureWriter packed(StoredSize(layout));
  storage::StructureReader stored(old);
  for (const StoredField& field : layout.fields) {
    const std::string_view kept = stored.FixedText(field.width);
    if (field.content == kLeftAsItIs) {
      packed.FixedText(kept, field.width);
    } else if (field.content == kPicturePath) {
      packed.FixedText(record.picture, field.width);
    } else if (field.content == kAlwaysBlank) {
      packed.FixedText({}, field.width);
    } else {
      packed.FixedText(record.entries[static_cast<std::size_t>(field.content)], field.width);
    }
  }
  return packed.bytes();
}

Outcome PutRecord(ProgramFolder& folder, const BookLayout& layout, int record,
                  const BookRecord& content) {
  auto file = OpenRecords(folder, layout);
  const std::string old = file.GetStructure(record, StoredSize(layout));
  if (file.has_failed()) return file.fault();
  return file.Finish(file.PutStructure(record, Pack(layout, content, old)));
}

Outcome PutItem(ProgramFolder& folder, const BookLayout& layout, int record,
                std::string_view item) {
  RecordFile file(folder, layout.index, kItemLength);
  return file.Finish(file.PutText(record, item));
}

Outcome PutPicture(ProgramFolder& folder, const BookLayout& layout, int record,
                   std::string_view path) {
  if (layout.pictures.empty() || path.size() > kLongestPicturePath) return {};
  RecordFile file(folder, layout.pictures, kPictureLength);
  return file.Finish(file.PutTagged(record, std::string(path)));
}

// A deleted record's picture is a text without a tag.
Outcome DropPicture(ProgramFolder& folder, const BookLayout& layout, int record) {
  if (layout.pictures.empty()) return {};
  RecordFile file(folder, layout.pictures, kPictureLength);
  return file.Finish(file.PutText(record, {}));
}

Outcome MarkDeleted(ProgramFolder& folder, const BookLayout& layout, int record) {
  auto file = OpenRecords(folder, layout);
  storage::StructureWriter packed;
  packed.FixedText(kDeletedRecord, layout.fields[0].width);
  if (layout.clears_on_deletion) {
    packed.FixedText({}, StoredSize(layout) - layout.fields[0].width);
  }
  return file.Finish(file.PutStructure(record, packed.bytes()));
}

}  // namespace

RecordReader::RecordReader(ProgramFolder& folder, const BookLayout& layout)
    : layout_(layout), records_(OpenRecords(folder, layout)) {
  if (!layout.pictures.empty()) pictures_.emplace(folder, layout.pictures, kPictureLength);
}

bool RecordReader::HasFailed(const RecordFile& file) { return IsUnreadable(file, &fault_); }

std::optional<BookRecord> RecordReader::Read(int record) {
  const std::string bytes = records_.GetStructure(record, StoredSize(layout_));
  if (HasFailed(records_)) return std::nullopt;
  BookRecord content;
  for (int entry = 0; entry < layout_.entries; ++entry) {
    content.entries.emplace_back(StoredEntry(layout_, bytes, entry));
  }
  if (!pictures_) {
    content.picture = StoredEntry(layout_, bytes, kPicturePath);
    return content;
  }
  const storage::TaggedValue path = pictures_->GetTagged(record);
  if (HasFailed(*pictures_)) return std::nullopt;
  if (const auto* text = std::get_if<std::string>(&path)) content.picture = text::Trim(*text);
  return content;
}

std::optional<BookRecord> ReadRecord(ProgramFolder& folder, const BookLayout& layout, int record,
                                     storage::Fault* fault) {
  RecordReader reader(folder, layout);
  auto content = reader.Read(record);
  if (!content && fault) *fault = reader.fault();
  return content;
}

Outcome ForEachRecord(ProgramFolder& folder, const BookLayout& layout,
                      const std::function<bool(int, std::string_view)>& visit) {
  auto file = OpenRecords(folder, layout);
  file.Scan(kFirstRecord, visit);
  return file.has_failed() ? file.fault() : Outcome{};
}

std::optional<int> FreeRecord(ProgramFolder& folder, const BookLayout& layout,
                              storage::Fault* fault) {
  auto file = OpenRecords(folder, layout);
  int next = kFirstRecord;
  file.Scan(kFirstRecord, [&](int record, std::string_view bytes) {
    next = record;
    if (record > kLastFreeRecord || LooksFree(layout, bytes)) return false;
    ++next;
    return true;
  });
  if (IsUnreadable(file, fault)) return std::nullopt;
  return next;
}

bool IsTaken(ProgramFolder& folder, const BookLayout& layout, int record) {
  auto file = OpenRecords(folder, layout);
  const std::string bytes = file.GetStructure(record, layout.fields[0].width);
  return bytes.find_first_not_of('\0') != bytes.npos && !bytes.starts_with(kDeletedMark);
}

Outcome WriteNew(ProgramFolder& folder, const BookLayout& layout, int record,
                 const BookRecord& content) {
  const bool keeps_picture = content.picture.size() <= kLongestPicturePath;
  if (const auto put = PutRecord(folder, layout, record, content); !put) return put;
  if (const auto put = PutPicture(folder, layout, record, keeps_picture ? content.picture : "");
      !put) {
    return put;
  }
  return PutItem(folder, layout, record, NewItem(NameOf(layout, content), record));
}

Outcome WriteChanged(ProgramFolder& folder, const BookLayout& layout, int record,
                     const BookRecord& content) {
  if (const auto put = PutRecord(folder, layout, record, content); !put) return put;
  if (const auto put = PutPicture(folder, layout, record, content.picture); !put) return put;
  return PutItem(folder, layout, record, ChangedItem(NameOf(layout, content), record));
}

Outcome DeleteRecord(ProgramFolder& folder, const BookLayout& layout, int record, bool is_last) {
  if (const auto put = PutItem(folder, layout, record, kDeletedItem); !put) return put;
  if (const auto put = MarkDeleted(folder, layout, record); !put) return put;
  if (const auto put = DropPicture(folder, layout, record); !put) return put;
  if (!is_last) return {};
  for (const std::string_view file : {layout.index, layout.pictures, layout.records}) {
    if (file.empty()) continue;
    if (const auto deleted = folder.Delete(file); !deleted) return deleted;
  }
  return {};
}

}  // namespace tarnwell::record_book
