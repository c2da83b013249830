#pragma once

#include <string>
#include <vector>

#include "backup/attendant.h"
#include "backup/backup_run.h"
#include "backup/backup_sets.h"
#include "backup/restore_run.h"
#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/progress_bar.h"
#include "parts/folder_chooser.h"

namespace tarnwell::backup {

// The panel that backs a set up or restores it, over a table of sets. Which one the program's
// variables say when it is made.
class Backup1 : public forms::Form, private Attendant {
 public:
  explicit Backup1(forms::Context& context);

  forms::Label title{*this, "Label1", {}, forms::LabelRole::kTitle};
  parts::FolderChooser chooser;
  forms::Label free_space{*this, "Label2"};
  forms::Command new_folder{*this, "SSCommand3", "&New Folder"};
  forms::Label state{*this, "SSPanel2", {}, forms::LabelRole::kHeading};
  forms::ProgressBar progress{*this, "ProgressBar1", "Progress"};
  forms::Label summary{*this, "Label3"};
  forms::Command show_files{*this, "SSCommand5", "&List of Files"};
  forms::ListBox files{*this, "List1", "Files copied and left out"};
  forms::Command make{*this, "SSCommand2", "&Make Backup"};
  forms::Command stop{*this, "SSCommand4", "&Cancel", {.cancel = true}};
  forms::Command exit{*this, "SSCommand1", "E&xit", {.cancel = true}};

  void Load() override;
  void Unload() override;

 private:
  // Of the person who sits at the panel.
  void ShowDeleting() override;
  void ShowDisk(int number) override;
  void StartBar(int maximum) override { progress.Start(maximum); }
  void MoveBar(int value) override { progress.SetValue(value); }
  bool GoOn() override;
  bool AskForDisk(int number) override;
  void TellUnreadableDisk() override;
  std::string DiskPath() override;

  void BuildMenus();
  void ShowFolder();
  void MakeFolder();
  void Start();
  bool IsAllowedPlace();
  void FollowDisk(const std::vector<forms::Place>& before);

  // The panel is busy meanwhile, but for its Cancel.
  template <typename Run>
  auto RunWithBar(Run run) {
    const BusyScope busy(*this, {&stop, &progress, &state});
    const forms::Hourglass hourglass(context_.window);
    progress.SetVisible(true);
    stop.SetVisible(true);
    exit.SetVisible(false);
    const auto end = run();
    exit.SetVisible(true);
    stop.SetVisible(false);
    progress.SetVisible(false);
    return end;
  }
  void BackUp();
  void EndBackup(const BackupRun& run, BackupEnd end);
  void TellNotCleared();
  void Restore();
  bool AskToDelete();
  bool RestoreOnce(RestoreRun& run);
  void EndRestore(const RestoreRun& run, RestoreEnd end);
  void TellStuck();
  void ShowReport(const Report& report);
  void Tell(std::string_view title, std::string_view text);

  bool restores() const { return context_.variables.RestoreMarker != 0; }

  const BackupSet& set_;
  const int year_;
  std::string folder_;  // of the disk in hand, with "/" behind
  std::string mount_;   // where the disk is mounted that it lies on
  bool wants_to_stop_ = false;
};

}  // namespace tarnwell::backup
