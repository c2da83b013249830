#pragma once

#include "storage/program_folder.h"

namespace tarnwell::settings {

inline constexpr int kFirstPort = 1;
inline constexpr int kLastPort = 255;

// The serial port of the modem. The first where no number of a port is stored: a colour once stood
// in its record.
int ReadModemPort(storage::ProgramFolder& folder);
storage::Outcome WriteModemPort(storage::ProgramFolder& folder, int port);

}  // namespace tarnwell::settings
