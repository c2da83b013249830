#pragma once

#include <functional>

#include "forms/command.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/typed_combo.h"
#include "parts/export_panel.h"
#include "parts/grid_background_panel.h"
#include "parts/save_question.h"
#include "print/print_panel.h"
#include "workarea/pane.h"
#include "workarea/todo_names.h"
#include "workarea/todo_sheet.h"

namespace tarnwell::workarea {

// The area of the company's To Do list.
class ToDoPane : public Pane {
 public:
  // `areas` holds what the hub shows of its areas; the panels that take its place lie in the hub.
  ToDoPane(forms::Form& hub, forms::Container& areas, forms::Context& context);

  forms::Panel panel;
  forms::Label heading{panel, "Label13", "Company To Do List", forms::LabelRole::kHeading};
  forms::Label date{panel, "Label14"};
  forms::Panel names_frame{panel, "SSFrame19"};
  forms::TypedCombo names{
      names_frame,
      "Combo2",
      {.max_length = kLongestToDoItem, .completes = true, .spoken_name = "Reusable item names"}};
  forms::Command add{names_frame, "SSCommand19(2)", "&Add to To Do Grid"};
  forms::Command delete_name{names_frame, "SSCommand19(1)", "&Delete Item fm File"};
  ToDoSheet sheet;
  forms::Command save{panel, "SSCommand19(5)", "&Save"};
  forms::Command delete_row{panel, "SSCommand19(3)", "&Delete Item from Grid"};
  forms::Command clear{panel, "SSCommand19(6)", "&Clear Grid"};
  forms::Command spelling{panel, "SSCommand20", "Spell Chec&k"};
  forms::Command print_options{panel, "SSCommand19(4)", "&Print Options"};
  forms::Command exit{panel, "SSCommand19(0)", "E&xit"};
  parts::ExportPanel exporting;
  parts::GridBackgroundPanel background;

  bool Has(Area area) const override { return area == kToDoList; }
  void Enter(Area area) override;
  void Leave() override;
  bool OfferToSave() override;
  bool Settle() override;
  std::optional<forms::Draft> TakeDraft() override;
  bool PutDraft(forms::DraftTexts& texts) override;
  PaneMenu Menu() override;

  bool unsaved() const { return question_.unsaved(); }

  std::function<void()> on_saved;
  std::function<void(print::PrintJob)> on_print;
  std::function<void()> on_exit;

 private:
  // The hub's own command of that name writes a file of its own as well.
  enum class SaveKind { kOfScreen, kGeneral };

  void ConnectCommands();
  void ShowState(storage::Fault list_fault);
  parts::SaveResult Save(SaveKind kind = SaveKind::kOfScreen);
  void AddName();
  void DeleteName();
  void TakeItem(const std::string& item);
  void CheckSpelling();
  void CorrectNames(const std::vector<ToDoRow>& before, const std::vector<ToDoRow>& after);
  void Print();
  void Copy();

  forms::Form& hub_;
  forms::Context& context_;
  parts::SaveQuestion question_;
  ToDoNames names_;
};

}  // namespace tarnwell::workarea
