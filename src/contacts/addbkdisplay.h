#pragma once

#include "record_book/display_screen.h"

namespace tarnwell::contacts {

// The display grid of the business contacts.
class ADDBKDISPLAY : public record_book::DisplayScreen {
 public:
  explicit ADDBKDISPLAY(forms::Context& context);
};

}  // namespace tarnwell::contacts
