#pragma once

#include <QHeaderView>

namespace tarnwell::desktop {

// The headings of a grid. The first ones stay at the left when the others are scrolled sideways.
class GridHeader : public QHeaderView {
 public:
  explicit GridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

  void SetHeld(int columns) { held_ = columns; }
  int held() const { return held_; }
  // Pixels that the held columns cover of the others; 0 while all lie in their places, and where
  // they would leave too little room.
  int HeldWidth() const;
  // Pixels from the left of a held column.
  int WidthOfFirst(int columns) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  int held_ = 0;
};

}  // namespace tarnwell::desktop
