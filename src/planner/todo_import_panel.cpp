#include "planner/todo_import_panel.h"

#include <string>

#include "forms/disk_trouble.h"
#include "storage/file_names.h"
#include "storage/sequential_file.h"

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
  storage::SequentialReader list(context_.folder, storage::file_names::kToDoList);
  if (list.is_unreadable()) {
    forms::TellUnreadable(context_, "The To Do list", list.fault());
    return false;
  }
  items_ = ReadToDoItems(list);
  if (!items_.empty()) return true;
  form_.Message({"Import To Do List Items", "No To Do List Items to Import have been found!",
                 forms::Icon::kInformation});
  return false;
}

void ToDoImportPanel::Run(text::Date first) {
  const forms::Form::BusyScope busy(form_);
  panel.SetVisible(true);
  progress.Start(static_cast<int>(items_.size()));
  int failed = 0;
  auto reason = storage::Fault::kNone;
  for (const ToDoItem& item : items_) {
    const auto placed =
        item.date >= first ? ImportToDoItem(context_.folder, item) : storage::Outcome();
    if (!placed) {
      ++failed;
      reason = placed.fault();
    }
    progress.SetValue(progress.value() + 1);
    context_.loop.Yield();
  }
  panel.SetVisible(false);
  if (failed == 0) return;
  form_.Message({"Not Saved",
                 std::to_string(failed) + (failed == 1 ? " item" : " items") +
                     " could not be entered: " + std::string(forms::ReasonOf(reason)) + ".",
                 forms::Icon::kCritical});
}

}  // namespace tarnwell::planner
