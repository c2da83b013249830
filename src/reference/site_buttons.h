#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/command.h"
#include "forms/label.h"
#include "reference/link_tables.h"

namespace tarnwell::reference {

// Buttons that open web sites. Beside each stands its address, so that a person sees where it
// leads.
class SiteButtons {
 public:
  // `count` buttons `name`(0), … with as many labels `address_name`(0), ….
  SiteButtons(forms::Container& parent, std::string_view name, std::string_view address_name,
              std::size_t count);

  std::size_t size() const { return rows_.size(); }
  forms::Command& button(std::size_t index) { return rows_.at(index)->button; }
  forms::Label& address(std::size_t index) { return rows_.at(index)->address; }

  // A caption as that of any command. Without an address the button is dead.
  void Show(std::size_t index, std::string_view caption, std::string_view address);

  std::function<void(const std::string& address)> on_open;
  // A person clicked an address.
  std::function<void(const std::string& address)> on_address;

 private:
  struct Row {
    forms::Command button;
    forms::Label address;
  };
  std::vector<std::unique_ptr<Row>> rows_;
};

}  // namespace tarnwell::reference
