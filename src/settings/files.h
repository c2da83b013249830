// The settings files, for this folder only: everybody else asks for a setting by its name.

#pragma once

#include "storage/record_file.h"

namespace tarnwell::settings {

inline storage::RecordFile OpenGColor3(storage::ProgramFolder& folder) {
  return storage::RecordFile(folder, "GColor3.Fil", 20);
}

}  // namespace tarnwell::settings
