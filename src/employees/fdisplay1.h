#pragma once

#include "record_book/display_screen.h"

namespace tarnwell::employees {

// The display grid of the employees.
class FDisplay1 : public record_book::DisplayScreen {
 public:
  explicit FDisplay1(forms::Context& context);
};

}  // namespace tarnwell::employees
