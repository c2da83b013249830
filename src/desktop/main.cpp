#include <QApplication>
#include <QIcon>
#include <QMessageBox>

#include "desktop/desktop.h"
#include "desktop/services/folders.h"
#include "desktop/services/single_instance.h"
#include "desktop/widgets/look.h"

namespace {

using namespace tarnwell;

void TellFolderIsUnusable(const QString& folder) {
  QMessageBox::critical(nullptr, QStringLiteral("Tarnwell"),
                        QStringLiteral("Tarnwell can't use its folder:\n%1").arg(folder));
}

int RunIn(const desktop::Folders& folders) {
  desktop::SingleInstance instance(folders.user);
  if (!instance.first()) {
    if (instance.CallFirst()) return 0;
    TellFolderIsUnusable(folders.user);
    return 1;
  }
  QApplication::setWindowIcon(QIcon(folders.supplied + QStringLiteral("/tarnwell.svg")));
  desktop::Desktop desktop(folders);
  instance.OnCall([&desktop] { desktop.window().ComeForward(); });
  desktop.Start();
  return desktop.ended() ? 0 : QApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Tarnwell"));
  // The program ends when its forms say so; between two of them no window may be open.
  QApplication::setQuitOnLastWindowClosed(false);
  desktop::ApplyLook(application);
  return RunIn(desktop::ChooseFolders());
}
