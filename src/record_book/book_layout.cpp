#include "record_book/book_layout.h"

#include <numeric>

#include "text/letters.h"

namespace tarnwell::record_book {

std::string NameOf(const BookLayout& layout, const BookRecord& record) {
  std::string name = text::TrimRight(record.entries[0]);
  if (layout.two_names) name += ", " + text::TrimRight(record.entries[1]);
  return name;
}

std::string_view StoredEntry(const BookLayout& layout, std::string_view bytes, int entry) {
  std::size_t begin = 0;
  for (const StoredField& field : layout.fields) {
    if (begin >= bytes.size()) break;
    if (field.content == entry) {
      const std::string_view text = bytes.substr(begin, field.width);
      const std::size_t last = text.find_last_not_of(std::string_view(" \0", 2));
      return text.substr(0, last == text.npos ? 0 : last + 1);
    }
    begin += field.width;
  }
  return {};
}

std::size_t StoredSize(const BookLayout& layout) {
  return std::accumulate(
      layout.fields.begin(), layout.fields.end(), std::size_t{0},
      [](std::size_t sum, const StoredField& field) { return sum + field.width; });
}

}  // namespace tarnwell::record_book
