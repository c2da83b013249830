#pragma once

#include "forms/services.h"

namespace tarnwell::desktop {

class QtClipboard : public forms::Clipboard {
 public:
  void SetText(std::string_view text) override;
  void SetRichText(std::string_view rtf) override;
};

}  // namespace tarnwell::desktop
