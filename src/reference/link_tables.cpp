#include "reference/link_tables.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "forms/disk_trouble.h"
#include "storage/file_names.h"
#include "text/letters.h"

namespace tarnwell::reference {
namespace {

constexpr std::uint64_t kLargestTable = 1u << 20;  // bytes
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kScheme = "https://";

using Fields = std::vector<std::string>;

Fields FieldsOf(std::string_view line) {
  Fields fields;
  for (std::size_t begin = 0; begin <= line.size();) {
    const std::size_t end = std::min(line.find('\t', begin), line.size());
    fields.push_back(text::Trim(line.substr(begin, end - begin)));
    begin = end + 1;
  }
  return fields;
}

// A host and no sign that an address can't have. The browser judges the rest.
bool IsAddress(std::string_view address) {
  return address.starts_with(kScheme) && address.size() <= kLongestAddress &&
         address.find('.', kScheme.size() + 1) != std::string_view::npos &&
         std::ranges::all_of(address, [](char sign) {
           return sign > ' ' && sign <= '~' && sign != '"' && sign != '<' && sign != '>' &&
                  sign != '\\';
         });
}

bool IsLabel(std::string_view label) {
  return std::ranges::none_of(
      label, [](char sign) { return static_cast<unsigned char>(sign) < ' ' || sign == '\x7F'; });
}

// A number of one digit below `count`.
std::optional<std::size_t> PlaceOf(std::string_view field, std::size_t count) {
  if (field.size() != 1 || field[0] < '0') return std::nullopt;
  const auto place = static_cast<std::size_t>(field[0] - '0');
  return place < count ? std::optional(place) : std::nullopt;
}

// False where the link is none, or its row has one already.
bool Take(Link& row, std::string_view label, const std::string& address) {
  if (!row.address.empty() || !IsAddress(address) || !IsLabel(label)) return false;
  row = {std::string(text::Left(label, kLongestLabel)), address};
  return true;
}

std::string TheList(std::string_view name) {
  return "The list of web sites in " + std::string(name);
}

// What of a table was no use.
struct Refused {
  int lines = 0;
  int first = 0;  // number of the first of them, from 1
};

// Gives each row's fields to `take`, and counts those that it refuses.
Refused ReadRows(std::string_view content, const std::function<bool(const Fields&)>& take) {
  Refused refused;
  if (content.starts_with(kByteOrderMark)) content.remove_prefix(kByteOrderMark.size());
  for (int number = 1; !content.empty(); ++number) {
    const std::size_t end = std::min(content.find('\n'), content.size());
    std::string_view line = content.substr(0, end);
    content.remove_prefix(std::min(end + 1, content.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.starts_with('#') || text::Trim(line).empty() || take(FieldsOf(line))) continue;
    if (++refused.lines == 1) refused.first = number;
  }
  return refused;
}

std::string TroubleOf(std::string_view name, const Refused& refused, std::ptrdiff_t missing) {
  if (refused.lines == 1) {
    return TheList(name) + " has a line that can't be used: line " + std::to_string(refused.first) +
           ".";
  }
  if (refused.lines > 1) {
    return TheList(name) + " has " + std::to_string(refused.lines) +
           " lines that can't be used. The first is line " + std::to_string(refused.first) + ".";
  }
  if (missing == 1) return TheList(name) + " isn't whole: an address is missing.";
  if (missing == 0) return {};
  return TheList(name) + " isn't whole: " + std::to_string(missing) + " addresses are missing.";
}

template <std::size_t kCount>
std::ptrdiff_t MissingIn(const std::array<Link, kCount>& links) {
  return std::ranges::count_if(links, [](const Link& link) { return link.address.empty(); });
}

std::ptrdiff_t MissingIn(const StateLinks& states) {
  std::ptrdiff_t missing = 0;
  for (const auto& places : states) missing += MissingIn(places);
  return missing;
}

template <typename Rows>
LinkTable<Rows> ReadTable(storage::ProgramFolder& folder, std::string_view name,
                          bool (*take)(Rows&, const Fields&)) {
  LinkTable<Rows> table;
  const storage::ReadResult read = folder.Read(name, kLargestTable);
  if (read.is_missing()) {
    table.trouble = TheList(name) + " is missing.";
  } else if (read.is_unreadable()) {
    table.trouble =
        TheList(name) + " can't be read: " + std::string(forms::ReasonOf(read.fault)) + ".";
  } else {
    const Refused refused =
        ReadRows(read.content, [&](const Fields& fields) { return take(table.rows, fields); });
    table.trouble = TroubleOf(name, refused, MissingIn(table.rows));
  }
  return table;
}

bool TakeState(StateLinks& states, const Fields& fields) {
  if (fields.size() != 4) return false;
  const auto state = std::ranges::find(kStates, fields[0]);
  const auto place = PlaceOf(fields[1], kStatePlaces);
  if (state == kStates.end() || !place) return false;
  const auto row = static_cast<std::size_t>(state - kStates.begin());
  return Take(states[row][*place], fields[2], fields[3]);
}

bool TakeFederal(FederalLinks& links, const Fields& fields) {
  const auto place = PlaceOf(fields[0], kFederalLinkCount);
  return fields.size() == 2 && place && Take(links[*place], {}, fields[1]);
}

bool TakeInternet(InternetLinks& links, const Fields& fields) {
  const auto place = PlaceOf(fields[0], kInternetLinkCount);
  return fields.size() == 3 && place && !fields[1].empty() &&
         Take(links[*place], fields[1], fields[2]);
}

}  // namespace

LinkTable<StateLinks> ReadStateLinks(storage::ProgramFolder& folder) {
  return ReadTable(folder, storage::file_names::kStateLinks, TakeState);
}

LinkTable<FederalLinks> ReadFederalLinks(storage::ProgramFolder& folder) {
  return ReadTable(folder, storage::file_names::kFederalLinks, TakeFederal);
}

LinkTable<InternetLinks> ReadInternetLinks(storage::ProgramFolder& folder) {
  return ReadTable(folder, storage::file_names::kInternetLinks, TakeInternet);
}

}  // namespace tarnwell::reference
