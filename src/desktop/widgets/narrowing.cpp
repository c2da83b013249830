#include <QEvent>
#include <QScrollBar>
#include <QSplitter>

#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

// Gives the left side the width that it wants, until a person moves the line between the two.
class Narrowing : public QSplitter {
 public:
  Narrowing(QWidget* side, QWidget* main) : QSplitter(Qt::Horizontal) {
    addWidget(side);
    addWidget(main);
    setChildrenCollapsible(false);
    setStretchFactor(1, 1);
    setHandleWidth(kSpace);
    connect(this, &QSplitter::splitterMoved, this, [this] { moved_ = true; });
  }

 protected:
  bool event(QEvent* event) override {
    const bool known = QSplitter::event(event);
    if (event->type() == QEvent::LayoutRequest) ShareWidth();
    return known;
  }
  void resizeEvent(QResizeEvent* event) override {
    QSplitter::resizeEvent(event);
    ShareWidth();
  }

 private:
  void ShareWidth() {
    if (moved_) return;
    const int wanted = WidthOfSide();
    setSizes({wanted, width() - wanted - handleWidth()});
  }

  // A side that is too high brings a scroll bar, which mustn't lie on its content.
  int WidthOfSide() const {
    const QSize wanted = widget(0)->sizeHint();
    const auto* scrolled = qobject_cast<QAbstractScrollArea*>(widget(0));
    if (!scrolled || wanted.height() <= height()) return wanted.width();
    return wanted.width() + scrolled->verticalScrollBar()->sizeHint().width();
  }

  bool moved_ = false;
};

}  // namespace

QWidget* Narrowable(QWidget* side, QWidget* main) { return new Narrowing(side, main); }

}  // namespace tarnwell::desktop
