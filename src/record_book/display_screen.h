// The display of a record book: a grid of names with one thing more of each, as an option says, and
// its lists and reports.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "parts/color_choice.h"
#include "parts/export_panel.h"
#include "parts/grid_background_panel.h"
#include "print/print_panel.h"
#include "record_book/cell_links.h"
#include "record_book/display_report.h"
#include "record_book/display_rows.h"

namespace tarnwell::record_book {

// What sets one display apart from the others.
struct DisplayStyle {
  std::string_view form_name;
  std::string_view caption;
  DisplayBook book;
  std::string_view grid_name;       // what a screen reader says of the grid
  std::string_view report_caption;  // of the command
  std::string_view report_title;
  std::string_view list_date;  // the mask of the date on lists
  const char* pictures_form;   // the screen of the last option
  bool heading_grid = false;   // a grid of its own heads the addresses
  settings::PanelColor panel_color{};
  std::optional<settings::PrinterFont> font = std::nullopt;
  int help = 0;
};

class DisplayScreen : public forms::Form {
 public:
  enum Column : int { kName, kValue };  // an address has two more

  DisplayScreen(forms::Context& context, const DisplayStyle& style);

  forms::Panel sheet{*this, "SSPanel1"};
  forms::Panel option_frame{sheet, "SSFrame1", "Select Information to View"};
  forms::OptionGroup options;
  forms::Label mode{sheet, "Label1"};
  forms::TextField search_text{sheet, "Text1", {.max_length = 60, .spoken_name = "Search text"}};
  forms::Command search{sheet, "Command4", "&Search"};
  forms::Command view_all{sheet, "Command3", "&View All"};
  forms::Label shown_option{sheet, "Panel3D1", {}, forms::LabelRole::kHeading};
  forms::Label count{sheet, "Panel3D2"};
  std::optional<forms::Grid> headings;  // over the addresses, where the display has it
  forms::Grid grid;
  CellLinks links;
  forms::Command remove_row{sheet, "Command5", "&Delete"};
  forms::Command print_options{sheet, "Command2", "&Print Options"};
  forms::Command complete_report;
  forms::Command exit{sheet, "Command1", "E&xit", {.cancel = true}};
  print::PrintPanel print;
  forms::CheckBox with_telephones{print.options_frame, "SSCheck81(2)",
                                  "Print Telephone Number Also"};
  forms::OptionGroup list_columns{
      print.options_frame, "SSOption84", {"One Column Output", "Two Column Output"}};
  parts::ExportPanel exporting;
  parts::GridBackgroundPanel background;
  parts::ColorChoice colors;

  void Load() override;
  bool QueryUnload(forms::UnloadCause cause) override;
  void Unload() override { links.dialer.Stop(); }

 private:
  void ConnectCommands();
  void ConnectPanels();
  void BuildMenus();

  const DisplayOption& Option() const;
  void Pick(int option);
  void Fill();
  void ShowColumns(const DisplayOption& option);
  void ShowRows(const std::vector<DisplayRow>& rows);
  void ShowCount(std::size_t rows);
  std::vector<DisplayRow> ShownRows() const;
  int NamedRows() const;

  void ViewAll();
  void Search();
  void FindAsTyped();
  void Moved();
  void Sort(int column);
  void RemoveRow();
  void Copy();
  void Export();
  void PrintList();
  void PrintReport();
  void BuildReport(print::PageEngine& engine);
  void OpenPrint(print::PrintJob job, bool is_list);

  DisplayStyle style_;
  NameList names_;
  std::vector<std::string> telephones_;  // of the grid's rows, from its row 1 on
  std::optional<std::string> sought_;    // in Search mode
};

}  // namespace tarnwell::record_book
