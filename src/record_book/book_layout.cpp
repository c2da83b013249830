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
      std::string_view text = bytes.substr(begin, field.width);
      while (!text.empty() && (text.back() == ' ' || text.back() == '\0')) text.remove_suffix(1);
      return text;
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
