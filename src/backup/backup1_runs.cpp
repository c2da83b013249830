// What the panel asks and says while a backup or a restore runs, and how it ends.

#include "backup/backup1.h"
#include "forms/disk_trouble.h"
#include "forms/navigator.h"
#include "settings/backup_place.h"

namespace tarnwell::backup {
namespace {

constexpr std::string_view kTerminated = "Backup Terminated by User";
constexpr std::string_view kNothingChanged = "Nothing was changed.";

std::string FullDiskText(DiskWords words, int number) {
  if (words == DiskWords::kDocuments) {
    return "Disk is Full.\nPlease Insert Backup Disk #" + std::to_string(number) +
           "\nCAUTION: Wait till Disk Drive light goes out and Be sure New Disk is inserted before "
           "Clicking OK";
  }
  return "Disk is either Full, or there is not enough room\n"
         "remaining for the requested backup files!\n"
         "Please Insert a New Blank Formatted\n"
         "Backup Disk and then Click on OK.\n"
         "CAUTION: Wait till Disk Drive light goes out and\n"
         "Be sure New Disk is inserted before Clicking OK";
}

}  // namespace

void Backup1::ShowDeleting() {
  state.SetCaption("Deleting Old Files");
  context_.loop.Yield();
}

void Backup1::ShowDisk(int number) {
  const bool is_first_of_vehicles = set_.kind == SetKind::kVehicles && number == 1;
  state.SetCaption(is_first_of_vehicles ? "Making Vehicle Maintenance Backup Disk #1"
                                        : ForYear(set_.making, year_) + std::to_string(number));
}

bool Backup1::AskForDisk(int number) {
  const std::vector<forms::Place> before = context_.folders.Places();
  const forms::MessageBox box =
      restores() ? forms::MessageBox{"Restore Function",
                                     "Please Insert Backup Disk #" + std::to_string(number),
                                     forms::Icon::kInformation, forms::Buttons::kOkCancel}
                 : forms::MessageBox{"Backup Disk", FullDiskText(set_.full, number),
                                     forms::Icon::kExclamation, forms::Buttons::kOkCancel};
  if (Message(box) != forms::Answer::kOk) return false;
  FollowDisk(before);
  return true;
}

void Backup1::TellUnreadableDisk() { Tell("Disk Error", set_.unreadable); }

void Backup1::BackUp() {
  const std::string question = "This utility will first Delete all existing " +
                               ForYear(set_.name, year_) + " files\nlocated in Path: " + folder_ +
                               "\nProceed?";
  if (!Confirmed(
          {"Delete Files", question, forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2})) {
    return;
  }
  BackupRun run(set_, year_, context_.folder, *this);
  const BackupEnd end = RunWithBar([&] { return run.Run(); });
  EndBackup(run, end);
}

void Backup1::EndBackup(const BackupRun& run, BackupEnd end) {
  switch (end) {
    case BackupEnd::kComplete:
      state.SetCaption(run.report().is_incomplete()
                           ? "Backup Not Complete: files could not be read"
                           : "Backup Complete. It was read back and compared.");
      ShowReport(run.report());
      (void)settings::WriteBackupPlace(context_.folder, folder_);
      return chooser.Refresh();
    case BackupEnd::kNotWritable: {
      const auto places = context_.folders.Places();
      const bool stays =
          Message({std::string(set_.not_writable_title), std::string(set_.not_writable),
                   forms::Icon::kCritical, forms::Buttons::kOkCancel}) == forms::Answer::kOk;
      state.SetCaption(stays ? "" : kTerminated);
      if (stays && !places.empty()) chooser.Open(places.front().path);
      return;
    }
    case BackupEnd::kCancelled:
      if (run.is_cleared()) {
        Message({"Backup Proceedure Cancelation",
                 "You have cancelled the backup proceedure!\n"
                 "If backup files were on this disk they have been deleted!\n"
                 "May we suggest you initiate Backup for these files again!",
                 forms::Icon::kInformation});
      }
      state.SetCaption(kTerminated);
      break;
    case BackupEnd::kStopped:
      state.SetCaption(kTerminated);
      break;
    case BackupEnd::kBadSource:
      state.SetCaption("Backup Not Complete");
      Tell("Backup", "A file of the program could not be read. There is no backup.");
      break;
    case BackupEnd::kDiffers:
      state.SetCaption("Backup Not Complete");
      Tell("Disk Error",
           "The disk doesn't give back what was written to it. There is no backup.\n"
           "Please use another disk.");
      break;
  }
  if (!run.is_cleared()) TellNotCleared();
}

void Backup1::TellNotCleared() {
  Tell("Backup",
       "You have cancelled the backup proceedure, or it failed.\n"
       "The backup files on the disk could not be deleted. They are no whole backup!");
}

bool Backup1::AskToDelete() {
  const std::string question =
      std::string(set_.deletes) + "\n" + std::string(set_.located) + "\nProceed?";
  return Confirmed(
      {"Delete Files", question, forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2});
}

void Backup1::Restore() {
  RestoreRun run(set_, year_, context_.folder, *this);
  if (!run.Find()) return Tell(set_.not_found_title, set_.not_found);
  std::string problems;
  for (const std::string& line : run.Check()) problems += line + "\n";
  if (!problems.empty() &&
      !Confirmed({"Disk Error",
                  "This backup isn't whole:\n" + problems + "Restore what is there all the same?",
                  forms::Icon::kExclamation, forms::Buttons::kYesNo, 2})) {
    return;
  }
  while (AskToDelete() && !RestoreOnce(run)) {
  }
}

// False when the question comes again.
bool Backup1::RestoreOnce(RestoreRun& run) {
  state.SetCaption(ForYear(set_.restoring, year_));
  const RestoreEnd end = RunWithBar([&] { return run.Run(); });
  EndRestore(run, end);
  return end != RestoreEnd::kUnreadable || set_.kind != SetKind::kPlain;
}

void Backup1::EndRestore(const RestoreRun& run, RestoreEnd end) {
  const std::string unchanged(kNothingChanged);
  switch (end) {
    case RestoreEnd::kComplete:
      state.SetCaption("Restoration Completed");
      ShowReport(run.report());
      make.SetEnabled(false);
      (void)settings::WriteBackupPlace(context_.folder, folder_);
      return exit.Focus();
    case RestoreEnd::kCancelled:
    case RestoreEnd::kStopped:
      return state.SetCaption("Restoration Terminated by User. " + unchanged);
    case RestoreEnd::kUnreadable:
      state.SetCaption(unchanged);
      return Tell(set_.kind == SetKind::kVehicles ? "Restore Error" : "Disk Error",
                  set_.unreadable);
    case RestoreEnd::kNoRoom:
      state.SetCaption(unchanged);
      return forms::TellRefused(context_, "What was to be restored", run.fault(), unchanged);
    case RestoreEnd::kStuck:
      return TellStuck();
  }
}

// Whatever is written now could be lost at the next start.
void Backup1::TellStuck() {
  Tell("Restore",
       "The disk with the program's folder failed in the middle of the exchange of files.\n"
       "Nothing is lost. The program ends now, and its next start puts them in order.");
  context_.navigator.EndProgram();
}

}  // namespace tarnwell::backup
