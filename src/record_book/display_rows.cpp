#include "record_book/display_rows.h"

#include <cstddef>
#include <utility>

#include "record_book/record_store.h"
#include "text/date_mask.h"
#include "text/date_reading.h"
#include "text/letters.h"

namespace tarnwell::record_book {
namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

// What stands between the parts stays even where one of them is missing.
std::string CityLine(std::string_view city, std::string_view state, std::string_view zip) {
  if (city.empty() && state.empty() && zip.empty()) return {};
  std::string line(city);
  return line.append(", ").append(state).append("  ").append(zip);
}

// A name may still lead there where a deletion was broken off.
bool IsDeleted(std::string_view bytes) { return bytes.starts_with("****"); }

class RowReader {
 public:
  RowReader(const DisplayBook& book, const DisplayOption& option,
            const std::optional<std::string>& sought)
      : book_(book), option_(option), sought_(sought) {}

  // Empty for a record that isn't shown.
  std::optional<DisplayRow> Read(std::string_view bytes) const {
    const auto entry = [&](int index) { return StoredEntry(book_.layout, bytes, index); };
    const std::string_view value = entry(option_.entry);
    if (value.empty() || IsDeleted(bytes)) return std::nullopt;
    if (sought_ && !IsSought(book_, entry(0), entry(1), *sought_)) return std::nullopt;
    DisplayRow row{DisplayName(entry(0), entry(1)), {}, std::string(entry(book_.telephone))};
    row.values.reserve(option_.is_address ? 3 : 1);
    row.values.emplace_back(value);
    if (option_.is_address) {
      const int next = option_.entry + 1;
      row.values.emplace_back(entry(next));
      row.values.push_back(CityLine(entry(next + 1), entry(next + 2), entry(next + 3)));
    }
    return row;
  }

 private:
  const DisplayBook& book_;
  const DisplayOption& option_;
  const std::optional<std::string>& sought_;
};

}  // namespace

std::string DisplayName(std::string_view first_entry, std::string_view second_entry) {
  std::string name(first_entry);
  if (!second_entry.empty()) name.append(", ").append(second_entry);
  return name;
}

bool IsSought(const DisplayBook& book, std::string_view first_entry, std::string_view second_entry,
              std::string_view text) {
  const auto taken = [&](std::string_view part) {
    return book.takes_text_as_is ? std::string(part) : text::Trim(part);
  };
  const std::string name = taken(first_entry) + ", " + taken(second_entry);
  return text::UpperCase(name).find(text::UpperCase(taken(text))) != std::string::npos;
}

std::string DateKey(const std::string& text) {
  const auto date = text::ReadDate(text);
  return date ? text::FormatDate(*date, "yyyymmdd") : text.empty() ? text : "~" + text;
}

// The records are read once, in the order of the file. Two names may lead to one record.
DisplayRows ReadDisplay(storage::ProgramFolder& folder, const DisplayBook& book,
                        const DisplayOption& option, const std::vector<NameEntry>& names,
                        const std::optional<std::string>& sought) {
  std::vector<bool> is_named(kOverflowRecord + 1);
  for (const NameEntry& name : names) is_named[static_cast<std::size_t>(name.record)] = true;
  std::vector<std::size_t> place_of(kOverflowRecord + 1, kNone);
  std::vector<DisplayRow> found;
  found.reserve(names.size());
  const RowReader reader(book, option, sought);
  const auto read = ForEachRecord(folder, book.layout, [&](int record, std::string_view bytes) {
    if (record > kOverflowRecord) return false;
    const auto number = static_cast<std::size_t>(record);
    if (!is_named[number]) return true;
    if (auto row = reader.Read(bytes)) {
      place_of[number] = found.size();
      found.push_back(*std::move(row));
    }
    return true;
  });
  if (!read) return {{}, read.fault()};
  DisplayRows shown;
  shown.rows.reserve(found.size());
  std::vector<std::size_t> shown_at(found.size(), kNone);
  for (const NameEntry& name : names) {
    const std::size_t place = place_of[static_cast<std::size_t>(name.record)];
    if (place == kNone) continue;
    const std::size_t before = std::exchange(shown_at[place], shown.rows.size());
    shown.rows.push_back(before == kNone ? std::move(found[place])
                                         : DisplayRow(shown.rows[before]));
  }
  return shown;
}

}  // namespace tarnwell::record_book
