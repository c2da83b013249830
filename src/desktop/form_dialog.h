#pragma once

#include <QDialog>
#include <functional>

#include "desktop/form_page.h"

namespace tarnwell::desktop {

// A modal form over the window. Only the form ends it.
class FormDialog : public QDialog {
 public:
  FormDialog(QWidget* window, FormPage* page, bool frameless, std::function<void()> on_close);

  // Over the middle of `window`, or of the screen before the window is on show.
  void ShowOver(QWidget& window);
  // Esc that no widget of the page took.
  void reject() override { page_->form().PressEscape(); }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  FormPage* page_;
  std::function<void()> on_close_;
};

}  // namespace tarnwell::desktop
