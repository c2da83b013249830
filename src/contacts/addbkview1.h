#pragma once

#include "record_book/entry_screen.h"

namespace tarnwell::contacts {

// The screen "Business Contacts Data Entry Screen", and "View Screen".
class ADDBKVIEW1 : public record_book::EntryScreen {
 public:
  explicit ADDBKVIEW1(forms::Context& context);
};

}  // namespace tarnwell::contacts
