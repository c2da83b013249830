#include "desktop/widgets/page_view.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "desktop/widgets/look.h"
#include "desktop/widgets/page_painter.h"

namespace tarnwell::desktop {
namespace {

constexpr double kFullSize = 1.0 / 15;  // pixels a twip on a display of standard density
constexpr double kLargest = 2 * kFullSize;
constexpr int kDeskEdge = 12;
const QColor kDesk(0xDD, 0xE1, 0xE6);
const QColor kSheetEdge(0xAE, 0xB8, 0xC2);
const QColor kGuideLine(0x6A, 0x8F, 0xC8);

QToolButton* PagerButton(const QString& sign, const QString& name) {
  auto* button = new QToolButton;
  button->setText(sign);
  button->setAccessibleName(name);
  button->setToolTip(name);
  button->setAutoRaise(true);
  return button;
}

}  // namespace

PageView::PageView(const PictureStore& pictures)
    : pictures_(pictures),
      pager_(new QWidget(this)),
      back_(PagerButton(QStringLiteral("\u2039"), QStringLiteral("Page before"))),
      number_(new QLabel),
      forth_(PagerButton(QStringLiteral("\u203A"), QStringLiteral("Next page"))) {
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::StyledPanel);
  pager_->setAutoFillBackground(true);
  pager_->setPalette(PaletteOn(Qt::white));
  auto* layout = new QHBoxLayout(pager_);
  layout->setContentsMargins(kTightSpace, kTightSpace, kTightSpace, kTightSpace);
  layout->addStretch(1);
  for (QWidget* part : {static_cast<QWidget*>(back_), static_cast<QWidget*>(number_),
                        static_cast<QWidget*>(forth_)}) {
    layout->addWidget(part);
  }
  layout->addStretch(1);
  const auto turn = [this](int pages) {
    if (on_turn) on_turn(page_ + pages);
  };
  connect(back_, &QToolButton::clicked, this, [turn] { turn(-1); });
  connect(forth_, &QToolButton::clicked, this, [turn] { turn(1); });
}

void PageView::Show(const forms::PagePreview& preview) {
  const bool is_new = document_ != preview.document() || page_ != preview.page();
  document_ = preview.document();
  page_ = preview.page();
  zoom_ = preview.zoom();
  guide_lines_ = preview.guide_lines();
  const int pages = preview.page_count();
  number_->setText(pages == 0 ? QStringLiteral("No pages")
                              : QStringLiteral("Page %1 of %2").arg(page_ + 1).arg(pages));
  back_->setEnabled(page_ > 0);
  forth_->setEnabled(page_ + 1 < pages);
  sheet_ = {};
  Arrange();
  if (is_new) verticalScrollBar()->setValue(0);
}

double PageView::Scale() const {
  const QSize room = maximumViewportSize() - QSize(2 * kDeskEdge, 2 * kDeskEdge);
  const forms::PageSetup& setup = document_->setup;
  const double high = static_cast<double>(room.height()) / setup.height();
  const double wide = static_cast<double>(room.width()) / setup.width();
  if (zoom_ == forms::Zoom::kWholePage) return std::max(std::min(wide, high), 0.001);
  // The scroll bar has its place whether it is there or not.
  const double beside_bar =
      static_cast<double>(room.width() - verticalScrollBar()->sizeHint().width()) / setup.width();
  const double most = zoom_ == forms::Zoom::kEnlarged ? kLargest : kFullSize;
  return std::clamp(beside_bar, 0.001, most);
}

QSize PageView::SheetSize() const {
  const double scale = Scale();
  return {static_cast<int>(document_->setup.width() * scale),
          static_cast<int>(document_->setup.height() * scale)};
}

void PageView::Arrange() {
  const int pager_height = pager_->sizeHint().height();
  setViewportMargins(0, 0, 0, pager_height);
  const QRect inside = contentsRect();
  pager_->setGeometry(inside.left(), inside.bottom() + 1 - pager_height, inside.width(),
                      pager_height);
  const int height = document_ ? SheetSize().height() + 2 * kDeskEdge : 0;
  verticalScrollBar()->setRange(0, std::max(0, height - maximumViewportSize().height()));
  verticalScrollBar()->setPageStep(maximumViewportSize().height());
  verticalScrollBar()->setSingleStep(fontMetrics().height() * 2);
  viewport()->update();
}

void PageView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  sheet_ = {};
  Arrange();
}

void PageView::keyPressEvent(QKeyEvent* event) {
  const int last = document_ ? static_cast<int>(document_->pages.size()) - 1 : 0;
  const auto turn_to = [&](int page) {
    if (on_turn) on_turn(page);
  };
  switch (event->key()) {
    case Qt::Key_PageUp:
      return turn_to(page_ - 1);
    case Qt::Key_PageDown:
      return turn_to(page_ + 1);
    case Qt::Key_Home:
      return turn_to(0);
    case Qt::Key_End:
      return turn_to(last);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

QPixmap PageView::PaintSheet() const {
  const double density = devicePixelRatioF();
  QPixmap sheet(SheetSize() * density);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  painter.scale(Scale() * density, Scale() * density);
  PagePainter(*document_, pictures_).Paint(painter, page_);
  painter.end();
  sheet.setDevicePixelRatio(density);
  return sheet;
}

void PageView::PaintGuideLines(QPainter& painter, const QRectF& sheet) const {
  const forms::Margins& margins = document_->setup.margins;
  const double scale = Scale();
  const QRectF inside = sheet.adjusted(margins.left * scale, margins.top * scale,
                                       -margins.right * scale, -margins.bottom * scale);
  painter.setPen(QPen(kGuideLine, 1, Qt::DashLine));
  painter.drawLine(QPointF(inside.left(), sheet.top()), QPointF(inside.left(), sheet.bottom()));
  painter.drawLine(QPointF(inside.right(), sheet.top()), QPointF(inside.right(), sheet.bottom()));
  painter.drawLine(QPointF(sheet.left(), inside.top()), QPointF(sheet.right(), inside.top()));
  painter.drawLine(QPointF(sheet.left(), inside.bottom()), QPointF(sheet.right(), inside.bottom()));
}

void PageView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), kDesk);
  if (!document_ || document_->pages.empty()) return;
  if (sheet_.isNull()) sheet_ = PaintSheet();
  const QSize size = SheetSize();
  const QSize room = viewport()->size();
  const int top = size.height() + 2 * kDeskEdge <= room.height()
                      ? (room.height() - size.height()) / 2
                      : kDeskEdge - verticalScrollBar()->value();
  const QRect place(QPoint((room.width() - size.width()) / 2, top), size);
  painter.drawPixmap(place.topLeft(), sheet_);
  painter.setPen(kSheetEdge);
  painter.drawRect(place.adjusted(-1, -1, 0, 0));
  if (guide_lines_) PaintGuideLines(painter, place);
}

}  // namespace tarnwell::desktop
