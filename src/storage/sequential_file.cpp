#include "storage/sequential_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "text/letters.h"

namespace tarnwell::storage {
namespace {

constexpr std::string_view kValueEnds = ",\r\n";

// The shortest digits that read back as the same number. Powers of ten only where plain digits
// would run long.
std::string NumberText(double value) {
  if (!std::isfinite(value) || value == 0) return "0";
  const double size = std::abs(value);
  const auto format =
      size >= 1e-5 && size < 1e15 ? std::chars_format::fixed : std::chars_format::scientific;
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.begin(), digits.end(), value, format).ptr;
  return {digits.begin(), end};
}

}  // namespace

SequentialReader::SequentialReader(ProgramFolder& folder, std::string_view name,
                                   std::uint64_t longest) {
  auto read = folder.Read(name, longest);
  content_ = std::move(read.content);
  fault_ = read.fault;
}

std::string SequentialReader::Next() {
  const std::string_view all = content_;
  std::size_t start = std::min(all.find_first_not_of(' ', place_), all.size());
  const bool is_quoted = start < all.size() && all[start] == '"';
  if (is_quoted) ++start;
  const std::size_t stop =
      std::min(is_quoted ? all.find('"', start) : all.find_first_of(kValueEnds, start), all.size());
  SkipPast(all.find_first_of(kValueEnds, stop));
  const std::string_view value = all.substr(start, stop - start);
  return is_quoted ? std::string(value) : text::Trim(value);
}

// `end` is the comma or line end behind a value; CR LF is one line end.
void SequentialReader::SkipPast(std::size_t end) {
  if (end >= content_.size()) {
    place_ = content_.size();
    return;
  }
  place_ = end + (content_.compare(end, 2, "\r\n") == 0 ? 2 : 1);
}

std::string WithoutQuotes(std::string_view text) {
  std::string kept(text);
  std::ranges::replace(kept, '"', '\'');
  return kept;
}

void SequentialWriter::WriteLine(std::initializer_list<Value> values) {
  std::string_view separator;
  for (const Value& value : values) {
    content_ += separator;
    separator = ",";
    if (const auto* text = std::get_if<std::string_view>(&value)) {
      content_.append("\"").append(*text).append("\"");
    } else {
      content_ += NumberText(std::get<double>(value));
    }
  }
  content_ += "\r\n";
}

Outcome SequentialWriter::Save(ProgramFolder& folder, std::string_view name) const {
  return folder.WriteWhole(name, content_);
}

NameList ReadNameList(ProgramFolder& folder, std::string_view name) {
  NameList list;
  SequentialReader reader(folder, name);
  if (reader.is_unreadable()) list.fault = reader.fault();
  while (!reader.AtEnd()) list.names.push_back(reader.Next());
  return list;
}

Outcome WriteNameList(ProgramFolder& folder, std::string_view name,
                      const std::vector<std::string>& names) {
  SequentialWriter writer;
  for (const std::string& entry : names) writer.WriteText(entry);
  return writer.Save(folder, name);
}

}  // namespace tarnwell::storage
