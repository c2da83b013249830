#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <functional>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/pictures.h"

namespace tarnwell::desktop {
namespace {

// Paints a drawing or a photograph as large as its place allows, in its own proportions.
class PictureWidget : public QWidget {
 public:
  explicit PictureWidget(const QByteArray& content) {
    if (!drawing_.load(content)) photograph_.loadFromData(content);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  }

  std::function<void()> on_click;

  QSize sizeHint() const override { return OwnSize(); }
  QSize minimumSizeHint() const override { return OwnSize() / 4; }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (OwnSize().isEmpty()) return;
    QRect place({}, OwnSize().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (drawing_.isValid()) {
      drawing_.render(&painter, place);
    } else {
      painter.drawImage(place, photograph_);
    }
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    QWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && on_click) on_click();
  }

 private:
  QSize OwnSize() const { return drawing_.isValid() ? drawing_.defaultSize() : photograph_.size(); }

  QSvgRenderer drawing_;
  QImage photograph_;
};

}  // namespace

QWidget* Widget(forms::Picture& picture, PictureStore& pictures) {
  auto* widget = new PictureWidget(pictures.Read(picture.file()));
  auto* binding = new Binding(widget, picture, {});
  if (picture.on_click) {
    widget->setCursor(Qt::PointingHandCursor);
    widget->on_click = binding->Forward([&picture] { picture.Click(); });
  }
  return widget;
}

}  // namespace tarnwell::desktop
