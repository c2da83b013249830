#pragma once

#include <string_view>

namespace tarnwell::forms {

// Hands addresses to the programs that the system has for them: never to a shell, and never a file.
// The one folder that it opens is known to it from the start.
class Launcher {
 public:
  virtual ~Launcher() = default;

  // A web address that begins with "http://", "https://" or "www.", in capitals or not. False where
  // it is none, or nothing opened it.
  virtual bool OpenWeb(std::string_view address) = 0;
  // A new letter to one e-mail address, such as "ann@example.com". False likewise.
  virtual bool WriteMail(std::string_view address) = 0;
  // The program's folder, in the window of the system's that shows files. False likewise.
  virtual bool OpenProgramFolder() = 0;
};

}  // namespace tarnwell::forms
