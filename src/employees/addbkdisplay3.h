#pragma once

#include "record_book/picture_pages.h"

namespace tarnwell::employees {

// Pages of employees with their pictures.
class ADDBKDISPLAY3 : public record_book::PicturePages {
 public:
  explicit ADDBKDISPLAY3(forms::Context& context);
};

}  // namespace tarnwell::employees
