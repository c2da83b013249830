#include <QEvent>
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
    const int wanted = widget(0)->sizeHint().width();
    setSizes({wanted, width() - wanted - handleWidth()});
  }

  bool moved_ = false;
};

}  // namespace

QWidget* Narrowable(QWidget* side, QWidget* main) { return new Narrowing(side, main); }

}  // namespace tarnwell::desktop
