// A loaded form on the screen.

#pragma once

#include <QList>
#include <QMenu>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "forms/form.h"

namespace tarnwell::desktop {

// The form's view with its menus and background, and the gestures that mean the form as a whole:
// Esc, Enter and the right-click.
class FormPage : public QWidget {
 public:
  FormPage(forms::Form& form, QWidget* view);

  forms::Form& form() { return form_; }
  // The menus of the form's menu bar.
  const std::vector<std::unique_ptr<QMenu>>& menus() const { return menus_; }
  // Gives the keys to the widget whose control has the form's focus.
  void TakeFocus();
  // Does what the key means to the form as a whole; false where it means nothing to it.
  bool TakeKey(const QKeyEvent& event);

  // Caption, status, background or the menus' being alive changed.
  std::function<void()> on_changed;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void ShowBackground();
  bool TakeMenuKey(const std::string& key);

  forms::Form& form_;
  std::vector<std::unique_ptr<QMenu>> menus_;
  std::unique_ptr<QMenu> popup_menu_;
  forms::Subscription form_subscription_;
  forms::Subscription menu_subscription_;
};

}  // namespace tarnwell::desktop
