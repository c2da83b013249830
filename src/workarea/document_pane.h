#pragma once

#include "workarea/document_view.h"
#include "workarea/pane.h"

namespace tarnwell::workarea {

// A pane whose area shows documents in the hub's one view of them.
class DocumentPane : public Pane, public DocumentOwner {
 public:
  explicit DocumentPane(DocumentView& view) : view_(view) {}

  void Enter(Area area) override;
  void Leave() override;
  bool OfferToSave() override { return view_.OfferToSave(); }
  bool Settle() override { return view_.Settle(); }
  PaneMenu Menu() override;

 protected:
  // The view is the pane's, and empty.
  virtual void Show(Area area) = 0;
  virtual void Hide() {}

  DocumentView& view_;
};

}  // namespace tarnwell::workarea
