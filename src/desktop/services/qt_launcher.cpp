#include "desktop/services/qt_launcher.h"

#include <QDesktopServices>
#include <QFileInfo>

#include "desktop/widgets/text.h"

namespace tarnwell::desktop {

bool QtLauncher::OpenWithSystem(const QUrl& address) { return QDesktopServices::openUrl(address); }

bool QtLauncher::OpenWeb(std::string_view address) {
  QString text = FromCore(address).trimmed();
  if (text.startsWith(QStringLiteral("www."), Qt::CaseInsensitive)) text.prepend("http://");
  const QUrl url(text, QUrl::TolerantMode);
  const bool is_web = url.scheme() == QStringLiteral("http") ||
                      url.scheme() == QStringLiteral("https");  // schemes are in small letters
  return is_web && url.isValid() && !url.host().isEmpty() && open_(url);
}

// Only a plain address: what else a mail program would take from it, such as a file to attach,
// stays outside.
bool QtLauncher::WriteMail(std::string_view address) {
  const QString text = FromCore(address).trimmed();
  const qsizetype sign = text.indexOf('@');
  const bool is_plain =
      sign > 0 && sign + 1 < text.size() && text.count('@') == 1 &&
      std::none_of(text.begin(), text.end(), [](QChar letter) {
        return letter.isSpace() || QStringLiteral("?&#%,;:<>()[]\\\"/").contains(letter);
      });
  if (!is_plain) return false;
  QUrl url;
  url.setScheme(QStringLiteral("mailto"));
  url.setPath(text);
  return open_(url);
}

bool QtLauncher::OpenProgramFolder() {
  const QFileInfo folder(program_folder_);
  return folder.isDir() && open_(QUrl::fromLocalFile(folder.absoluteFilePath()));
}

}  // namespace tarnwell::desktop
