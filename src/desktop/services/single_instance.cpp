#include "desktop/services/single_instance.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QLocalSocket>

namespace tarnwell::desktop {
namespace {

constexpr int kAnswerTimeMs = 2000;

QString SocketName(const QString& folder) {
  const QByteArray path = QFileInfo(folder).canonicalFilePath().toUtf8();
  const QByteArray mark = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
  return QStringLiteral("tarnwell-%1").arg(QString::fromLatin1(mark.left(16)));
}

}  // namespace

SingleInstance::SingleInstance(const QString& folder)
    : name_(SocketName(folder)), lock_(storage::FolderLock::TryTake(folder.toStdString())) {
  if (!lock_) return;
  // Whoever left a socket of this name has ended: the lock is ours.
  QLocalServer::removeServer(name_);
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  server_.listen(name_);
}

bool SingleInstance::CallFirst() const {
  QLocalSocket socket;
  socket.connectToServer(name_);
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
