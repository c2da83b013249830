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
  std::optional<forms::Draft> TakeDraft() override;
  bool PutDraft(forms::DraftTexts& texts) override;
  PaneMenu Menu() override;

 protected:
  // Which document is in hand, and the file that saving it would write: a draft without the text.
  // Nothing where there is none that could be saved.
  virtual std::optional<forms::Draft> Place() { return std::nullopt; }
  // Opens that document. False where it can't be edited.
  virtual bool GoTo(forms::DraftTexts& /*place*/) { return false; }
  // The view is the pane's, and empty.
  virtual void Show(Area area) = 0;
  virtual void Hide() {}

  DocumentView& view_;
};

}  // namespace tarnwell::workarea
