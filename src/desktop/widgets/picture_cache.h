#pragma once

#include <QByteArray>
#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QSet>
#include <QString>
#include <QThreadPool>
#include <functional>

namespace tarnwell::desktop {

// The decoded pictures of a view: those that it asks for, at the size at which it shows them, in
// 64 MB at most. Large ones are decoded one at a time beside the program, so that it never waits.
class PictureCache {
 public:
  static constexpr int kMostKilobytes = 64 * 1024;

  // `on_ready` runs when a picture that wasn't there has come.
  explicit PictureCache(std::function<void()> on_ready);

  // A grey field for a picture that is still to come, a crossed frame for one that can't be read.
  // The same name always means
  // the same file at the same size, in pixels of the screen.
  QPixmap At(const QString& name, const QByteArray& file, QSize size);

  int kilobytes() const { return static_cast<int>(pictures_.totalCost()); }
  const QPixmap& waiting() const { return waiting_; }  // the grey field

  // Lets what was thrown out for want of room come again, because others are in sight now.
  void Retry() { tried_.clear(); }

 private:
  void Keep(const QString& name, const QImage& image, QSize size);

  std::function<void()> on_ready_;
  QPixmap waiting_;
  QCache<QString, QPixmap> pictures_{kMostKilobytes};
  QSet<QString> tried_;
  bool is_busy_ = false;
  QObject thread_;    // takes what comes from the other one
  QThreadPool pool_;  // last: it waits for its work
};

}  // namespace tarnwell::desktop
