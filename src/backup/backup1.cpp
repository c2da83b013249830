#include "backup/backup1.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "forms/disk_trouble.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "parts/help_menu.h"
#include "settings/backup_place.h"
#include "storage/file_names.h"
#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::backup {
namespace {

constexpr int kHelp = 1002;

const BackupSet& SetInHand(const forms::ProgramVariables& variables) {
  const BackupSet* set = SetOf(variables.BackupMode);
  return set ? *set : BackupSets().front();
}

// "1.4 GB"
std::string SizeText(std::uint64_t bytes) {
  constexpr std::array kUnits = {"bytes", "KB", "MB", "GB", "TB"};
  double size = static_cast<double>(bytes);
  std::size_t unit = 0;
  for (; size >= 1000 && unit + 1 < kUnits.size(); ++unit) size /= 1000;
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), unit == 0 ? "%.0f %s" : "%.1f %s", size, kUnits[unit]);
  return text.data();
}

}  // namespace

Backup1::Backup1(forms::Context& context)
    : Form(context, forms::form_names::kBackup1,
           context.variables.RestoreMarker != 0 ? "Restore Files from Disk" : "Make Backup Disk"),
      chooser(*this, context),
      set_(SetInHand(context.variables)),
      year_(context.variables.BackupYear) {
  title.SetCaption((restores() ? "Restore: " : "Backup: ") + TitleOf(set_, year_));
  if (restores()) make.SetCaption("&Restore Files");
  progress.SetVisible(false);
  show_files.SetVisible(false);
  files.SetVisible(false);
  stop.SetVisible(false);
  chooser.on_folder = [this] { ShowFolder(); };
  new_folder.on_click = [this] { MakeFolder(); };
  make.on_click = [this] { Start(); };
  stop.on_click = [this] { wants_to_stop_ = true; };
  exit.on_click = [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); };
  show_files.on_click = [this] { files.SetVisible(!files.visible()); };
  SetHelpContext(kHelp);
  BuildMenus();
}

void Backup1::BuildMenus() {
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  forms::MenuItem& backup = options.AddCommand("mOM", "&Make Backup Disk", make);
  forms::MenuItem& restore = options.AddCommand("mOR", "&Restore Files from Disk", make);
  (restores() ? backup : restore).SetVisible(false);
  options.AddCommand("mOE", "E&xit", exit);
  parts::AddHelpMenu(*this, context_, {{"&Backing up and Restoring Data/Files", kHelp}});
}

void Backup1::Load() {
  const std::string last = WithoutSlash(settings::ReadBackupPlace(context_.folder));
  const std::vector<forms::Place> places = context_.folders.Places();
  const bool is_there = !last.empty() && context_.folders.Folders(last + "/").has_value();
  chooser.Open(is_there || places.empty() ? last : places.front().path);
  make.Focus();
}

void Backup1::Unload() {
  context_.variables.BackupMode = 0;
  context_.variables.RestoreMarker = 0;
}

void Backup1::ShowFolder() {
  const auto free =
      chooser.is_readable() ? context_.volumes.FreeBytes(chooser.folder()) : std::nullopt;
  free_space.SetCaption(free ? "Free space: " + SizeText(*free) : std::string());
  new_folder.SetEnabled(chooser.is_readable());
  make.SetEnabled(chooser.is_readable());
}

void Backup1::MakeFolder() {
  const auto name = context_.dialogs.Input({"New Folder", "Name of the new folder:"});
  const std::string trimmed = text::Trim(name.value_or(""));
  if (trimmed.empty()) return;
  storage::FileSystem& machine = context_.folder.files();
  const std::string path = chooser.folder() + trimmed;
  if (!storage::IsPlainFileName(trimmed) || !machine.MakeFolder(text::ToUtf8(path).bytes())) {
    return Tell("New Folder", "This folder can't be made: " + trimmed);
  }
  chooser.Open(path);
}

void Backup1::Start() {
  folder_ = chooser.folder();
  mount_ = context_.volumes.MountOf(folder_);
  if (!IsAllowedPlace()) return;
  wants_to_stop_ = false;
  summary.SetCaption({});
  show_files.SetVisible(false);
  files.SetVisible(false);
  state.SetCaption({});
  if (restores()) return Restore();
  BackUp();
}

// A backup in the program's own folder would go with it, and lie among its files; in that of
// another Tarnwell its files of names would replace that one's.
bool Backup1::IsAllowedPlace() {
  const std::string place = WithoutSlash(folder_);
  const std::string own = WithoutSlash(context_.folders.ProgramPath());
  const std::string lock =
      text::ToUtf8(place).bytes() + "/" + std::string(storage::file_names::kLock);
  if (!restores() && context_.folder.files().Exists(lock) && !context_.volumes.LiesIn(place, own)) {
    Tell("Disk Error",
         "This folder holds the data of another Tarnwell, or a copy of them.\n"
         "Please choose another place.");
    return false;
  }
  if (!context_.volumes.LiesIn(place, own)) return true;
  // What lies below can be read all the same.
  if (restores() && !context_.volumes.LiesIn(own, place)) return true;
  Tell("Disk Error", "This is the program's own folder.\nPlease choose another place.");
  return false;
}

void Backup1::Tell(std::string_view title_text, std::string_view text) {
  Message({std::string(title_text), std::string(text), forms::Icon::kCritical});
}

bool Backup1::GoOn() {
  context_.loop.Yield();
  return !wants_to_stop_;
}

void Backup1::ShowReport(const Report& report) {
  std::vector<std::string> rows;
  for (const std::string& file : report.copied) rows.push_back("Copied: " + file);
  for (const Report::LeftOut& file : report.left_out) {
    std::string row = "Left out: " + file.file;
    if (file.fault == storage::Fault::kNone) row += " (on no list)";
    if (file.fault != storage::Fault::kNone) {
      row += " (" + std::string(forms::ReasonOf(file.fault)) + ")";
    }
    rows.push_back(std::move(row));
  }
  files.SetItems(std::move(rows));
  summary.SetCaption("Files copied: " + std::to_string(report.copied.size()) +
                     ", left out: " + std::to_string(report.left_out.size()));
  show_files.SetVisible(true);
}

std::string Backup1::DiskPath() {
  const bool is_there =
      context_.volumes.MountOf(folder_) == mount_ && context_.folders.Files(folder_).has_value();
  return is_there ? folder_ : std::string();
}

// Another disk may come up under another name: the one that wasn't there before is meant.
void Backup1::FollowDisk(const std::vector<forms::Place>& before) {
  if (!DiskPath().empty()) return;
  std::vector<forms::Place> fresh = context_.folders.Places();
  std::erase_if(fresh, [&](const forms::Place& place) {
    return std::ranges::find(before, place) != before.end();
  });
  if (fresh.size() != 1) return;
  const std::string root = fresh.front().path + "/";
  const std::string below =
      folder_.starts_with(mount_ + "/") ? folder_.substr(mount_.size() + 1) : std::string();
  folder_ = context_.folders.Files(root + below) ? root + below : root;
  mount_ = context_.volumes.MountOf(folder_);
  chooser.Open(folder_);
}

}  // namespace tarnwell::backup
