#pragma once

#include <string>
#include <string_view>

#include "workarea/named_pane.h"
#include "workarea/report_names.h"

namespace tarnwell::workarea {

// The areas with reports that the user names: job descriptions, disciplinary actions, evaluations.
class ReportsPane : public NamedPane {
 public:
  using NamedPane::NamedPane;

  bool Has(Area area) const override;
  bool Save() override;
  void InsertTemplate() override;

 private:
  std::optional<forms::Draft> Place() override;
  bool GoTo(forms::DraftTexts& place) override;
  void Show(Area area) override;
  void ShowDocument(const std::string& name) override;
  std::string KindWord() const override { return std::string(kind_->title); }
  std::string Title() const override;

  void BeginFromTemplate();
  void BeginBlank();
  void Begin(const std::string& like, std::string_view reminder);
  bool KeepText(const std::string& name);
  bool SaveAs(const std::string& name);
  // The document in hand was chosen from the list and still has its name.
  bool IsUpdate(const std::string& name);
  void Tell(std::string_view title, std::string_view text);

  const ReportKind* kind_ = nullptr;
};

}  // namespace tarnwell::workarea
