#pragma once

#include <vector>

#include "forms/form.h"
#include "forms/panel.h"
#include "forms/progress_bar.h"
#include "planner/todo_import.h"

namespace tarnwell::planner {

// The import of the company's To Do list: its question, and the panel that shows how far it is.
class ToDoImportPanel {
 public:
  ToDoImportPanel(forms::Form& form, forms::Context& context);

  forms::Panel panel;
  forms::ProgressBar progress{panel, "ProgressBar2", "Items imported"};

  bool Confirmed();
  // Reads the list. False, with a message, when nothing in it can be imported.
  bool Open();
  // Puts the items of that day and later ones on their days. The form is busy meanwhile.
  void Run(text::Date first);

 private:
  forms::Form& form_;
  forms::Context& context_;
  std::vector<ToDoItem> items_;
};

}  // namespace tarnwell::planner
