// The employees' files. docs/formats/employees.md has the layout.

#pragma once

#include "record_book/book_layout.h"

namespace tarnwell::employees {

inline constexpr int kEmployeeEntries = 17;

const record_book::BookLayout& EmployeeBook();

}  // namespace tarnwell::employees
