#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/command.h"
#include "forms/panel.h"
#include "workarea/document_pane.h"
#include "workarea/rule_references.h"
#include "workarea/status_choice.h"
#include "workarea/titles_panel.h"
#include "workarea/worksheet_titles.h"

namespace tarnwell::workarea {

// The area of the worksheets, whose buttons the user names, and of the rule that they work through.
class WorksheetsPane : public DocumentPane {
 public:
  // `form` has the panel of the titles, `parent` the buttons.
  WorksheetsPane(forms::Container& form, forms::Container& parent, forms::Context& context,
                 DocumentView& view);

  forms::Panel panel;
  std::vector<std::unique_ptr<forms::Command>> buttons;  // 1 to 20
  forms::Command terms;
  RuleReferences references;
  TitlesPanel titles;

  bool Has(Area area) const override { return area == kWorksheets; }
  bool Settle() override { return titles.Settle() && view_.Settle(); }
  PaneMenu Menu() override;
  bool Save() override;
  void InsertTemplate() override;
  void PickStatus() override;
  void CloseDocument() override;
  void Exit() override;
  PrintedDocument ToPrint() override;

 private:
  std::optional<forms::Draft> Place() override;
  bool GoTo(forms::DraftTexts& place) override;
  void Show(Area area) override;
  void Hide() override;
  void ShowTitles();
  void OpenTitles();
  bool ChangeTitles(const NewTitles& titles);
  void Choose(int number);
  void OpenReference(int reference);
  void ShowStatus(bool shown);
  void Paint();
  std::string Heading() const;
  void ExplainTerms();

  forms::Context& context_;
  WorksheetTitles stored_;
  storage::Fault titles_fault_ = storage::Fault::kNone;
  StatusChoice status_;
  int number_ = 0;  // of the worksheet in hand, 0 for none
};

}  // namespace tarnwell::workarea
