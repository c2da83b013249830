#pragma once

#include "workarea/areas.h"
#include "workarea/document_printing.h"

namespace tarnwell::workarea {

// What the hub shows for an area. One pane is in hand at a time and has the document view.
class Pane {
 public:
  virtual ~Pane() = default;

  virtual void Enter(Area area) = 0;
  // Another area is chosen: hides what is the pane's own. The view is settled.
  virtual void Leave() = 0;

  // The commands beside the document view. Save says false when the disk refused.
  virtual bool Save() = 0;
  virtual void InsertTemplate() = 0;
  virtual void PickView(int option) = 0;
  virtual void PickStatus() = 0;
  // "E&xit": empties the view, which is settled.
  virtual void CloseDocument() = 0;

  virtual PrintedDocument ToPrint() = 0;
};

}  // namespace tarnwell::workarea
