#include <QGraphicsView>
#include <QResizeEvent>
#include <memory>
#include <utility>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/chart_drawing.h"
#include "desktop/widgets/spoken_role.h"

namespace tarnwell::desktop {
namespace {

constexpr QSize kLeastChart{240, 160};

class ChartView : public QGraphicsView {
 public:
  ChartView() {
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setRenderHint(QPainter::Antialiasing);
    setBackgroundBrush(Qt::white);
    SetSpokenRole(this, QAccessible::Chart);
    setFocusPolicy(Qt::NoFocus);  // the list beside it is for the keys
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }

  void Show(const forms::ChartPicture& picture) {
    if (picture == picture_) return;
    picture_ = picture;
    DrawSoon();
  }

  std::function<void(int point)> on_point;

  QSize minimumSizeHint() const override { return kLeastChart; }
  QSize sizeHint() const override { return kLeastChart * 2; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QGraphicsView::resizeEvent(event);
    DrawSoon();
  }

  void changeEvent(QEvent* event) override {
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::FontChange) DrawSoon();
  }

 private:
  // Once for all that changes together.
  void DrawSoon() {
    if (std::exchange(is_waiting_, true)) return;
    QMetaObject::invokeMethod(this, &ChartView::Draw, Qt::QueuedConnection);
  }

  void Draw() {
    is_waiting_ = false;
    auto drawing = std::make_unique<ChartDrawing>(picture_, QSizeF(viewport()->size()), font());
    // What a click changes draws the chart anew, which the click isn't through with yet.
    drawing->on_point = [this](int point) {
      QMetaObject::invokeMethod(
          this,
          [this, point] {
            if (on_point) on_point(point);
          },
          Qt::QueuedConnection);
    };
    setScene(&drawing->scene());
    drawing_ = std::move(drawing);
  }

  forms::ChartPicture picture_;
  std::unique_ptr<ChartDrawing> drawing_;
  bool is_waiting_ = false;
};

}  // namespace

QWidget* Widget(forms::Chart& chart) {
  auto* view = new ChartView;
  auto* binding = new Binding(view, chart, [view, &chart] { view->Show(chart.picture()); });
  view->on_point = binding->Forward([&chart](int point) { chart.ClickPoint(point); });
  NameForScreenReader(view, chart);
  return view;
}

}  // namespace tarnwell::desktop
