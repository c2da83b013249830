#include "desktop/widgets/page_view.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "desktop/widgets/look.h"
#include "desktop/widgets/page_painter.h"
#include "desktop/widgets/spoken_role.h"

namespace tarnwell::desktop {
namespace {

constexpr double kFullSize = 1.0 / 15;  // pixels a twip on a display of standard density
constexpr double kLargest = 2 * kFullSize;
constexpr int kDeskEdge = 12;
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

PageView::PageView()
    : pager_(new QWidget(this)),
      back_(PagerButton(QStringLiteral("\u2039"), QStringLiteral("Page before"))),
      number_(new QLabel),
      forth_(PagerButton(QStringLiteral("\u203A"), QStringLiteral("Next page"))) {
  setFocusPolicy(Qt::StrongFocus);
  SetSpokenRole(this, QAccessible::Document);
  setFrameShape(QFrame::StyledPanel);
  pager_->setAutoFillBackground(true);
  pager_->setPalette(PaletteOn(ColorOf(Tone::kCard)));
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
  connect(back_, &QToolButton::clicked, this, [this, turn] { turn(-Seen()); });
  connect(forth_, &QToolButton::clicked, this, [this, turn] { turn(Seen()); });
}

void PageView::Show(const forms::PagePreview& preview) {
  const bool is_new = document_ != preview.document() || page_ != preview.page();
  document_ = preview.document();
  page_ = preview.page();
  zoom_ = preview.zoom();
  guide_lines_ = preview.guide_lines();
  Arrange();
  if (is_new) verticalScrollBar()->setValue(0);
}

double PageView::Scale(int page) const {
  const QSize room = maximumViewportSize() - QSize(2 * kDeskEdge, 2 * kDeskEdge);
  const forms::PageSetup& setup = document_->SetupOf(static_cast<std::size_t>(page));
  if (zoom_ != forms::Zoom::kEnlarged) {
    const double high = static_cast<double>(room.height()) / setup.height();
    const double wide = static_cast<double>(room.width()) / setup.width();
    return std::clamp(std::min(wide, high), 0.001, kLargest);
  }
  // The scroll bar has its place whether it is there or not.
  const double beside_bar =
      static_cast<double>(room.width() - verticalScrollBar()->sizeHint().width()) / setup.width();
  return std::clamp(beside_bar, 0.001, kLargest);
}

QSize PageView::SheetSize(int page) const {
  const double scale = Scale(page);
  const forms::PageSetup& setup = document_->SetupOf(static_cast<std::size_t>(page));
  return {static_cast<int>(setup.width() * scale), static_cast<int>(setup.height() * scale)};
}

int PageView::Seen() const {
  if (!document_ || zoom_ == forms::Zoom::kEnlarged) return 1;
  if (page_ + 1 >= static_cast<int>(document_->pages.size())) return 1;
  const int both = SheetSize(page_).width() + SheetSize(page_ + 1).width();
  return both + 3 * kDeskEdge <= maximumViewportSize().width() ? 2 : 1;
}

std::vector<QRect> PageView::Places() const {
  std::vector<QRect> places;
  const QSize room = viewport()->size();
  int width = -kDeskEdge;
  for (int i = 0; i < Seen(); ++i) width += SheetSize(page_ + i).width() + kDeskEdge;
  int left = (room.width() - width) / 2;
  for (int i = 0; i < Seen(); ++i) {
    const QSize size = SheetSize(page_ + i);
    const int top = size.height() + 2 * kDeskEdge <= room.height()
                        ? (room.height() - size.height()) / 2
                        : kDeskEdge - verticalScrollBar()->value();
    places.emplace_back(QPoint(left, top), size);
    left += size.width() + kDeskEdge;
  }
  return places;
}

void PageView::Arrange() {
  sheets_.clear();
  const int pager_height = pager_->sizeHint().height();
  setViewportMargins(0, 0, 0, pager_height);
  const QRect inside = contentsRect();
  pager_->setGeometry(inside.left(), inside.bottom() + 1 - pager_height, inside.width(),
                      pager_height);
  const bool has_pages = document_ && !document_->pages.empty();
  const int height = has_pages ? SheetSize(page_).height() + 2 * kDeskEdge : 0;
  verticalScrollBar()->setRange(0, std::max(0, height - maximumViewportSize().height()));
  verticalScrollBar()->setPageStep(maximumViewportSize().height());
  verticalScrollBar()->setSingleStep(fontMetrics().height() * 2);
  ShowNumber();
  viewport()->update();
}

void PageView::ShowNumber() {
  const int pages = document_ ? static_cast<int>(document_->pages.size()) : 0;
  const int seen = Seen();
  QString text = QStringLiteral("No pages");
  if (pages > 0) text = QStringLiteral("Page %1 of %2").arg(page_ + 1).arg(pages);
  if (seen > 1) {
    text = QStringLiteral("Pages %1 and %2 of %3").arg(page_ + 1).arg(page_ + 2).arg(pages);
  }
  number_->setText(text);
  back_->setEnabled(page_ > 0);
  forth_->setEnabled(page_ + seen < pages);
}

void PageView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  Arrange();
}

void PageView::keyPressEvent(QKeyEvent* event) {
  const int last = document_ ? static_cast<int>(document_->pages.size()) - 1 : 0;
  const auto turn_to = [&](int page) {
    if (on_turn) on_turn(page);
  };
  switch (event->key()) {
    case Qt::Key_PageUp:
      return turn_to(page_ - Seen());
    case Qt::Key_PageDown:
      return turn_to(page_ + Seen() <= last ? page_ + Seen() : page_);
    case Qt::Key_Home:
      return turn_to(0);
    case Qt::Key_End:
      return turn_to(last);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

QPixmap PageView::PaintSheet(int page) const {
  const double density = devicePixelRatioF();
  QPixmap sheet(SheetSize(page) * density);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  painter.scale(Scale(page) * density, Scale(page) * density);
  PagePainter(*document_).Paint(painter, page);
  painter.end();
  sheet.setDevicePixelRatio(density);
  return sheet;
}

void PageView::PaintGuideLines(QPainter& painter, int page, const QRectF& sheet) const {
  const forms::Margins& margins = document_->SetupOf(static_cast<std::size_t>(page)).margins;
  const double scale = Scale(page);
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
  painter.fillRect(viewport()->rect(), ColorOf(Tone::kDesk));
  if (!document_ || document_->pages.empty()) return;
  const std::vector<QRect> places = Places();
  for (std::size_t i = 0; i < places.size(); ++i) {
    const int page = page_ + static_cast<int>(i);
    if (i == sheets_.size()) sheets_.push_back(PaintSheet(page));
    painter.drawPixmap(places[i].topLeft(), sheets_[i]);
    painter.setPen(kSheetEdge);
    painter.drawRect(places[i].adjusted(-1, -1, 0, 0));
    if (guide_lines_) PaintGuideLines(painter, page, places[i]);
  }
}

}  // namespace tarnwell::desktop
