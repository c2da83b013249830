#include <QGraphicsPixmapItem>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <functional>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/machine_pictures.h"

namespace tarnwell::desktop {
namespace {

constexpr QSize kMostPixels{5000, 5000};  // a letter at 450 dots an inch
constexpr double kStep = 1.25;

// Scroll bars and dragging move it, the wheel makes it larger under the pointer.
class PictureView : public QGraphicsView {
 public:
  PictureView() {
    setScene(&scene_);
    setDragMode(ScrollHandDrag);
    setTransformationAnchor(AnchorUnderMouse);
    setRenderHint(QPainter::SmoothPixmapTransform);
    setFocusPolicy(Qt::StrongFocus);
  }

  void Show(const forms::PictureView& picture) {
    if (path_ != picture.path()) {
      path_ = picture.path();
      scene_.clear();
      picture_ = nullptr;
      if (!path_.empty()) {
        const QImage image = ReadMachinePicture(path_, kMostPixels).image;
        picture_ = scene_.addPixmap(QPixmap::fromImage(image));
        picture_->setTransformationMode(Qt::SmoothTransformation);
        scene_.setSceneRect(picture_->boundingRect());
      }
    }
    steps_ = picture.steps();
    Scale();
  }

  std::function<void(int steps)> on_enlarge;

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QGraphicsView::resizeEvent(event);
    Scale();
  }

  void wheelEvent(QWheelEvent* event) override {
    turned_ += event->angleDelta().y();
    const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ %= QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0 && on_enlarge) on_enlarge(steps);
    event->accept();
  }

  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    if (key != Qt::Key_Plus && key != Qt::Key_Minus) return QGraphicsView::keyPressEvent(event);
    if (on_enlarge) on_enlarge(key == Qt::Key_Plus ? 1 : -1);
  }

 private:
  // Whole in its place, but never larger than it is; then by the steps.
  void Scale() {
    if (!picture_ || picture_->pixmap().isNull()) return;
    const QSizeF own = picture_->boundingRect().size();
    const QSizeF room = maximumViewportSize();
    const double whole = std::min({1.0, room.width() / own.width(), room.height() / own.height()});
    const double scale = whole * std::pow(kStep, steps_);
    setTransform(QTransform::fromScale(scale, scale));
  }

  std::string path_;
  QGraphicsScene scene_;
  QGraphicsPixmapItem* picture_ = nullptr;  // of the scene
  int steps_ = 0;
  int turned_ = 0;  // of the wheel, in eighths of a degree, that make no step yet
};

}  // namespace

QWidget* Widget(forms::PictureView& picture) {
  auto* view = new PictureView;
  auto* binding = new Binding(view, picture, [view, &picture] { view->Show(picture); });
  view->on_enlarge = binding->Forward([&picture](int steps) { picture.Enlarge(steps); });
  return view;
}

}  // namespace tarnwell::desktop
