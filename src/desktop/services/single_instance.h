#pragma once

#include <QLocalServer>
#include <QString>
#include <functional>
#include <memory>

#include "storage/folder_lock.h"

namespace tarnwell::desktop {

// One running program for each folder. The lock decides; a local socket carries the call of a
// second start to the first one.
class SingleInstance {
 public:
  explicit SingleInstance(const QString& folder);

  // This process is the one that may use the folder.
  bool first() const { return lock_ != nullptr; }
  // Asks the first one to show itself. False when nobody answers.
  bool CallFirst() const;
  // A second start called.
  void OnCall(std::function<void()> listener);

 private:
  QString name_;
  std::unique_ptr<storage::FolderLock> lock_;
  QLocalServer server_;
};

}  // namespace tarnwell::desktop
