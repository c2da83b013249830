#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <string>
#include <string_view>
#include <vector>

namespace tarnwell::testing {

// Takes away what would make one machine's windows differ from another's: its fonts, its language
// and time zone, the settings of its desktop and of who runs the test. `home` stands for the home
// folder. To be called before there is a QApplication.
inline void FixSurroundings(const std::string& home) {
  constexpr std::string_view kOfTheMachine[] = {"DBUS_", "DESKTOP_", "GDK_", "GTK_", "KDE_",
                                                "LANG",  "LC_",      "QT_",  "TZ=",  "XDG_"};
  std::vector<std::string> names;
  for (char** entry = environ; *entry; ++entry) {
    const std::string_view variable(*entry);
    for (const std::string_view start : kOfTheMachine) {
      if (!variable.starts_with(start) || variable.starts_with("QT_QPA_PLATFORM=")) continue;
      names.emplace_back(variable.substr(0, variable.find('=')));
    }
  }
  for (const std::string& name : names) ::unsetenv(name.c_str());
  ::setenv("FONTCONFIG_FILE", TARNWELL_FONTS, true);
  ::setenv("HOME", home.c_str(), true);
  ::setenv("XDG_RUNTIME_DIR", home.c_str(), true);
  ::setenv("LC_ALL", "C.UTF-8", true);
  ::setenv("TZ", "UTC", true);
}

}  // namespace tarnwell::testing
