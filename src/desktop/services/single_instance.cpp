#include "desktop/services/single_instance.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <filesystem>
#include <system_error>

namespace tarnwell::desktop {
namespace {

constexpr int kAnswerTimeMs = 2000;

// Asked of the environment and the machine itself: Qt makes one in /tmp and warns about it.
QString RunTimeDirectory() {
  const QString usual = QStringLiteral("/run/user/%1").arg(::getuid());
  const QString told = qEnvironmentVariable("XDG_RUNTIME_DIR");
  for (const QString& directory : {told, usual}) {
    const QFileInfo info(directory);
    if (info.isAbsolute() && info.isDir() && info.ownerId() == ::getuid()) return directory;
  }
  return {};
}

// Empty where there can be none.
QString SocketOf(const QString& folder) {
  const QString directory = RunTimeDirectory();
  if (directory.isEmpty()) return {};
  const QByteArray path = QFileInfo(folder).canonicalFilePath().toUtf8();
  const QByteArray mark = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
  return QStringLiteral("%1/tarnwell-%2").arg(directory, QString::fromLatin1(mark.left(16)));
}

std::filesystem::file_status StatusOf(const QString& path) {
  std::error_code ignored;
  return std::filesystem::symlink_status(QFile::encodeName(path).toStdString(), ignored);
}

}  // namespace

SingleInstance::SingleInstance(const QString& folder)
    : socket_(SocketOf(folder)), attempt_(storage::FolderLock::TryTake(folder.toStdString())) {
  if (!first() || socket_.isEmpty()) return;
  // Whoever left a socket of this name has ended: the lock is ours. What isn't one stays.
  const auto status = StatusOf(socket_);
  if (std::filesystem::exists(status) && !std::filesystem::is_socket(status)) return;
  QLocalServer::removeServer(socket_);
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  server_.listen(socket_);
}

bool SingleInstance::CallFirst() const {
  if (!std::filesystem::is_socket(StatusOf(socket_))) return false;
  QLocalSocket socket;
  socket.connectToServer(socket_);
  return socket.waitForConnected(kAnswerTimeMs);
}

void SingleInstance::OnCall(std::function<void()> listener) {
  QObject::connect(&server_, &QLocalServer::newConnection, &server_,
                   [this, listener = std::move(listener)] {
                     while (QLocalSocket* caller = server_.nextPendingConnection()) {
                       caller->deleteLater();
                     }
                     listener();
                   });
}

}  // namespace tarnwell::desktop
