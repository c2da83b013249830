#pragma once

#include <QWidget>

namespace tarnwell::desktop {

// An area with a border and round corners in its palette's window colour, or nothing but the place
// of its content.
class CardWidget : public QWidget {
 public:
  void SetCard(bool card);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool card_ = false;
};

}  // namespace tarnwell::desktop
