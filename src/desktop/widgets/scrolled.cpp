#include <QApplication>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>

#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

class Scroller : public QScrollArea {
 public:
  explicit Scroller(QWidget* inner) : content_(Column({Grow(inner)}, 0)) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content_);
    // The ground is that of what lies around.
    viewport()->setAutoFillBackground(false);
    content_->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { FollowFocus(now); });
  }

  QSize sizeHint() const override {
    const QSize wanted = content_->sizeHint();
    return wanted.expandedTo({0, content_->heightForWidth(wanted.width())});
  }

 protected:
  // Qt's own forgets that a content which grows asks for more room.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == content_ && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
  }
  // The form's own keys go past the scroll bars, unless these are there.
  void keyPressEvent(QKeyEvent* event) override {
    const bool turns = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    if (turns && verticalScrollBar()->isVisible()) return QScrollArea::keyPressEvent(event);
    event->ignore();
  }

 private:
  // What a press of the mouse has reached mustn't move from under it.
  void FollowFocus(QWidget* now) {
    if (!now || !content_->isAncestorOf(now) || QApplication::mouseButtons() != Qt::NoButton) {
      return;
    }
    ensureWidgetVisible(now, kSpace, kSpace);
  }

  QWidget* content_;
};

// The scroll bar has its place whether it is there or not.
class ColumnScroller : public Scroller {
 public:
  using Scroller::Scroller;

  QSize sizeHint() const override { return Scroller::sizeHint() + QSize(BarWidth(), 0); }
  QSize minimumSizeHint() const override {
    return {widget()->minimumSizeHint().width() + BarWidth(), Scroller::minimumSizeHint().height()};
  }

 private:
  int BarWidth() const { return verticalScrollBar()->sizeHint().width(); }
};

}  // namespace

QWidget* Scrolled(QWidget* content) { return new Scroller(content); }

QWidget* ScrolledColumn(QWidget* content) { return new ColumnScroller(content); }

}  // namespace tarnwell::desktop
