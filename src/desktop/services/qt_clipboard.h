#pragma once

#include "forms/services.h"

namespace tarnwell::desktop {

class QtClipboard : public forms::Clipboard {
 public:
  void SetText(std::string_view text) override;
  // As rich text, as HTML and as plain text, so that a word processor and a text field both paste
  // it.
  void SetRichText(std::string_view rtf) override;
};

}  // namespace tarnwell::desktop
