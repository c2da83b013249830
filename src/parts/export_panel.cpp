#include "parts/export_panel.h"

#include "forms/disk_trouble.h"
#include "forms/message.h"
#include "text/letters.h"

namespace tarnwell::parts {
namespace {

constexpr std::string_view kExtension = ".xls";

}  // namespace

std::string TabDelimited(const forms::Grid& grid) {
  std::string content;
  for (int row = 0; row < grid.rows(); ++row) {
    for (int column = 0; column < grid.columns(); ++column) {
      if (column > 0) content += '\t';
      for (char letter : grid.text(row, column)) {
        content += letter == '\t' || letter == '\r' || letter == '\n' ? ' ' : letter;
      }
    }
    content += "\r\n";
  }
  return content;
}

ExportPanel::ExportPanel(forms::Container& parent, forms::Context& context,
                         const ExportStyle& style)
    : panel(parent, "SSPanel100", "Export File in Excel/Spreadsheet Format"),
      chooser(panel, context, {.extensions = {kExtension}}),
      name(panel, style.name_field, {.spoken_name = "File name"}),
      context_(context),
      style_(style) {
  panel.SetVisible(false);
  extra_line.SetCaption(style.extra_line);
  extra_line.SetVisible(!style.extra_line.empty());
  chooser.on_folder = [this] { EnableSave(); };
  chooser.on_file = [this] { PickFile(); };
  name.on_change = [this] { EnableSave(); };
  save.on_click = [this] { Export(); };
  close.SetCancel(true);
  close.on_click = [this] { Close(); };
}

void ExportPanel::Open(const forms::Grid& grid, std::string_view file_name) {
  grid_ = &grid;
  name.SetText(file_name);
  panel.SetVisible(true);
  chooser.Open();
  EnableSave();
}

void ExportPanel::Close() {
  if (!is_open()) return;
  panel.SetVisible(false);
  grid_ = nullptr;
  if (on_close) on_close();
}

void ExportPanel::ShowLines() {
  folder_line.SetCaption(std::string(style_.first_line) + "\n\n" + chooser.folder());
  name_line.SetCaption("With the following name:  " + name.text());
}

void ExportPanel::PickFile() {
  name.SetText(chooser.files.text());
  EnableSave();
}

void ExportPanel::EnableSave() {
  ShowLines();
  save.SetEnabled(chooser.is_readable() && !name.text().empty());
}

// The file's name as it is meant; empty when it is none.
std::string ExportPanel::TakeName() {
  std::string file = text::Trim(name.text());
  if (style_.supply_extension && !file.empty() && !chooser.Lists(file)) file += kExtension;
  const bool leaves_folder = file.find_first_of("\\/:") != std::string::npos;
  return chooser.Lists(file) && !leaves_folder ? file : std::string();
}

void ExportPanel::Export() {
  const std::string file = TakeName();
  if (file.empty()) {
    forms::ShowMessage(
        context_, {"Export Error", "File Name is Missing or Incorrect", forms::Icon::kCritical});
    return;
  }
  const auto written = [&] {
    const forms::Hourglass hourglass(context_.window);
    return context_.folders.WriteFile(chooser.folder() + file, TabDelimited(*grid_));
  }();
  if (!written) return forms::TellNotSaved(context_, "The file " + file, written.fault());
  forms::ShowMessage(context_, {"Export Function", "Export Completed to selected location!",
                                forms::Icon::kInformation});
  chooser.Refresh();
}

}  // namespace tarnwell::parts
