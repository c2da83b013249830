#pragma once

#include <vector>

#include "forms/context.h"
#include "forms/menu.h"
#include "forms/rich_text_box.h"

namespace tarnwell::parts {

// What can be done to the tables of a document: it hangs below a button, comes with a right-click
// and stands in the menu of the form.
class TableMenu {
 public:
  TableMenu(forms::Context& context, forms::RichTextBox& text);

  forms::MenuItem popup{"mT", "&Table"};
  // The same entries once more.
  void AddTo(forms::MenuItem& menu);
  // The cursor has come into a table or out of it.
  void Follow(bool in_table);

 private:
  void Fill(forms::MenuItem& menu, std::string_view name);
  void Insert();

  forms::Context& context_;
  forms::RichTextBox& text_;
  std::vector<forms::MenuItem*> of_tables_;  // what only tables have a use for
  std::vector<forms::MenuItem*> of_text_;    // and what they have none for
};

}  // namespace tarnwell::parts
