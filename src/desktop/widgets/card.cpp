#include "desktop/widgets/card.h"

#include <QPainter>

#include "desktop/widgets/layout.h"
#include "desktop/widgets/look.h"

namespace tarnwell::desktop {
namespace {

constexpr qreal kCornerRadius = 7;

}  // namespace

void CardWidget::SetCard(bool card) {
  card_ = card;
  update();
}

void CardWidget::paintEvent(QPaintEvent*) {
  if (!card_) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(palette().color(QPalette::Window));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius,
                          kCornerRadius);
}

QWidget* Card(QWidget* content, int space) {
  auto* card = new CardWidget;
  card->SetCard(true);
  card->setPalette(PaletteOn(ColorOf(Tone::kCard)));
  auto* layout = new TightLayout(QBoxLayout::TopToBottom, card);
  layout->setContentsMargins(space, space, space, space);
  layout->addWidget(content);
  return card;
}

}  // namespace tarnwell::desktop
