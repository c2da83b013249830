#pragma once

#include <QString>
#include <QUrl>
#include <functional>
#include <utility>

#include "forms/launcher.h"

namespace tarnwell::desktop {

class QtLauncher : public forms::Launcher {
 public:
  // Hands the address to the system; false where nothing took it.
  using Opener = std::function<bool(const QUrl&)>;
  static bool OpenWithSystem(const QUrl& address);

  explicit QtLauncher(const QString& program_folder, Opener open = OpenWithSystem)
      : program_folder_(program_folder), open_(std::move(open)) {}

  bool OpenWeb(std::string_view address) override;
  bool WriteMail(std::string_view address) override;
  bool OpenProgramFolder() override;

 private:
  QString program_folder_;
  Opener open_;
};

}  // namespace tarnwell::desktop
