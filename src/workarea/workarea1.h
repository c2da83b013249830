#pragma once

#include <vector>

#include "forms/form.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "parts/color_choice.h"
#include "parts/main_buttons.h"
#include "workarea/archive_pane.h"
#include "workarea/area_buttons.h"
#include "workarea/document_printing.h"
#include "workarea/document_view.h"
#include "workarea/documents_pane.h"
#include "workarea/names_panel.h"
#include "workarea/recovery_plan_pane.h"
#include "workarea/reports_pane.h"
#include "workarea/todo_pane.h"
#include "workarea/worksheets_pane.h"

namespace tarnwell::workarea {

// The hub: the Company Data and Employee Data areas, below all other screens but the start screen.
class WorkArea1 : public forms::Form {
 public:
  explicit WorkArea1(forms::Context& context);

  parts::MainButtons main_buttons{*this};
  forms::Label date{*this, "Label1"};
  forms::Label area_title{*this, "Label2", {}, forms::LabelRole::kTitle};
  forms::Panel areas{*this, "SSPanel3"};
  AreaButtonColumn area_buttons{areas};
  DocumentView document;
  DocumentsPane documents;
  RecoveryPlanPane recovery_plan;
  ToDoPane to_do;
  NamesPanel names{areas};
  ReportsPane reports;
  ArchivePane archive;
  WorksheetsPane worksheets;
  DocumentPrinting printing;
  parts::ColorChoice colors;

  void Load() override;
  void Activate() override;
  bool QueryUnload(forms::UnloadCause cause) override;
  std::optional<forms::Draft> TakeDraft() override;
  bool PutDraft(forms::DraftTexts texts) override;

 private:
  void BuildMenus();

  void GoTo(Area area);
  void Press(int index);
  void ShowMainArea(parts::MainArea main_area);
  void AskToExit();
  bool LeaveColors();

  void ChooseArea(Area area);
  void EnterArea(Area area);
  void LeaveArea();
  void Reload();
  // In the place of the area in hand, to which leaving it goes back.
  void ShowArchive();
  Pane* PaneOf(Area area);
  // Of the pane on show, or none.
  void LendMenu();

  void PrintAll(DocumentPrinting::Breaks breaks);
  void ShowColors();
  // Each comes up in the place of the areas.
  std::vector<forms::Panel*> PanelsOverAreas();

  parts::MainArea main_area_ = parts::kCompanyData;
  Area area_ = kNoArea;
  const std::vector<Pane*> panes_{&to_do,   &documents, &recovery_plan,
                                  &reports, &archive,   &worksheets};
  Pane* pane_ = nullptr;
  std::vector<forms::MenuItem*> pane_entries_;
};

}  // namespace tarnwell::workarea
