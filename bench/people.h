// A record book of 20,000 for the benchmarks.

#pragma once

#include <fstream>
#include <string>

#include "bench_folder.h"
#include "record_book/name_index.h"

namespace tarnwell::bench {

inline constexpr int kPeople = 20000;

// Every entry filled, on the disk as the formats' pages say.
inline void WritePeople(const std::string& folder, const record_book::BookLayout& book) {
  std::ofstream records(folder + "/" + std::string(book.records), std::ios::binary);
  std::ofstream index(folder + "/" + std::string(book.index), std::ios::binary);
  records << std::string(static_cast<std::size_t>(book.record_length), '\0');
  index << std::string(60, '\0');
  for (int record = 2; record < kPeople + 2; ++record) {
    const std::string name = "Person " + std::to_string(record * 7919 % kPeople) + " Company";
    std::string bytes;
    for (const record_book::StoredField& field : book.fields) {
      std::string text =
          field.content == 0 ? name : "Entry " + std::to_string(field.content) + " of " + name;
      text.resize(field.width, ' ');
      bytes += text;
    }
    bytes.resize(static_cast<std::size_t>(book.record_length), '\0');
    records << bytes;
    std::string item = record_book::NewItem(name, record);
    item.insert(0, {static_cast<char>(item.size()), '\0'});
    item.resize(60, '\0');
    index << item;
  }
  Check(records.flush().good() && index.flush().good(), "write the people");
}

}  // namespace tarnwell::bench
