#include "planner/todo_import_panel.h"

namespace tarnwell::planner {

ToDoImportPanel::ToDoImportPanel(forms::Form& form, forms::Context& context)
    : panel(form, "SSPanel5", " Importing To Do List Items:"), form_(form), context_(context) {
  panel.SetVisible(false);
}

bool ToDoImportPanel::Confirmed() {
  return form_.Confirmed({"To Do List Import Function", "Do you want to Import To Do List Items?",
                          forms::Icon::kQuestion, forms::Buttons::kYesNo});
}

bool ToDoImportPanel::Open() {
  items_ = ReadToDoItems(context_.folder);
  if (!items_.empty()) return true;
  form_.Message({"Import To Do List Items", "No To Do List Items to Import have been found!",
                 forms::Icon::kInformation});
  return false;
}

void ToDoImportPanel::Run(text::Date first) {
  const forms::Form::BusyScope busy(form_);
  panel.SetVisible(true);
  progress.Start(static_cast<int>(items_.size()));
  for (const ToDoItem& item : items_) {
    if (item.date >= first) ImportToDoItem(context_.folder, item);
    progress.SetValue(progress.value() + 1);
    context_.loop.Yield();
  }
  panel.SetVisible(false);
}

}  // namespace tarnwell::planner
