#pragma once

#include "record_book/entry_screen.h"

namespace tarnwell::employees {

// The screen "Employee Data Entry Screen", and "View Screen".
class FView : public record_book::EntryScreen {
 public:
  explicit FView(forms::Context& context);
};

}  // namespace tarnwell::employees
