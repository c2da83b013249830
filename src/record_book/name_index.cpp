#include "record_book/name_index.h"

#include <algorithm>

#include "storage/little_endian.h"
#include "storage/record_file.h"
#include "text/leading_number.h"
#include "text/letters.h"

namespace tarnwell::record_book {
namespace {

constexpr std::size_t kNumberColumn = 42;  // counted from 0
constexpr std::size_t kMoreBlanks = 5;     // in front of a changed record's number
constexpr std::string_view kDeleted = "####";

std::string Padded(std::string_view name) {
  std::string item(name);
  if (item.size() < kNumberColumn) item.resize(kNumberColumn, ' ');
  return item;
}

// Items of the same letters stay in the order of their records.
bool IsBefore(const NameEntry& a, const NameEntry& b) {
  const int order = text::CompareIgnoringCase(a.item, b.item);
  return order != 0 ? order < 0 : a.record < b.record;
}

}  // namespace

std::string NewItem(std::string_view name, int record) {
  return Padded(name) + std::to_string(record);
}

std::string ChangedItem(std::string_view name, int record) {
  return Padded(name) + std::string(kMoreBlanks, ' ') + std::to_string(record);
}

int RecordOf(std::string_view item) {
  if (item.size() <= kNumberColumn) return 0;
  const double number = text::LeadingNumber(item.substr(kNumberColumn));
  return number >= kFirstRecord && number <= kOverflowRecord ? static_cast<int>(number) : 0;
}

bool IsUnsafeName(const BookLayout& layout, std::string_view first_entry) {
  return !layout.two_names && text::TrimRight(first_entry).size() >= layout.fields[0].width;
}

std::string_view NameIn(const NameEntry& entry) {
  std::string_view name = entry.item;
  while (name.size() > kNumberColumn && name.back() >= '0' && name.back() <= '9') {
    name.remove_suffix(1);
  }
  const std::size_t last = name.find_last_not_of(' ');
  return name.substr(0, last == name.npos ? 0 : last + 1);
}

NameList ReadNames(storage::ProgramFolder& folder, const BookLayout& layout,
                   BlankSecond blank_second) {
  NameList names;
  storage::RecordFile file(folder, layout.index, kItemLength);
  file.Scan(kFirstRecord, [&](int record, std::string_view bytes) {
    std::string item = storage::TakeText(bytes).value_or(std::string());
    const bool is_blank = item.find_first_not_of(std::string_view(" \0", 2)) == item.npos;
    const bool is_listed = is_blank ? record == kFirstRecord && blank_second == BlankSecond::kListed
                                    : !item.starts_with(kDeleted);
    if (is_listed) {
      const int number = RecordOf(item);
      names.entries.push_back({std::move(item), number});
    }
    return true;
  });
  if (file.has_failed()) names.fault = file.fault();
  std::sort(names.entries.begin(), names.entries.end(), IsBefore);
  return names;
}

std::size_t PlaceOf(const std::vector<NameEntry>& entries, std::string_view item) {
  const NameEntry sought{std::string(item), RecordOf(item)};
  return static_cast<std::size_t>(
      std::lower_bound(entries.begin(), entries.end(), sought, IsBefore) - entries.begin());
}

int FindName(const std::vector<NameEntry>& entries, std::string_view text) {
  const std::string sought = text::UpperCase(text);
  for (std::size_t place = 0; place < entries.size(); ++place) {
    if (text::UpperCase(entries[place].item).find(sought) != std::string::npos) {
      return static_cast<int>(place);
    }
  }
  return -1;
}

}  // namespace tarnwell::record_book
