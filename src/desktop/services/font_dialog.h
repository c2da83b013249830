#pragma once

#include <QDialog>
#include <QFontDialog>
#include <QPushButton>
#include <string>

#include "forms/page.h"

namespace tarnwell::desktop {

// Qt's choice of a font, with the colour that a text has beside it. A font that the machine doesn't
// have keeps its name unless another is chosen.
class FontDialog : public QDialog {
 public:
  FontDialog(const forms::Font& start, QWidget* parent);

  forms::Font font() const;

 private:
  void AskForColor();
  void ShowColor();

  std::string start_name_;
  QString start_family_;  // in which it is shown
  QFontDialog* choice_;
  QPushButton* color_button_;
  QColor color_;
};

}  // namespace tarnwell::desktop
