#pragma once

#include <QAbstractScrollArea>
#include <QLabel>
#include <QPixmap>
#include <QToolButton>
#include <functional>
#include <vector>

#include "forms/page_preview.h"

namespace tarnwell::desktop {

// Whole pages of a document on a desk, two side by side where there is room, with the buttons that
// turn them below. Page Up and Page Down turn them too, Home and End go to the first and the last.
// Enlarged it is one page, as wide as the desk.
class PageView : public QAbstractScrollArea {
 public:
  PageView();

  // The preview as it is now. Needs its document to stay until the next call.
  void Show(const forms::PagePreview& preview);
  std::function<void(int page)> on_turn;

  QSize sizeHint() const override { return {480, 480}; }
  QSize minimumSizeHint() const override { return {240, 240}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  double Scale(int page) const;  // pixels a twip
  QSize SheetSize(int page) const;
  // How many pages are seen at a time.
  int Seen() const;
  std::vector<QRect> Places() const;
  void Arrange();
  void ShowNumber();
  QPixmap PaintSheet(int page) const;
  void PaintGuideLines(QPainter& painter, int page, const QRectF& sheet) const;

  QWidget* pager_;
  QToolButton* back_;
  QLabel* number_;
  QToolButton* forth_;
  const forms::Document* document_ = nullptr;
  int page_ = 0;
  forms::Zoom zoom_ = forms::Zoom::kNormal;
  bool guide_lines_ = false;
  std::vector<QPixmap> sheets_;  // those seen, painted when they first are
};

}  // namespace tarnwell::desktop
