#pragma once

#include <QAbstractScrollArea>
#include <QLabel>
#include <QPixmap>
#include <QToolButton>
#include <functional>

#include "desktop/widgets/pictures.h"
#include "forms/page_preview.h"

namespace tarnwell::desktop {

// One page of a document on a desk, with the buttons that turn the pages below it. Page Up and Page
// Down turn them too, Home and End go to the first and the last.
class PageView : public QAbstractScrollArea {
 public:
  explicit PageView(const PictureStore& pictures);

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
  double Scale() const;  // pixels a twip
  QSize SheetSize() const;
  void Arrange();
  QPixmap PaintSheet() const;
  void PaintGuideLines(QPainter& painter, const QRectF& sheet) const;

  const PictureStore& pictures_;
  QWidget* pager_;
  QToolButton* back_;
  QLabel* number_;
  QToolButton* forth_;
  const forms::Document* document_ = nullptr;
  int page_ = 0;
  forms::Zoom zoom_ = forms::Zoom::kNormal;
  bool guide_lines_ = false;
  QPixmap sheet_;  // painted when it is first seen
};

}  // namespace tarnwell::desktop
