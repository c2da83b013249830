// What can be done with the cell in hand of a display grid: dial its number, open its web address,
// write to its e-mail address.

#pragma once

#include <map>
#include <memory>
#include <span>
#include <string>

#include "forms/context.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/menu.h"
#include "forms/panel.h"
#include "parts/phone_dialer.h"
#include "record_book/display_option.h"

namespace tarnwell::record_book {

class CellLinks {
 public:
  // With a picture for each use that an option has.
  CellLinks(forms::Panel& parent, forms::Context& context, const forms::Grid& grid,
            std::span<const DisplayOption> options);

  std::map<CellUse, std::unique_ptr<forms::Picture>> pictures;
  forms::Label dialing;
  parts::PhoneDialer dialer;

  // Shows the picture of that use, and no other.
  void Show(CellUse use);
  void AddTo(forms::MenuItem& menu);

 private:
  void Use(CellUse use);
  void OpenWeb();
  void WriteMail();
  void Tell(const char* title, const char* text);
  std::string Cell() const;

  forms::Form& form_;
  forms::Context& context_;
  const forms::Grid& grid_;
};

}  // namespace tarnwell::record_book
