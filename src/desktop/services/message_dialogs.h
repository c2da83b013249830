#pragma once

#include <optional>
#include <string>

#include "forms/dialogs.h"

namespace tarnwell::desktop {

class MessageDialogs : public forms::Dialogs {
 public:
  forms::Answer Message(const forms::MessageBox& box) override;
  std::optional<std::string> Input(const forms::InputBox& box) override;
  std::optional<forms::Color> ChooseColor(forms::Color start) override;
  std::optional<forms::FontParts> ChooseFont(const forms::FontParts& start) override;
  std::optional<forms::ChosenPicture> ChoosePicture() override;
};

}  // namespace tarnwell::desktop
