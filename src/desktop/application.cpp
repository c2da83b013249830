#include "desktop/application.h"

#include <QIcon>
#include <QMessageBox>

#include "desktop/desktop.h"
#include "desktop/services/single_instance.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/spoken_role.h"
#include "desktop/widgets/text.h"
#include "forms/disk_trouble.h"

namespace tarnwell::desktop {
namespace {

QtMessageHandler messages_of_qt = nullptr;

void PassOn(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!text.contains(QStringLiteral("XDG_RUNTIME_DIR"))) messages_of_qt(type, context, text);
}

void TellWhyNotStarted(const SingleInstance& instance, const QString& folder) {
  const QString title = QStringLiteral("Tarnwell");
  if (instance.is_in_use()) {
    QMessageBox::information(
        nullptr, title,
        QStringLiteral("Tarnwell is running already, in another window, with the folder:\n%1")
            .arg(folder));
    return;
  }
  const auto reason = instance.fault() == storage::Fault::kMissing
                          ? QStringLiteral("it isn't there and can't be made")
                          : FromCore(forms::ReasonOf(instance.fault()));
  QMessageBox::critical(
      nullptr, title,
      QStringLiteral("Tarnwell can't use its folder:\n%1\n\nThe reason: %2.").arg(folder, reason));
}

}  // namespace

void QuietQt() { messages_of_qt = qInstallMessageHandler(PassOn); }

void Prepare(QApplication& application, ToneSet tones) {
  QApplication::setApplicationName(QStringLiteral("Tarnwell"));
  // So that a desktop knows whose the windows are, and shows their icon:
  // packaging/tarnwell.desktop.
  QApplication::setDesktopFileName(QStringLiteral("tarnwell"));
  QApplication::setQuitOnLastWindowClosed(false);
  InstallSpokenRoles();
  ApplyLook(application, tones);
}

int RunIn(const Folders& folders) {
  KeepTogether(folders);
  SingleInstance instance(folders.user);
  if (!instance.first()) {
    if (instance.CallFirst()) return 0;
    TellWhyNotStarted(instance, folders.user);
    return 1;
  }
  QApplication::setWindowIcon(QIcon(folders.supplied + QStringLiteral("/tarnwell.svg")));
  Desktop desktop(folders);
  instance.OnCall([&desktop] { desktop.window().ComeForward(); });
  desktop.Start();
  return desktop.ended() ? 0 : QApplication::exec();
}

}  // namespace tarnwell::desktop
