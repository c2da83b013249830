// Export of a grid as a spreadsheet file into a folder that the user chooses.

#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/command.h"
#include "forms/context.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "parts/folder_chooser.h"

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
  forms::Label folder_line{panel, "Label100(0)"};
  forms::Label name_line{panel, "Label100(1)"};
  forms::Label replace_line{panel, "Label100(2)",
                            "Note: If File already exists it will be replaced with this file!"};
  forms::Label extra_line{panel, "Label100(3)"};
  FolderChooser chooser;
  forms::TextField name;
  forms::Command save{panel, "SSCommand100(0)", "Export File to Selected Folder"};
  forms::Command close{panel, "SSCommand100(1)", "Close"};

  // Shows the panel on the program's folder. The grid must live until it is closed.
  void Open(const forms::Grid& grid, std::string_view file_name);
  void Close();
  bool is_open() const { return panel.visible(); }

  std::function<void()> on_close;

 private:
  void PickFile();
  void Export();
  void ShowLines();
  void EnableSave();
  std::string TakeName();

  forms::Context& context_;
  ExportStyle style_;
  const forms::Grid* grid_ = nullptr;
};

}  // namespace tarnwell::parts
