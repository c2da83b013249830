// What a backup or a restore asks of the person and shows while it runs.

#pragma once

#include <string>

namespace tarnwell::backup {

class Attendant {
 public:
  virtual ~Attendant() = default;

  // The old files of a disk are being deleted; the disk of that number is at work.
  virtual void ShowDeleting() = 0;
  virtual void ShowDisk(int number) = 0;
  // The bar begins anew, and moves.
  virtual void StartBar(int maximum) = 0;
  virtual void MoveBar(int value) = 0;
  // Lets the window live. False from when the person wants to stop.
  virtual bool GoOn() = 0;
  // Asks for the disk of that number. False when the person gives up.
  virtual bool AskForDisk(int number) = 0;
  // The disk there can't be read, or holds nothing of the set.
  virtual void TellUnreadableDisk() = 0;
  // Where the disk is that is in its place now, as a FolderBrowser writes it; empty where there is
  // none.
  virtual std::string DiskPath() = 0;
};

}  // namespace tarnwell::backup
