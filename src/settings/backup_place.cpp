#include "settings/backup_place.h"

#include "settings/files.h"
#include "storage/sequential_file.h"

namespace tarnwell::settings {

std::string ReadBackupPlace(storage::ProgramFolder& folder) {
  return storage::SequentialReader(folder, storage::file_names::kBackupPlace).Next();
}

storage::Outcome WriteBackupPlace(storage::ProgramFolder& folder, const std::string& path) {
  storage::SequentialWriter file;
  file.WriteText(path);
  return file.Save(folder, storage::file_names::kBackupPlace);
}

}  // namespace tarnwell::settings
