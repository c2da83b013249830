#pragma once

#include "record_book/picture_pages.h"

namespace tarnwell::contacts {

// Pages of contacts with their pictures.
class ADDBKDISPLAY2 : public record_book::PicturePages {
 public:
  explicit ADDBKDISPLAY2(forms::Context& context);
};

}  // namespace tarnwell::contacts
