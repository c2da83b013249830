// The business contacts' files. docs/formats/contacts.md has the layout.

#pragma once

#include "record_book/book_layout.h"

namespace tarnwell::contacts {

inline constexpr int kContactEntries = 24;

const record_book::BookLayout& ContactBook();

}  // namespace tarnwell::contacts
