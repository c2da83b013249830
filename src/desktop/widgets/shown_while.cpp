
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

class Follower : public QWidget {
 public:
  Follower(forms::Control& control, std::function<bool()> shown, QWidget* content) {
    auto* layout = new TightLayout(QBoxLayout::TopToBottom, this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    subscription_ = control.OnChanged([this, shown = std::move(shown)] { setVisible(shown()); });
  }

 private:
  forms::Subscription subscription_;
};

}  // namespace

QWidget* ShownWhile(forms::Control& control, std::function<bool()> shown, QWidget* content) {
  return new Follower(control, std::move(shown), content);
}

}  // namespace tarnwell::desktop
