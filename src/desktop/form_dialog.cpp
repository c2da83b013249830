#include "desktop/form_dialog.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>

namespace tarnwell::desktop {
namespace {

// What a window manager puts around a dialogue, at most.
constexpr QSize kFrame{16, 48};

}  // namespace

FormDialog::FormDialog(QWidget* window, FormPage* page, bool frameless,
                       std::function<void()> on_close)
    : QDialog(window, frameless ? Qt::Dialog | Qt::FramelessWindowHint : Qt::Dialog),
      page_(page),
      on_close_(std::move(on_close)) {
  // Not for the whole application: the help window beside the program stays usable.
  setWindowModality(Qt::WindowModal);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(page);
  if (page->menus().empty()) return;
  auto* bar = new QMenuBar;
  for (const auto& menu : page->menus()) bar->addMenu(menu.get());
  layout->setMenuBar(bar);
}

void FormDialog::ShowOver(QWidget& window) {
  if (!isVisible()) {
    const QSize room = screen()->availableSize() - kFrame;
    resize(sizeHint().boundedTo(room));
    QRect place({}, size());
    place.moveCenter(window.isVisible() ? window.geometry().center()
                                        : screen()->availableGeometry().center());
    move(place.topLeft());
  }
  show();
  raise();
  activateWindow();
}

void FormDialog::closeEvent(QCloseEvent* event) {
  event->ignore();
  on_close_();
}

}  // namespace tarnwell::desktop
