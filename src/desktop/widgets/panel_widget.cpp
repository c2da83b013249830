#include <QLabel>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/card.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"
#include "forms/form.h"

namespace tarnwell::desktop {
namespace {

// A card when it has a title or a colour of its own, else only the place of its content.
class PanelWidget : public CardWidget {
 public:
  // An inner panel is a frame inside another one and has a smaller head.
  PanelWidget(QWidget* content, bool inner)
      : title_(new QLabel), layout_(new TightLayout(QBoxLayout::TopToBottom, this)), inner_(inner) {
    title_->setTextFormat(Qt::PlainText);
    title_->setFont(ScaledFont(inner ? TextSize::kStrong : TextSize::kHeading));
    layout_->setSpacing(inner ? kTightSpace : kSpace);
    layout_->addWidget(title_);
    layout_->addWidget(content, 1);
  }

  void ShowAs(const QString& title, const std::optional<forms::Color>& background) {
    title_->setText(title);
    title_->setVisible(!title.isEmpty());
    const bool card = !title.isEmpty() || background.has_value();
    const int margin = card ? (inner_ ? kSpace : kWideSpace) : 0;
    const int above = inline_ ? kTightSpace : margin;
    layout_->setContentsMargins(margin, above, margin, above);
    SetCard(card);
    if (card) setPalette(PaletteOn(background ? GroundOf(background) : ColorOf(Tone::kCard)));
  }

  void SetInline() {
    inline_ = true;
    layout_->setDirection(QBoxLayout::LeftToRight);
    layout_->setSpacing(kSpace);
    layout_->setContentsMargins(kSpace, kTightSpace, kSpace, kTightSpace);
  }

 private:
  QLabel* title_;
  QBoxLayout* layout_;
  bool inner_;
  bool inline_ = false;
};

}  // namespace

QWidget* Widget(forms::Panel& panel, QWidget* content) {
  const bool inner = !dynamic_cast<const forms::Form*>(&panel.parent());
  auto* widget = new PanelWidget(content, inner);
  new Binding(widget, panel, [widget, &panel] {
    widget->ShowAs(FromCore(panel.caption()).trimmed(), panel.background());
    NameForScreenReader(widget, panel, panel.caption());
  });
  return widget;
}

QWidget* Inline(QWidget* panel) {
  static_cast<PanelWidget*>(panel)->SetInline();
  return panel;
}

}  // namespace tarnwell::desktop
