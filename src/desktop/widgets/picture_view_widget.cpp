#include <QGraphicsPixmapItem>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/machine_pictures.h"
#include "desktop/widgets/spoken_role.h"

namespace tarnwell::desktop {
namespace {

constexpr QSize kMostPixels{5000, 5000};  // a letter at 450 dots an inch
constexpr double kStep = 1.25;
constexpr int kLevels = 4;

// Scroll bars and dragging move it, the wheel makes it larger under the pointer.
class PictureView : public QGraphicsView {
 public:
  PictureView() {
    setScene(&scene_);
    setBackgroundBrush(palette().window());
    picture_->setTransformationMode(Qt::SmoothTransformation);
    setDragMode(ScrollHandDrag);
    setTransformationAnchor(AnchorUnderMouse);
    setRenderHint(QPainter::SmoothPixmapTransform);
    setFocusPolicy(Qt::StrongFocus);
    SetSpokenRole(this, QAccessible::Graphic);
  }

  void Show(const forms::PictureView& picture) {
    if (path_ != picture.path()) {
      path_ = picture.path();
      Take(path_.empty() ? QImage() : ReadMachinePicture(path_, kMostPixels).image);
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
  // Each level is half as large as the one before: where much is left out, letters stay legible.
  void Take(QImage image) {
    levels_.clear();
    scene_.setSceneRect(QRectF({}, QSizeF(image.size())));
    for (int level = 0; level < kLevels && !image.isNull(); ++level) {
      levels_.push_back(QPixmap::fromImage(image));
      const QSize half(image.width() / 2, image.height() / 2);
      image = half.isEmpty() ? QImage()
                             : image.scaled(half, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    if (levels_.empty()) picture_->setPixmap({});
  }

  // Whole in its place, but never larger than it is; then by the steps.
  void Scale() {
    if (levels_.empty()) return;
    const QSizeF own = scene_.sceneRect().size();
    const QSizeF room = maximumViewportSize();
    const double whole = std::min({1.0, room.width() / own.width(), room.height() / own.height()});
    const double scale = whole * std::pow(kStep, steps_);
    std::size_t level = 0;
    while (level + 1 < levels_.size() && std::ldexp(scale, static_cast<int>(level)) < 0.5) ++level;
    picture_->setPixmap(levels_[level]);
    picture_->setScale(std::ldexp(1, static_cast<int>(level)));
    setTransform(QTransform::fromScale(scale, scale));
  }

  std::string path_;
  QGraphicsScene scene_;
  QGraphicsPixmapItem* picture_ = scene_.addPixmap({});
  std::vector<QPixmap> levels_;
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
