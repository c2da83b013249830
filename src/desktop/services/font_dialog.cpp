#include "desktop/services/font_dialog.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QIcon>
#include <QPixmap>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/widgets/look.h"
#include "desktop/widgets/page_fonts.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr double kLeastSize = 1;  // points
constexpr double kLargestSize = 1000;
constexpr int kSwatch = 16;  // pixels

// What the font is shown in: one that the machine doesn't have, in the family that stands for it.
// Qt's list finds a style by its name, and each family calls its plain one differently.
QFont ShownFont(const forms::Font& font) {
  QFont shown = ScreenFont(font);
  QString family = FromCore(font.name);
  if (!QFontDatabase::hasFamily(family)) family = QFontInfo(shown).family();
  shown.setFamily(family);
  shown.setStyleName(QFontInfo(shown).styleName());
  return shown;
}

}  // namespace

FontDialog::FontDialog(const forms::Font& start, QWidget* parent)
    : QDialog(parent),
      start_name_(start.name),
      start_family_(ShownFont(start).family()),
      choice_(new QFontDialog(ShownFont(start))),
      color_button_(new QPushButton(QStringLiteral("&Color..."))),
      color_(ToQColor(start.color)) {
  setWindowTitle(QStringLiteral("Font"));
  choice_->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
  choice_->setWindowFlags(Qt::Widget);  // it would open a window of its own
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->addButton(color_button_, QDialogButtonBox::ActionRole);
  connect(color_button_, &QPushButton::clicked, this, [this] { AskForColor(); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  // Esc inside the choice would hide it and leave this dialogue open.
  connect(choice_, &QDialog::finished, this, &QDialog::done);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(choice_);
  layout->addWidget(buttons);
  ShowColor();
}

forms::Font FontDialog::font() const {
  const QFont chosen = choice_->currentFont();
  const bool is_same = chosen.family() == start_family_;
  return {.name = is_same ? start_name_ : ToCore(chosen.family()),
          .size = std::clamp(chosen.pointSizeF(), kLeastSize, kLargestSize),
          .bold = chosen.bold(),
          .italic = chosen.italic(),
          .underline = chosen.underline(),
          .strike = chosen.strikeOut(),
          .color = FromQColor(color_)};
}

void FontDialog::AskForColor() {
  const QColor chosen = QColorDialog::getColor(color_, this);
  if (!chosen.isValid()) return;
  color_ = chosen;
  ShowColor();
}

void FontDialog::ShowColor() {
  QPixmap swatch(kSwatch, kSwatch);
  swatch.fill(color_);
  color_button_->setIcon(QIcon(swatch));
  color_button_->setAccessibleDescription(color_.name());
}

}  // namespace tarnwell::desktop
