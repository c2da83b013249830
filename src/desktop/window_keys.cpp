#include "desktop/window_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

#include "desktop/main_window.h"
#include "desktop/widgets/grid_view.h"
#include "desktop/widgets/text.h"
#include "forms/mnemonics.h"
#include "parts/help_menu.h"

namespace tarnwell::desktop {
namespace {

// The window that the widget belongs to in the end, over all dialogues and menus between.
QWidget* RootOf(QWidget* widget) {
  while (widget->parentWidget()) widget = widget->parentWidget();
  return widget;
}

}  // namespace

WindowKeys::WindowKeys(MainWindow& window) : window_(window) { qApp->installEventFilter(this); }

// The shortcut that a key might be comes before the key itself; who wants the key has to say so.
bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
  const bool press = event->type() == QEvent::KeyPress;
  if (!press && event->type() != QEvent::ShortcutOverride) return false;
  auto* widget = qobject_cast<QWidget*>(watched);
  if (!widget || !window_.TopPage()) return false;
  if (!Take(*widget, static_cast<const QKeyEvent&>(*event), press)) return false;
  event->accept();
  return true;
}

bool WindowKeys::Take(QWidget& widget, const QKeyEvent& key, bool act) {
  const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
  if (key.key() == Qt::Key_F1 && !modifiers) return TakeHelp(widget, act);
  // An open menu and a box have the keys to themselves.
  if (QApplication::activePopupWidget() || widget.window() != window_.TopPage()->window()) {
    return false;
  }
  if (key.key() == Qt::Key_F10 && !modifiers) return TakeMenuKey(act);
  return modifiers == Qt::AltModifier && TakeMnemonic(key, act);
}

bool WindowKeys::TakeHelp(QWidget& widget, bool act) {
  // Under a dialogue that has the whole application the help could be seen but not used.
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal && modal->windowModality() == Qt::ApplicationModal) return false;
  // The menus of a form have no parent; the help window isn't ours.
  if (RootOf(&widget) != &window_ && !qobject_cast<QMenu*>(RootOf(&widget))) return false;
  if (act) {
    while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    const int context = window_.TopPage()->form().help_context();
    window_.help().Show(context != 0 ? context : parts::kProgramOverview);
  }
  return true;
}

bool WindowKeys::TakeMnemonic(const QKeyEvent& key, bool act) {
  if (key.key() < Qt::Key_0 || key.key() > Qt::Key_Z) return false;
  FormPage* page = window_.TopPage();
  const char letter = static_cast<char>(QChar(key.key()).toLower().toLatin1());
  const forms::Control* target = forms::MnemonicTarget(page->form(), letter);
  if (!target) return false;
  auto* button = page->findChild<QAbstractButton*>(FromCore(target->name()));
  if (!button || !button->isVisible()) return false;
  if (act && EndEditUnderKeys()) {
    const bool takes_focus = button->focusPolicy() != Qt::NoFocus;
    if (takes_focus) button->setFocus(Qt::ShortcutFocusReason);
    // The control before may not let the focus go; then the button is as little pressed as with the
    // mouse.
    const QWidget* focus = QApplication::focusWidget();
    if (!takes_focus || !focus || focus == button) button->click();
  }
  return true;
}

bool WindowKeys::TakeMenuKey(bool act) {
  QMenuBar* bar = window_.menuBar();
  if (!bar->isVisible() || !bar->isEnabled() || window_.TopPage()->window() != &window_) {
    return false;
  }
  for (QAction* menu : bar->actions()) {
    if (!menu->isVisible() || !menu->isEnabled()) continue;
    if (act) bar->setActiveAction(menu);
    return true;
  }
  return false;
}

}  // namespace tarnwell::desktop
