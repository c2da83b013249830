#pragma once

#include <QDialog>
#include <QFontDialog>
#include <QPushButton>

#include "forms/page.h"

namespace tarnwell::desktop {

// Qt's choice of a font, with the colour that a printed font has beside it.
class FontDialog : public QDialog {
 public:
  FontDialog(const forms::Font& start, QWidget* parent);

  forms::Font font() const;

 private:
  void AskForColor();
  void ShowColor();

  QFontDialog* choice_;
  QPushButton* color_button_;
  QColor color_;
};

}  // namespace tarnwell::desktop
