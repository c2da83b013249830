#pragma once

#include "desktop/widgets/page_fonts.h"
#include "forms/pages.h"

namespace tarnwell::desktop {

// The system's printers and its PDF file, by Qt's dialogues.
class QtPages : public forms::Pages {
 public:
  forms::TextMetrics& metrics() override { return metrics_; }
  std::vector<std::string> FontNames() override;
  forms::PrintResult Print(const forms::Document& document) override;
  // As a picture and as text.
  void CopyPage(const forms::Document& document, int page) override;
  forms::Margins Reach() override;
  std::optional<forms::PageSetup> ChooseSetup(const forms::PageSetup& start) override;

 private:
  PageMetrics metrics_;
};

}  // namespace tarnwell::desktop
