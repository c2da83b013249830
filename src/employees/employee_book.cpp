#include "employees/employee_book.h"

#include "storage/file_names.h"

namespace tarnwell::employees {
namespace {

using record_book::StoredField;

constexpr StoredField kStored[] = {
    {21, 0},  {21, 1},   {30, 2},
    {30, 3},  {25, 4},   {20, 5},
    {10, 6},  {20, 7},   {20, 8},
    {20, 9},  {20, 10},  {30, 11},
    {30, 12}, {30, 13},  {30, 14},
    {30, 15}, {130, 16}, {480, record_book::kAlwaysBlank},  // room for 24 fields that no screen has
};

}  // namespace

const record_book::BookLayout& EmployeeBook() {
  static constexpr record_book::BookLayout kBook{
      .records = storage::file_names::kEmployees,
      .record_length = 1002,
      .index = storage::file_names::kEmployeeIndex,
      .pictures = storage::file_names::kEmployeePictures,
      .fields = kStored,
      .entries = kEmployeeEntries,
      .two_names = true,
      .clears_on_deletion = true,
  };
  return kBook;
}

}  // namespace tarnwell::employees
