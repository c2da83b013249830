#include "desktop/application.h"

#include <QIcon>
#include <QMessageBox>

#include "desktop/desktop.h"
#include "desktop/services/single_instance.h"
#include "desktop/widgets/look.h"

namespace tarnwell::desktop {
namespace {

void TellFolderIsUnusable(const QString& folder) {
  QMessageBox::critical(nullptr, QStringLiteral("Tarnwell"),
                        QStringLiteral("Tarnwell can't use its folder:\n%1").arg(folder));
}

}  // namespace

void Prepare(QApplication& application) {
  QApplication::setApplicationName(QStringLiteral("Tarnwell"));
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyLook(application);
}

int RunIn(const Folders& folders) {
  SingleInstance instance(folders.user);
  if (!instance.first()) {
    if (instance.CallFirst()) return 0;
    TellFolderIsUnusable(folders.user);
    return 1;
  }
  QApplication::setWindowIcon(QIcon(folders.supplied + QStringLiteral("/tarnwell.svg")));
  Desktop desktop(folders);
  instance.OnCall([&desktop] { desktop.window().ComeForward(); });
  desktop.Start();
  return desktop.ended() ? 0 : QApplication::exec();
}

}  // namespace tarnwell::desktop
