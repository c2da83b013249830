#pragma once

#include <QUrl>
#include <functional>

#include "forms/launcher.h"

namespace tarnwell::desktop {

class QtLauncher : public forms::Launcher {
 public:
  // Hands the address to the system; false where nothing took it.
  using Opener = std::function<bool(const QUrl&)>;
  static bool OpenWithSystem(const QUrl& address);

  explicit QtLauncher(Opener open = OpenWithSystem) : open_(std::move(open)) {}

  bool OpenWeb(std::string_view address) override;
  bool WriteMail(std::string_view address) override;

 private:
  Opener open_;
};

}  // namespace tarnwell::desktop
