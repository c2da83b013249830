#include "parts/folder_chooser.h"

#include <algorithm>

#include "forms/message.h"
#include "text/letters.h"

namespace tarnwell::parts {
namespace {

constexpr const char* kAbove = "..";

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

FolderChooser::FolderChooser(forms::Container& parent, forms::Context& context,
                             const FolderChooserStyle& style)
    : drives_heading(parent, style.drives_heading, "Drives:"),
      drives(parent, style.drives, "Drives"),
      folders_heading(parent, style.folders_heading, "Folders:"),
      folders(parent, style.folders, "Folders"),
      path_heading(parent, style.path_heading, "Path:"),
      path(parent, style.path),
      files_heading(parent, style.files_heading, "File:"),
      files(parent, style.files, "File"),
      context_(context),
      extensions_(style.extensions.begin(), style.extensions.end()) {
  drives.on_pick = [this] { PickDrive(); };
  folders.on_open = [this] { OpenFolder(); };
  files.on_pick = [this] {
    if (on_file) on_file();
  };
}

void FolderChooser::Open(const std::string& folder, std::string_view file) {
  places_ = context_.folders.Places();
  std::vector<std::string> names;
  for (const forms::Place& place : places_) names.push_back(place.name);
  drives.SetItems(std::move(names));
  readable_ = true;
  readable_ = (!folder.empty() && Show(folder)) || FallBack();
  const auto listed = std::ranges::find(files.items(), file);
  if (!readable_ || listed == files.items().end()) return;
  files.Select(static_cast<int>(listed - files.items().begin()));
}

void FolderChooser::SetExtensions(std::vector<std::string_view> extensions) {
  extensions_.assign(extensions.begin(), extensions.end());
  if (readable_ && !folder_.empty()) Refresh();
}

std::string FolderChooser::file_path() const {
  return files.selected() == forms::ListBox::kNone ? std::string() : folder_ + files.text();
}

bool FolderChooser::Lists(std::string_view name) const {
  return extensions_.empty() || std::ranges::any_of(extensions_, [&](const std::string& extension) {
           return text::EqualIgnoringCase(text::Right(name, extension.size()), extension);
         });
}

// To the program's own folder, or to the first place that can be read.
bool FolderChooser::FallBack() {
  return Show(context_.folders.ProgramPath()) ||
         std::ranges::any_of(places_, [&](const forms::Place& place) { return Show(place.path); });
}

// False, with everything as it was, when the folder can't be read.
bool FolderChooser::Show(const std::string& folder) {
  const std::string path_text = WithSlash(folder);
  const auto below = context_.folders.Folders(path_text);
  const auto names = context_.folders.Files(path_text);
  if (!below || !names) return false;
  folder_ = path_text;
  std::vector<std::string> rows;
  if (FolderAbove(folder_) != folder_) rows.emplace_back(kAbove);
  rows.insert(rows.end(), below->begin(), below->end());
  folders.SetItems(std::move(rows));
  std::vector<std::string> listed;
  std::ranges::copy_if(*names, std::back_inserter(listed),
                       [this](const std::string& name) { return Lists(name); });
  files.SetItems(std::move(listed));
  SelectDrive();
  path.SetCaption(folder_);
  if (on_folder) on_folder();
  return true;
}

// The place that lies nearest above the folder.
void FolderChooser::SelectDrive() {
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

void FolderChooser::OpenFolder() {
  const std::string chosen = folders.text();
  const std::string folder =
      chosen == kAbove && folders.selected() == 0 ? FolderAbove(folder_) : folder_ + chosen;
  if (Show(folder)) return;
  TellUnavailable();
  FallBack();
}

void FolderChooser::PickDrive() {
  readable_ = true;
  if (Show(places_.at(static_cast<std::size_t>(drives.selected())).path)) return;
  forms::ShowMessage(
      context_, {"Device/Drive Error", "Device/Drive is Unavailable!", forms::Icon::kCritical});
  if (FallBack()) return;
  TellUnavailable();
  readable_ = false;
  if (on_folder) on_folder();
}

void FolderChooser::TellUnavailable() {
  forms::ShowMessage(context_,
                     {"Device Status", "Device Unavailable!  ", forms::Icon::kExclamation});
}

}  // namespace tarnwell::parts
