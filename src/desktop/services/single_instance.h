#pragma once

#include <QLocalServer>
#include <QString>
#include <functional>

#include "storage/folder_lock.h"

namespace tarnwell::desktop {

// One running program for each folder. The lock decides; a local socket in the user's run-time
// directory carries the call of a second start to the first one. Without that directory there is
// none, and the call stays unanswered.
class SingleInstance {
 public:
  explicit SingleInstance(const QString& folder);

  // This process is the one that may use the folder.
  bool first() const { return attempt_.lock != nullptr; }
  // It isn't, as another one does.
  bool is_in_use() const { return attempt_.is_held; }
  // Why it isn't, if the folder isn't in use.
  storage::Fault fault() const { return attempt_.fault; }
  // Asks the first one to show itself. False when nobody answers.
  bool CallFirst() const;
  // A second start called.
  void OnCall(std::function<void()> listener);

 private:
  QString socket_;
  storage::FolderLock::Attempt attempt_;
  QLocalServer server_;
};

}  // namespace tarnwell::desktop
