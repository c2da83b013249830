#include "desktop/services/font_dialog.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDoubleValidator>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QIcon>
#include <QLocale>
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
constexpr double kLargestSample = 36;
constexpr int kSampleHeight = 64;  // pixels
constexpr int kSwatch = 16;
constexpr int kListRows = 8;

QString SizeText(double size) { return QLocale::c().toString(size); }

QCheckBox* StyleBox(const QString& caption, std::optional<bool> start) {
  auto* box = new QCheckBox(caption);
  box->setTristate(!start);
  box->setCheckState(!start ? Qt::PartiallyChecked : *start ? Qt::Checked : Qt::Unchecked);
  return box;
}

std::optional<bool> StyleOf(const QCheckBox& box) {
  if (box.checkState() == Qt::PartiallyChecked) return std::nullopt;
  return box.isChecked();
}

// A list under its caption.
QLayout* Captioned(const QString& caption, QWidget* buddy, std::initializer_list<QWidget*> parts) {
  auto* column = new QVBoxLayout;
  auto* label = new QLabel(caption);
  label->setBuddy(buddy);
  column->addWidget(label);
  for (QWidget* const part : parts) column->addWidget(part);
  return column;
}

void SetRows(QListWidget& list) {
  list.setMinimumHeight(list.fontMetrics().height() * kListRows);
  list.setMinimumWidth(list.sizeHintForColumn(0) + list.fontMetrics().height() * 2);
}

void Select(QListWidget& list, const QString& text) {
  const auto found = list.findItems(text, Qt::MatchFixedString);
  list.setCurrentItem(found.isEmpty() ? nullptr : found.front());
  if (!found.isEmpty()) list.scrollToItem(found.front(), QAbstractItemView::PositionAtCenter);
}

template <typename Part>
void DropSame(const std::optional<Part>& start, std::optional<Part>& part) {
  if (part == start) part.reset();
}

}  // namespace

FontDialog::FontDialog(const forms::FontParts& start, QWidget* parent)
    : QDialog(parent), start_(start), color_(start.color) {
  setWindowTitle(QStringLiteral("Font"));
  auto* top = new QHBoxLayout;
  top->addLayout(Families(), 1);
  top->addLayout(Sizes());
  top->addLayout(Styles());
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addLayout(SampleAndButtons());
  ShowSample();
}

QLayout* FontDialog::Families() {
  families_ = new QListWidget;
  QStringList names;
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(family)) names << family;
  }
  const QString own = FromCore(start_.name.value_or(""));
  if (!own.isEmpty() && !names.contains(own, Qt::CaseInsensitive)) names << own;
  names.sort(Qt::CaseInsensitive);
  families_->addItems(names);
  SetRows(*families_);
  Select(*families_, own);
  connect(families_, &QListWidget::itemSelectionChanged, this, [this] { ShowSample(); });
  return Captioned(QStringLiteral("&Font"), families_, {families_});
}

QLayout* FontDialog::Sizes() {
  size_ = new QLineEdit(start_.size ? SizeText(*start_.size) : QString());
  auto* numbers = new QDoubleValidator(kLeastSize, kLargestSize, 1, size_);
  numbers->setLocale(QLocale::c());
  numbers->setNotation(QDoubleValidator::StandardNotation);
  size_->setValidator(numbers);
  sizes_ = new QListWidget;
  sizes_->setAccessibleName(QStringLiteral("Usual sizes"));
  for (const int size : QFontDatabase::standardSizes()) sizes_->addItem(SizeText(size));
  SetRows(*sizes_);
  Select(*sizes_, size_->text());
  size_->setFixedWidth(sizes_->minimumWidth());
  connect(sizes_, &QListWidget::itemSelectionChanged, this, [this] {
    if (const auto chosen = sizes_->selectedItems(); !chosen.isEmpty() && !size_->hasFocus()) {
      size_->setText(chosen.front()->text());
    }
  });
  connect(size_, &QLineEdit::textChanged, this, [this](const QString& text) {
    Select(*sizes_, text);
    ShowSample();
  });
  return Captioned(QStringLiteral("&Size"), size_, {size_, sizes_});
}

QLayout* FontDialog::Styles() {
  auto* column = new QVBoxLayout;
  column->addStretch(1);
  const auto add = [this, column](const char* caption, std::optional<bool> start) {
    auto* box = StyleBox(QString::fromLatin1(caption), start);
    connect(box, &QCheckBox::stateChanged, this, [this] { ShowSample(); });
    column->addWidget(box);
    return box;
  };
  bold_ = add("&Bold", start_.bold);
  italic_ = add("&Italic", start_.italic);
  strike_ = add("Stri&keout", start_.strike);
  underline_ = add("&Underline", start_.underline);
  color_button_ = new QPushButton(QStringLiteral("&Color..."));
  color_button_->setAutoDefault(false);
  connect(color_button_, &QPushButton::clicked, this, [this] { AskForColor(); });
  column->addWidget(color_button_);
  column->addStretch(2);
  return column;
}

QLayout* FontDialog::SampleAndButtons() {
  sample_ = new QLabel(QStringLiteral("AaBbYyZz"));
  sample_->setAccessibleName(QStringLiteral("Sample"));
  sample_->setAlignment(Qt::AlignCenter);
  sample_->setFrameShape(QFrame::StyledPanel);
  sample_->setFixedHeight(kSampleHeight);
  sample_->setAutoFillBackground(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout;
  column->addWidget(sample_);
  column->addWidget(buttons);
  return column;
}

std::optional<std::string> FontDialog::Family() const {
  const auto chosen = families_->selectedItems();
  if (chosen.isEmpty()) return std::nullopt;
  const QString family = chosen.front()->text();
  // The list tells families apart by more than the capitals of their names.
  const bool is_start =
      start_.name && family.compare(FromCore(*start_.name), Qt::CaseInsensitive) == 0;
  return is_start ? start_.name : ToCore(family);
}

std::optional<double> FontDialog::Size() const {
  if (start_.size && size_->text() == SizeText(*start_.size)) return start_.size;
  bool is_number = false;
  const double size = QLocale::c().toDouble(size_->text(), &is_number);
  if (!is_number) return std::nullopt;
  return std::clamp(size, kLeastSize, kLargestSize);
}

forms::FontParts FontDialog::Chosen() const {
  forms::FontParts chosen;
  chosen.name = Family();
  chosen.size = Size();
  chosen.bold = StyleOf(*bold_);
  chosen.italic = StyleOf(*italic_);
  chosen.strike = StyleOf(*strike_);
  chosen.underline = StyleOf(*underline_);
  chosen.color = color_;
  return chosen;
}

forms::FontParts FontDialog::changes() const {
  forms::FontParts parts = Chosen();
  DropSame(start_.name, parts.name);
  DropSame(start_.size, parts.size);
  DropSame(start_.bold, parts.bold);
  DropSame(start_.italic, parts.italic);
  DropSame(start_.strike, parts.strike);
  DropSame(start_.underline, parts.underline);
  DropSame(start_.color, parts.color);
  return parts;
}

void FontDialog::AskForColor() {
  const QColor chosen = QColorDialog::getColor(ToQColor(color_.value_or(forms::kBlack)), this);
  if (!chosen.isValid()) return;
  color_ = FromQColor(chosen);
  ShowSample();
}

void FontDialog::ShowSample() {
  const forms::Font font = forms::WithParts({}, Chosen());
  QFont shown = ScreenFont(font);
  shown.setPointSizeF(std::min(font.size, kLargestSample));
  sample_->setFont(shown);
  QPalette colors = PaletteOn(Qt::white);
  colors.setColor(QPalette::WindowText, ToQColor(font.color));
  sample_->setPalette(colors);
  if (!color_) return;
  QPixmap swatch(kSwatch, kSwatch);
  swatch.fill(ToQColor(*color_));
  color_button_->setIcon(QIcon(swatch));
  color_button_->setAccessibleDescription(ToQColor(*color_).name());
}

}  // namespace tarnwell::desktop
