#pragma once

#include <map>
#include <optional>
#include <string_view>

#include "forms/draft.h"
#include "forms/menu.h"
#include "workarea/areas.h"

namespace tarnwell::workarea {

// What the hub's menu entries do, by their fixed names.
using PaneMenu = std::map<std::string_view, forms::MenuAction>;

// What the hub shows for an area. One pane is in hand at a time.
class Pane {
 public:
  virtual ~Pane() = default;

  virtual bool Has(Area area) const = 0;
  virtual void Enter(Area area) = 0;
  // Another area is chosen: hides what is the pane's own. It is settled.
  virtual void Leave() = 0;

  // Something would read the files of what is on show: offers to save it. False when that was
  // wanted and didn't work.
  virtual bool OfferToSave() = 0;
  // Something would take the pane's place. False when it has to stay.
  virtual bool Settle() = 0;

  // What is typed and not saved, as forms::Form has it; the pane is in hand.
  virtual std::optional<forms::Draft> TakeDraft() { return std::nullopt; }
  virtual bool PutDraft(forms::DraftTexts& /*texts*/) { return false; }

  // Of the entries that the pane works with. The others are dead while it is in hand.
  virtual PaneMenu Menu() = 0;
};

}  // namespace tarnwell::workarea
