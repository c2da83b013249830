// The settings files, for this folder only: everybody else asks for a setting by its name.

#pragma once

#include "storage/file_names.h"
#include "storage/record_file.h"

namespace tarnwell::settings {

// A record of one of the files with plain texts, GColor1.Fil to GColor3.Fil.
struct RecordPlace {
  std::string_view file;
  int record;
};

inline storage::RecordFile OpenColors(storage::ProgramFolder& folder, std::string_view file) {
  return storage::RecordFile(folder, file, 20);
}

inline storage::RecordFile OpenGColor3(storage::ProgramFolder& folder) {
  return OpenColors(folder, storage::file_names::kGColor3);
}

inline storage::RecordFile OpenGColor4(storage::ProgramFolder& folder) {
  return storage::RecordFile(folder, storage::file_names::kGColor4, 40);
}

inline std::string ReadText(storage::ProgramFolder& folder, const RecordPlace& place) {
  return OpenColors(folder, place.file).GetText(place.record);
}

inline storage::Outcome WriteText(storage::ProgramFolder& folder, const RecordPlace& place,
                                  std::string_view text) {
  auto file = OpenColors(folder, place.file);
  file.PutText(place.record, text);
  file.Close();
  return file.fault();
}

}  // namespace tarnwell::settings
