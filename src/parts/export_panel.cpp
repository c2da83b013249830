#include "parts/export_panel.h"

#include <algorithm>

#include "forms/disk_trouble.h"
#include "forms/message.h"
#include "text/letters.h"

namespace tarnwell::parts {
namespace {

constexpr const char* kAbove = "..";
constexpr std::string_view kExtension = ".XLS";

bool HasExtension(std::string_view name) {
  return text::UpperCase(text::Right(name, kExtension.size())) == kExtension;
}

std::string WithSlash(std::string path) {
  if (!path.ends_with('/')) path += '/';
  return path;
}

// Of a folder with a "/" behind; itself at the top.
std::string FolderAbove(const std::string& folder) {
  if (folder.size() < 2) return folder;
  const std::size_t end = folder.rfind('/', folder.size() - 2);
  return end == std::string::npos ? folder : folder.substr(0, end + 1);
}

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
      name(panel, style.name_field, {.spoken_name = "File name"}),
      context_(context),
      style_(style) {
  panel.SetVisible(false);
  drives.on_pick = [this] { PickDrive(); };
  folders.on_open = [this] { OpenFolder(); };
  files.on_pick = [this] { PickFile(); };
  name.on_change = [this] { EnableSave(); };
  save.on_click = [this] { Export(); };
  close.SetCancel(true);
  close.on_click = [this] { Close(); };
}

void ExportPanel::Open(const forms::Grid& grid, std::string_view file_name) {
  grid_ = &grid;
  no_drive_ = false;
  name.SetText(file_name);
  places_ = context_.folders.Places();
  std::vector<std::string> names;
  for (const forms::Place& place : places_) names.push_back(place.name);
  drives.SetItems(std::move(names));
  panel.SetVisible(true);
  no_drive_ = !FallBack();
  EnableSave();
}

// To the program's own folder, or to the first place that can be read.
bool ExportPanel::FallBack() {
  return Show(context_.folders.ProgramPath()) ||
         std::ranges::any_of(places_, [&](const forms::Place& place) { return Show(place.path); });
}

void ExportPanel::Close() {
  if (!is_open()) return;
  panel.SetVisible(false);
  grid_ = nullptr;
  if (on_close) on_close();
}

// False, with everything as it was, when the folder can't be read.
bool ExportPanel::Show(const std::string& folder) {
  const std::string path_text = WithSlash(folder);
  const auto below = context_.folders.Folders(path_text);
  const auto names = context_.folders.Files(path_text);
  if (!below || !names) return false;
  folder_ = path_text;
  std::vector<std::string> rows;
  if (FolderAbove(folder_) != folder_) rows.emplace_back(kAbove);
  rows.insert(rows.end(), below->begin(), below->end());
  folders.SetItems(std::move(rows));
  std::vector<std::string> sheets;
  std::ranges::copy_if(*names, std::back_inserter(sheets), HasExtension);
  files.SetItems(std::move(sheets));
  SelectDrive();
  path.SetCaption(folder_);
  ShowLines();
  return true;
}

// The place that lies nearest above the folder.
void ExportPanel::SelectDrive() {
  int nearest = forms::ComboBox::kNone;
  std::size_t longest = 0;
  for (std::size_t i = 0; i < places_.size(); ++i) {
    const std::string place = WithSlash(places_[i].path);
    if (!folder_.starts_with(place) || place.size() <= longest) continue;
    nearest = static_cast<int>(i);
    longest = place.size();
  }
  drives.Select(nearest);
}

void ExportPanel::ShowLines() {
  lines[0].SetCaption(std::string(style_.first_line) + "\n\n" + folder_);
  lines[1].SetCaption("With the following name:  " + name.text());
  lines[2].SetCaption("Note: If File already exists it will be replaced with this file!");
  lines[3].SetCaption(style_.extra_line);
  lines[3].SetVisible(!style_.extra_line.empty());
}

void ExportPanel::OpenFolder() {
  const std::string chosen = folders.text();
  const std::string folder =
      chosen == kAbove && folders.selected() == 0 ? FolderAbove(folder_) : folder_ + chosen;
  if (Show(folder)) return;
  forms::ShowMessage(context_,
                     {"Device Status", "Device Unavailable!  ", forms::Icon::kExclamation});
  FallBack();
}

void ExportPanel::PickDrive() {
  no_drive_ = false;
  if (!Show(places_.at(static_cast<std::size_t>(drives.selected())).path)) {
    forms::ShowMessage(
        context_, {"Device/Drive Error", "Device/Drive is Unavailable!", forms::Icon::kCritical});
    if (!FallBack()) {
      forms::ShowMessage(context_,
                         {"Device Status", "Device Unavailable!  ", forms::Icon::kExclamation});
      no_drive_ = true;
    }
  }
  EnableSave();
}

void ExportPanel::PickFile() {
  name.SetText(files.text());
  EnableSave();
}

void ExportPanel::EnableSave() {
  ShowLines();
  save.SetEnabled(!no_drive_ && !name.text().empty());
}

// The file's name as it is meant; empty when it is none.
std::string ExportPanel::TakeName() {
  std::string file = text::Trim(name.text());
  if (style_.supply_extension && !file.empty() && !HasExtension(file)) file += ".xls";
  const bool leaves_folder = file.find_first_of("\\/:") != std::string::npos;
  return HasExtension(file) && !leaves_folder ? file : std::string();
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
    return context_.folders.WriteFile(folder_ + file, TabDelimited(*grid_));
  }();
  if (!written) return forms::TellNotSaved(context_, "The file " + file, written.fault());
  forms::ShowMessage(context_, {"Export Function", "Export Completed to selected location!",
                                forms::Icon::kInformation});
  Show(folder_);
}

}  // namespace tarnwell::parts
