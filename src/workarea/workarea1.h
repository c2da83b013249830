#pragma once

#include "forms/form.h"
#include "forms/label.h"
#include "forms/main_buttons.h"

namespace tarnwell::workarea {

// The hub: the Company Data and Employee Data areas, below all other screens but the start screen.
class WorkArea1 : public forms::Form {
 public:
  explicit WorkArea1(forms::Context& context);

  forms::MainButtons main_buttons{*this};
  forms::Label date{*this, "Label1"};
  forms::Label area_title{*this, "Label2", {}, forms::LabelRole::kTitle};

  void Load() override;
  void Activate() override;

 private:
  void Press(int index);
  void ShowArea(int index);
  void AskToExit();

  int area_on_show_ = forms::kCompanyData;
};

}  // namespace tarnwell::workarea
