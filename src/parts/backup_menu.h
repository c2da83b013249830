// The entries of a Utilities menu that lead to backup and restore.

#pragma once

#include <functional>
#include <string_view>

#include "forms/context.h"
#include "forms/menu.h"

namespace tarnwell::parts {

// The sets, by the mode of their backup; that of the restore is the next.
inline constexpr int kDocumentsSet = 0;
inline constexpr int kEmployeesSet = 2;
inline constexpr int kVehiclesSet = 26;
inline constexpr int kPlannerSet = 32;
inline constexpr int kBudgetSet = 36;
inline constexpr int kContactsSet = 38;
inline constexpr int kImagesSet = 40;
inline constexpr int kSickLeaveSet = 44;
inline constexpr int kVacationSet = 46;

struct BackupUse {
  int set;
  std::string_view backup = "&Backup User Created Files";
  std::string_view restore = "&Restore User Created Files";
  // Before: saves what is on the screen alone. False keeps the person there.
  std::function<bool()> settle = {};
  std::function<int()> year = {};  // of a set that is a year's
  // Afterwards: shows the files as they are now.
  std::function<void()> reload = {};
};

struct BackupEntries {
  forms::MenuItem& backup;
  forms::MenuItem& restore;
};

BackupEntries AddBackupEntries(forms::MenuItem& utilities, forms::Context& context, BackupUse use);

}  // namespace tarnwell::parts
