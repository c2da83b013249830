// Files of disks that may keep silent, such as a network folder whose server has gone: there a call
// waits without end.

#pragma once

#include <QByteArray>
#include <chrono>
#include <functional>
#include <string>

#include "storage/fault.h"

namespace tarnwell::desktop {

struct FileRead {
  QByteArray content;
  storage::Fault fault = storage::Fault::kNone;
};

inline constexpr std::chrono::milliseconds kPatience{2000};

// Does `read` in a thread of its own and waits for it no longer than that; then the fault is
// kNoAnswer, and so it is at once for whatever lies in that folder until the read has come back.
// `read` must not touch what goes with the caller.
FileRead ReadPatiently(const std::string& folder, const std::function<FileRead()>& read,
                       std::chrono::milliseconds patience = kPatience);

}  // namespace tarnwell::desktop
