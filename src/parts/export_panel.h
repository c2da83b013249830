// Export of a grid as a spreadsheet file into a folder that the user chooses.

#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/context.h"
#include "forms/control_array.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/panel.h"
#include "forms/text_field.h"

namespace tarnwell::parts {

// All cells, heading and fixed columns too, as text: tabs between them, CR LF behind each row. A
// tab or line end inside a cell becomes a blank.
std::string TabDelimited(const forms::Grid& grid);

// What differs from screen to screen.
struct ExportStyle {
  std::string_view first_line =
      "A non-formatted Spreadsheet File will be saved in the program folder:  ";
  std::string_view extra_line = {};  // said about the grid, in front of the last line
  std::string_view name_field = "Text4";
  bool supply_extension = false;  // ".xls" goes behind a name without it, instead of a message
};

class ExportPanel {
 public:
  ExportPanel(forms::Container& parent, forms::Context& context, const ExportStyle& style = {});

  forms::Panel panel;
  forms::ControlArray<forms::Label, 4> lines{panel, "Label100"};
  forms::Label drives_heading{panel, "Label20", "Drives:"};
  // The places of this machine from which folders are reached.
  forms::ComboBox drives{panel, "Drive1", "Drives"};
  forms::Label folders_heading{panel, "Label21", "Folders:"};
  // The folder above is its first row, "..", where there is one. A folder is opened, not picked.
  forms::ListBox folders{panel, "Dir1", "Folders"};
  forms::Label path_heading{panel, "Label22", "Path:"};
  forms::Label path{panel, "Label24"};
  forms::Label files_heading{panel, "Label23", "File:"};
  forms::ListBox files{panel, "File1", "File"};
  forms::TextField name;
  forms::Command save{panel, "SSCommand100(0)", "Export File to Selected Folder"};
  forms::Command close{panel, "SSCommand100(1)", "Close"};

  // Shows the panel on the program's folder. The grid must live until it is closed.
  void Open(const forms::Grid& grid, std::string_view file_name);
  void Close();
  bool is_open() const { return panel.visible(); }

  std::function<void()> on_close;

 private:
  void PickDrive();
  void OpenFolder();
  void PickFile();
  void Export();
  bool Show(const std::string& folder);
  void SelectDrive();
  bool FallBack();
  void ShowLines();
  void EnableSave();
  std::string TakeName();

  forms::Context& context_;
  ExportStyle style_;
  const forms::Grid* grid_ = nullptr;
  std::vector<forms::Place> places_;
  std::string folder_;  // with a "/" behind
  bool no_drive_ = false;
};

}  // namespace tarnwell::parts
