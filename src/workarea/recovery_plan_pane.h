#pragma once

#include "workarea/document_view.h"
#include "workarea/pane.h"

namespace tarnwell::workarea {

// The area of the company's disaster recovery plan, which is one document.
class RecoveryPlanPane : public Pane {
 public:
  RecoveryPlanPane(forms::Context& context, DocumentView& view) : context_(context), view_(view) {}

  void Enter(Area area) override;
  void Leave() override { CloseDocument(); }
  bool Save() override;
  void InsertTemplate() override;
  void PickView(int) override {}
  void PickStatus() override {}
  void CloseDocument() override;
  PrintedDocument ToPrint() override;

 private:
  bool HasPlan() const;

  forms::Context& context_;
  DocumentView& view_;
};

}  // namespace tarnwell::workarea
