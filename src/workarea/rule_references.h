#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "print/page_engine.h"
#include "workarea/document_view.h"
#include "workarea/rule_table.h"

namespace tarnwell::workarea {

// A row of the rule: its standard and section, and the button of its specification.
struct RuleButton {
  RuleButton(forms::Container& parent, int index);

  forms::Label standard;
  forms::Command button;
};

// The rule table and its reference views: three supplied texts, shown where they treat the row in
// hand.
class RuleReferences {
 public:
  RuleReferences(forms::Container& rows_parent, DocumentView& view);

  forms::Panel frame;  // in the view
  forms::OptionGroup views;
  forms::Panel panel;  // of the rows
  std::vector<std::unique_ptr<RuleButton>> rows;
  forms::Label note{panel, "Label16(1)", std::string(kRuleNote)};

  // A view is chosen; none is, at first and after Close.
  bool is_open() const { return panel.visible(); }
  void Open(int reference);
  void Close();
  // What the row in hand is called.
  std::string Title() const;
  // All rows, as a table.
  static void Print(print::PageEngine& engine);

 private:
  void Choose(int row);
  void Show();

  DocumentView& view_;
  int reference_ = 0;
  int row_ = 0;
};

}  // namespace tarnwell::workarea
