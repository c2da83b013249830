#pragma once

#include <functional>

#include "workarea/document_pane.h"

namespace tarnwell::workarea {

// The area of the company's disaster recovery plan, which is one document.
class RecoveryPlanPane : public DocumentPane {
 public:
  RecoveryPlanPane(forms::Context& context, DocumentView& view)
      : DocumentPane(view), context_(context) {}

  bool Has(Area area) const override { return area == kRecoveryPlan; }
  bool Save() override;
  void InsertTemplate() override;
  void CloseDocument() override;
  // The area is left with its document, so that its button brings it back.
  void Exit() override { on_exit(); }
  PrintedDocument ToPrint() override;

  std::function<void()> on_exit;

 private:
  std::optional<forms::Draft> Place() override;
  bool GoTo(forms::DraftTexts& place) override;
  void Show(Area area) override;
  bool HasPlan() const;

  forms::Context& context_;
};

}  // namespace tarnwell::workarea
