// The nine sets that can be backed up: which files each has, what they are called on a disk, and
// what a person is told. docs/formats/backup-sets.md has the layouts.

#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tarnwell::backup {

enum class SetKind {
  kDocuments,  // many files, each copied under another name
  kRecords,    // files of records, copied side by side
  kVehicles,   // a table, and a line for each file of each vehicle
  kPlain,      // one or two files of a year, on one disk
};

// A file of the program and its name on a disk. In names "@" stands for the year and "#" for the
// number of the disk, or of a vehicle.
struct BackupFile {
  std::string_view live;
  std::string_view form;
  int record_length = 0;  // bytes; of a set of records
};

// What a full disk is told with.
enum class DiskWords { kDocuments, kRecords };

struct BackupSet {
  int mode;  // of the backup; that of the restore is the next
  SetKind kind;
  std::string_view tag;                     // in the info file
  std::string_view info;                    // name of the info file; empty for none
  int info_length;                          // of its records, in bytes
  std::span<const std::string_view> forms;  // what is deleted on a disk before: ends of names, or
                                            // whole names; "#" stands for any number
  std::span<const std::string_view> whole;  // copied under their own names to the first disk
  std::span<const BackupFile> files;
  DiskWords full;

  // Words of the backup.
  std::string_view name;    // in the question
  std::string_view making;  // while it runs
  std::string_view not_writable_title;
  std::string_view not_writable;

  // Words of the restore.
  std::string_view deletes;    // first line of the question
  std::string_view located;    // second line
  std::string_view restoring;  // while it runs
  std::string_view not_found_title;
  std::string_view not_found;   // no first disk
  std::string_view unreadable;  // no files on a disk
};

std::span<const BackupSet> BackupSets();

// By its mode or that of its restore; nullptr for none.
const BackupSet* SetOf(int mode);

// Words of a set, with the year in its place.
std::string ForYear(std::string_view words, int year);
// What a person knows the set by, also where its prompts have no name.
std::string TitleOf(const BackupSet& set, int year);
// A name, with the year and the number of the disk, or of the vehicle, in their places.
std::string Filled(std::string_view name, int year, int number = 1);

// Whether a file of a disk is an info file of the set, of whatever number.
bool IsInfo(const BackupSet& set, std::string_view name);
// Whether a file of a disk is one that the set's next backup deletes.
bool IsForm(const BackupSet& set, int year, std::string_view name);

}  // namespace tarnwell::backup
