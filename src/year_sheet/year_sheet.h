// What the screens of a year's sheet have in common: a year, a grid of names by twelve months, an
// Input Box, and the commands on rows, files and paper.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/command.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "forms/typed_combo.h"
#include "parts/color_choice.h"
#include "parts/export_panel.h"
#include "parts/grid_background_panel.h"
#include "parts/save_question.h"
#include "print/print_panel.h"
#include "year_sheet/amounts.h"
#include "year_sheet/rows.h"
#include "year_sheet/years.h"

namespace tarnwell::year_sheet {

// What sets one sheet apart from the others.
struct YearSheetStyle {
  std::string_view form_name;
  std::string caption;
  std::string_view grid_name;   // what a screen reader says of the grid
  std::string_view name_title;  // of the column of names
  std::string_view box_title;   // of the question before changes are left: "Company Budget"
  std::string_view kind;        // what that question calls the sheet: "budget"
  std::string_view copied;      // what the clipboard's box calls it: "Budget"
  Years years;
  AmountStyle amounts;
  std::string_view copy_year_caption;
  std::string_view insert_entry;            // the menu entry's fixed name
  std::string_view print_entry = "&Print";  // captions of menu entries
  std::string_view copy_entry = "&Copy";
  std::string_view export_stem;   // of the exported file; the year and ".xls" follow
  bool supply_extension = false;  // of the exported file
  settings::PanelColor panel_color{};
  std::optional<settings::FieldColor> field_color = std::nullopt;
  settings::GridBackground background{};
  print::PrintPanelStyle print = {};
  int help = 0;
  int backup_set = 0;  // parts/backup_menu.h
};

// A column of amounts, as wide as a month.
forms::GridColumn AmountColumn(std::string_view title, bool editable);

class YearSheet : public forms::Form {
 public:
  enum Column : int { kNumber, kName, kFirstMonth, kLastMonth = kFirstMonth + 11 };

  YearSheet(forms::Context& context, const YearSheetStyle& style);

  forms::Panel sheet{*this, "SSPanel1"};
  forms::Label year_label{sheet, "Label1", "Select Year:"};
  forms::TypedCombo years{
      sheet, "Combo1", {.max_length = 4, .characters = "0123456789", .spoken_name = "Year"}};
  forms::Label box_label{sheet, "Label2", "Input Box:"};
  forms::TextField box{sheet, "Text1", {.spoken_name = "Input Box"}};
  forms::Label location{sheet, "Panel3D4"};
  forms::Grid grid;
  forms::Command save{sheet, "Command5", "&Save"};
  forms::Command copy_right{sheet, "Command4", "&Copy To Right"};
  forms::Command delete_row{sheet, "Command6", "&Delete Row"};
  forms::Command copy_year;
  forms::Command totals{sheet, "Command8", "&Totals (Yr)"};
  forms::Command spelling{sheet, "Command15", "Spelling Chec&k"};
  forms::Command print_options{sheet, "Command2", "&Print Options"};
  forms::Command exit{sheet, "Command3", "E&xit ", {.cancel = true}};
  print::PrintPanel print;
  parts::ExportPanel exporting;
  parts::GridBackgroundPanel background;
  parts::ColorChoice colors;

  void Load() override;
  bool QueryUnload(forms::UnloadCause cause) override;
  std::optional<forms::Draft> TakeDraft() override;
  bool PutDraft(forms::DraftTexts texts) override;

 protected:
  // What a sheet does its own way. Years and rows are those on show.

  // Shows the year's rows, by Fill, and says why its file can't be read. The sheet is locked then.
  virtual storage::Fault ReadYear(int year) = 0;
  virtual storage::Outcome WriteYear(int year) = 0;
  virtual std::string FileOf(int year) const = 0;
  // What a person types beside the grid.
  virtual std::vector<std::string> TextsBeside() const { return {}; }
  virtual void PutTextsBeside(std::vector<std::string> /*texts*/) {}
  // A row has changed, or with 0 any number of them: computes what follows from it.
  virtual void Recompute(int row) = 0;
  // Both are told which row, from 1.
  virtual void InsertRow(int row) = 0;
  virtual void RemoveRow(int row) = 0;
  // The columns behind the months.
  virtual std::vector<forms::GridColumn> MoreColumns() const { return {}; }
  // A person has gone to a cell.
  virtual void CursorMoved() {}
  virtual void CopyYear() { CopyWholeYear(); }
  virtual void ShowTotals() = 0;
  virtual print::PrintJob Report() = 0;
  virtual std::string ClipboardText() = 0;
  // The controls that do nothing in a sheet that can't be read.
  virtual std::vector<forms::Control*> Editors();

  int shown_year() const { return shown_year_; }
  void Fill(const Rows& rows);
  // From the first to the last, blank ones too.
  Rows ShownRows() const;
  // A row among the first twenty has a name.
  bool HasNames() const;
  // Ends what is being typed in the grid. False where that is refused.
  bool EndEdit() { return grid.EndEdit(); }
  void MarkChanged() { question_.SetUnsaved(true); }
  // The command Copy To Next Year, and its question: `words` stand behind " file ".
  void CopyWholeYear();
  bool AskToCopyYear(std::string_view words = {});
  // The box about a copy that the disk refused, or what the copy has replaced, in the status bar.
  void TellCopied(const storage::Outcome& copied, bool has_replaced);
  bool HasFileOfNextYear() { return context_.folder.Exists(FileOf(shown_year_ + 1)); }
  void OpenPrint();
  // Asks first.
  void RemovePicked();

 private:
  void ConnectCommands();
  void ConnectGrid();
  void BuildMenus();
  void BuildGrid();

  bool Settle();
  bool SettleYear();
  void ReadAnew();
  void TakeYear();
  void ShowYear(int wanted);
  parts::SaveResult Save();

  // Back to the first cell, with nothing picked.
  void GoToStart();
  bool TakesCell(int row, int column, std::string& text);
  void Edited(int row);
  void Moved();
  void ShowCell();
  void TypedInBox();
  void CopyRight();
  void Insert();
  void Sort(int column);
  void CheckSpelling();
  void Copy();

  YearSheetStyle style_;
  parts::SaveQuestion question_;
  int shown_year_ = 0;
  bool is_readable_ = true;
};

}  // namespace tarnwell::year_sheet
