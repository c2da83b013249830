#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <optional>

#include "forms/page.h"

namespace tarnwell::desktop {

// Chooses a font with the colour that a text has beside it. What the start is open in is shown as
// open, and a font that the machine doesn't have stands in the list by its name.
class FontDialog : public QDialog {
 public:
  FontDialog(const forms::FontParts& start, QWidget* parent);

  // What is chosen other than the start.
  forms::FontParts changes() const;

 private:
  QLayout* Families();
  QLayout* Sizes();
  QLayout* Styles();
  QLayout* SampleAndButtons();
  std::optional<std::string> Family() const;
  std::optional<double> Size() const;
  forms::FontParts Chosen() const;
  void AskForColor();
  void ShowSample();

  forms::FontParts start_;
  QListWidget* families_;
  QLineEdit* size_;
  QListWidget* sizes_;
  QCheckBox* bold_;
  QCheckBox* italic_;
  QCheckBox* strike_;
  QCheckBox* underline_;
  QLabel* sample_;
  QPushButton* color_button_;
  std::optional<forms::Color> color_;
};

}  // namespace tarnwell::desktop
