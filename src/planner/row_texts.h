#pragma once

#include <functional>

#include "forms/control_array.h"
#include "forms/text_field.h"
#include "planner/day_rows.h"
#include "proofing/checked_text.h"

namespace tarnwell::planner {

// The appointments on the screen, a row a part, for the spelling check.
class RowTexts : public proofing::CheckedText {
 public:
  using Fields = forms::ControlArray<forms::TextField, kRowsPerDay>;
  explicit RowTexts(Fields& fields) : fields_(fields) {}

  std::function<void(int row)> on_show;
  std::function<void()> on_replace;

  int parts() override { return kRowsPerDay; }
  std::string part(int index) override;
  void Show(int index, std::size_t offset, std::size_t length) override;
  // Cut to what can be typed.
  void Replace(int index, std::size_t offset, std::size_t length, std::string_view utf8) override;

 private:
  Fields& fields_;
};

}  // namespace tarnwell::planner
