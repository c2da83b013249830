#include <QDragEnterEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <QUrl>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/picture_files.h"
#include "desktop/widgets/pictures.h"
#include "desktop/widgets/spoken_role.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

// Paints a drawing or a photograph as large as its place allows, in its own proportions.
class PictureWidget : public QWidget {
 public:
  explicit PictureWidget(const PictureStore& pictures) : pictures_(pictures) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    SetSpokenRole(this, QAccessible::Graphic);
  }

  void Show(const forms::Picture& picture) {
    if (picture.file() == file_ && picture.content() == content_) return;
    file_ = picture.file();
    content_ = picture.content();
    const QByteArray content =
        content_ ? QByteArray::fromStdString(*content_) : pictures_.Read(file_);
    photograph_ = {};
    if (content_ || !drawing_.load(content)) photograph_ = Decoded(content);
    updateGeometry();
    update();
  }

  void SetMarked(bool marked) {
    marked_ = marked;
    update();
  }

  // The keyboard reaches a picture that can be clicked.
  void SetClick(std::function<void()> on_click) {
    on_click_ = std::move(on_click);
    setCursor(Qt::PointingHandCursor);
    SetPressed();
  }

  void SetOpen(std::function<void()> on_open) {
    on_open_ = std::move(on_open);
    SetPressed();
  }

  // A file of this machine may be dropped on it.
  void SetDrop(std::function<void(const std::string& path)> on_drop) {
    on_drop_ = std::move(on_drop);
    setAcceptDrops(true);
  }

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
    if (marked_) {
      painter.setPen(QPen(ColorOf(Tone::kAccent), kFrameWidth));
      painter.drawRect(QRectF(place).adjusted(1, 1, -1, -1));
    }
    if (!hasFocus()) return;
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
    painter.drawRect(place.adjusted(4, 4, -5, -5));
  }

  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    const bool clicks = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    const auto& does = on_click_ ? on_click_ : on_open_;
    if (!does || !clicks) return QWidget::keyPressEvent(event);
    does();
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (!on_open_ || event->button() != Qt::LeftButton) {
      return QWidget::mouseDoubleClickEvent(event);
    }
    on_open_();
  }

  void dragEnterEvent(QDragEnterEvent* event) override {
    if (!DroppedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
  }

  void dropEvent(QDropEvent* event) override {
    const QString file = DroppedFile(*event->mimeData());
    if (file.isEmpty()) return;
    event->acceptProposedAction();
    const std::string path = ToCore(file);
    on_drop_(FromCore(path) == file ? path : std::string());
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    QWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && on_click_)
      on_click_();
  }

 private:
  void SetPressed() {
    setFocusPolicy(Qt::StrongFocus);
    SetSpokenRole(this, QAccessible::PushButton, true);
  }

  QSize OwnSize() const { return drawing_.isValid() ? drawing_.defaultSize() : photograph_.size(); }

  // The only one; empty for several, and for what doesn't lie on this machine.
  static QString DroppedFile(const QMimeData& dropped) {
    const QList<QUrl> urls = dropped.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
  }

  static constexpr double kFrameWidth = 3;

  const PictureStore& pictures_;
  std::string file_;
  std::shared_ptr<const std::string> content_;
  bool marked_ = false;
  std::function<void()> on_click_;
  std::function<void()> on_open_;
  std::function<void(const std::string& path)> on_drop_;
  QSvgRenderer drawing_;
  QImage photograph_;
};

}  // namespace

QWidget* Widget(forms::Picture& picture, PictureStore& pictures) {
  auto* widget = new PictureWidget(pictures);
  auto* binding = new Binding(widget, picture, [widget, &picture] {
    widget->Show(picture);
    widget->SetMarked(picture.marked());
  });
  if (picture.on_click) widget->SetClick(binding->Forward([&picture] { picture.Click(); }));
  if (picture.on_open) widget->SetOpen(binding->Forward([&picture] { picture.Open(); }));
  if (picture.on_drop) {
    widget->SetDrop(binding->Forward([&picture](const std::string& path) { picture.Drop(path); }));
  }
  return widget;
}

}  // namespace tarnwell::desktop
