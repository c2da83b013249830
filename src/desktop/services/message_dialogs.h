#pragma once

#include "forms/dialogs.h"

namespace tarnwell::desktop {

class MessageDialogs : public forms::Dialogs {
 public:
  forms::Answer Message(const forms::MessageBox& box) override;
  std::optional<forms::Color> ChooseColor(forms::Color start) override;
  std::optional<forms::Font> ChooseFont(const forms::Font& start) override;
};

}  // namespace tarnwell::desktop
