#include "reference/site_buttons.h"

namespace tarnwell::reference {

SiteButtons::SiteButtons(forms::Container& parent, std::string_view name,
                         std::string_view address_name, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::string index = "(" + std::to_string(i) + ")";
    rows_.push_back(std::unique_ptr<Row>(
        new Row{{parent, std::string(name) + index, {}},
                {parent, std::string(address_name) + index, {}, forms::LabelRole::kNote}}));
    Row& row = *rows_.back();
    row.button.on_click = [this, &row] {
      if (on_open) on_open(row.address.caption());
    };
    row.address.SetToolTip("Copy this address to the right");
    row.address.on_click = [this, &row] {
      if (on_address) on_address(row.address.caption());
    };
  }
}

void SiteButtons::Show(std::size_t index, std::string_view caption, std::string_view address) {
  Row& row = *rows_.at(index);
  row.button.SetCaption(caption);
  row.button.SetEnabled(!address.empty());
  row.address.SetCaption(address);
  row.address.SetVisible(!address.empty());
}

}  // namespace tarnwell::reference
