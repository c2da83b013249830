#include "images/image_book.h"

#include "storage/file_names.h"

namespace tarnwell::images {
namespace {

constexpr record_book::StoredField kStored[] = {
    {50, 0}, {50, 1}, {kLongestPath, record_book::kPicturePath}};

}  // namespace

const record_book::BookLayout& ImageBook() {
  static constexpr record_book::BookLayout kBook{
      .records = storage::file_names::kImages,
      .record_length = 300,
      .index = storage::file_names::kImageIndex,
      .pictures = {},
      .fields = kStored,
      .entries = 2,
      .two_names = false,
      .clears_on_deletion = false,
  };
  return kBook;
}

}  // namespace tarnwell::images
