#include "contacts/contact_book.h"

#include <array>

#include "storage/file_names.h"

namespace tarnwell::contacts {
namespace {

using record_book::StoredField;

constexpr std::size_t kWidth = 40;
constexpr std::size_t kCommentsWidth = 230;
constexpr int kComments = kContactEntries - 1;

constexpr auto kStored = [] {
  std::array<StoredField, kContactEntries + 1> fields{};
  for (int entry = 0; entry < kComments; ++entry) {
    fields[static_cast<std::size_t>(entry)] = {kWidth, entry};
  }
  fields[kComments] = {kWidth, record_book::kLeftAsItIs};
  fields[kContactEntries] = {kCommentsWidth, kComments};
  return fields;
}();

}  // namespace

const record_book::BookLayout& ContactBook() {
  static constexpr record_book::BookLayout kBook{
      .records = storage::file_names::kContacts,
      .record_length = 1190,
      .index = storage::file_names::kContactIndex,
      .pictures = storage::file_names::kContactPictures,
      .fields = kStored,
      .entries = kContactEntries,
      .two_names = false,
      .clears_on_deletion = false,
  };
  return kBook;
}

}  // namespace tarnwell::contacts
