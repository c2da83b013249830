#include "desktop/widgets/look.h"

#include <QFontDatabase>
#include <QStyle>
#include <QStyleFactory>
#include <QVariant>
#include <algorithm>
#include <cmath>

namespace tarnwell::desktop {
namespace {

constexpr double kLeastPointSize = 10;
constexpr double kAmpleContrast = 7;

// Widgets that a person types in or presses keep their own light ground on every panel colour;
// everything else takes its text colour from the palette of the panel around it.
constexpr const char* kStyleSheet = R"(
QPushButton {
  background: #FFFFFF; color: #1C2530; border: 1px solid #AEB8C2; border-radius: 5px;
  padding: 5px 13px; min-height: 1.25em;
}
QPushButton:hover { background: #F0F5FB; border-color: #7F97B2; }
QPushButton:pressed { background: #DFE9F5; }
QPushButton:focus { border: 2px solid #1F5FBF; padding: 4px 12px; }
QPushButton:disabled { background: #F1F2F4; color: #5F6974; border-color: #D3D8DD; }
QPushButton[compact="true"] { padding: 3px 6px; }
QPushButton[compact="true"]:focus { padding: 2px 5px; }
QPushButton[compact="true"][selected="true"] { background: #CFE0F7; border-color: #1F5FBF; }
QPushButton[listed="true"] { text-align: left; padding: 3px 8px; min-height: 1.2em; }
QPushButton[listed="true"]:focus { padding: 2px 7px; }
QPushButton[primary="true"] { background: #1F5FBF; color: #FFFFFF; border-color: #1F5FBF; }
QPushButton[primary="true"]:hover { background: #2A6DD0; }
QPushButton[primary="true"]:pressed { background: #184C9A; }
QPushButton[primary="true"]:focus { border: 2px solid #FFC83D; }
QPushButton[primary="true"]:disabled {
  background: #C3CEDC; border-color: #C3CEDC; color: #4E5863;
}
QPushButton[selected="true"] { background: #F4F5FF; color: #5555FF; border-color: #F4F5FF; }
QPushButton[selected="true"]:focus { border: 2px solid #5555FF; }
QComboBox { color: #1C2530; combobox-popup: 0; }
QLineEdit, QComboBox {
  background: #FFFFFF; border: 1px solid #AEB8C2; border-radius: 4px;
  padding: 3px 6px; min-height: 1.25em; selection-background-color: #1F5FBF;
  selection-color: #FFFFFF;
}
QLineEdit:focus, QComboBox:focus { border: 2px solid #1F5FBF; padding: 2px 5px; }
QPushButton[tool="true"] { padding: 2px 4px; min-height: 0; }
QPushButton[tool="true"]:focus { padding: 1px 3px; }
QLineEdit[tool="true"], QComboBox[tool="true"] { padding: 1px 4px; min-height: 1.1em; }
QLineEdit[tool="true"]:focus, QComboBox[tool="true"]:focus { padding: 0px 3px; }
QLineEdit:read-only { background: #F1F2F4; }
QLineEdit[marked="true"] { background: #FFF6A0; }
QLineEdit:disabled, QComboBox:disabled { background: #F1F2F4; border-color: #D3D8DD; }
QComboBox:disabled { color: #5F6974; }
QComboBox QLineEdit, QComboBox QLineEdit:focus, QComboBox QLineEdit:disabled {
  background: transparent; border: none; padding: 0; min-height: 0;
}
QPlainTextEdit {
  background: #FFFFFF; color: #1C2530; border: 1px solid #AEB8C2; border-radius: 4px;
  selection-background-color: #1F5FBF; selection-color: #FFFFFF;
}
QPlainTextEdit:focus { border-color: #1F5FBF; }
QPlainTextEdit[marked="true"] { background: #FFF6A0; }
QPlainTextEdit:disabled, QPlainTextEdit:read-only { background: #F1F2F4; }
QTableView, QListView {
  border: 1px solid #AEB8C2; gridline-color: #DDE1E6; selection-background-color: #1F5FBF;
  selection-color: #FFFFFF;
}
QListView::item { padding: 2px 6px; }
QTableView:focus, QListView:focus { border-color: #1F5FBF; }
QHeaderView { background: #EEF1F4; border: none; }
QHeaderView::section {
  background: #EEF1F4; color: #1C2530; font-weight: 600; padding: 4px 3px; border: none;
  border-right: 1px solid #DDE1E6; border-bottom: 1px solid #AEB8C2;
}
QScrollBar { background: #E4E8EC; border: none; }
QScrollBar:vertical { width: 14px; }
QScrollBar:horizontal { height: 14px; }
QScrollBar::handle { background: #6B7885; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::handle:hover { background: #4F5B67; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox::down-arrow { image: url(:/icons/down.svg); width: 12px; height: 12px; }
QComboBox QAbstractItemView {
  background: #FFFFFF; color: #1C2530; selection-background-color: #1F5FBF;
  selection-color: #FFFFFF; border: 1px solid #AEB8C2;
}
QMenuBar {
  background: #FBFBFC; color: #1C2530; border-bottom: 1px solid #DDE1E6; padding: 1px 4px;
}
QMenuBar::item { padding: 4px 10px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected { background: #E1EAF6; }
QMenuBar::item:disabled { color: #5F6974; }
QMenu { background: #FFFFFF; color: #1C2530; border: 1px solid #C3CAD2; padding: 4px; }
QMenu::item { padding: 5px 28px 5px 24px; border-radius: 4px; }
QMenu::item:selected { background: #E1EAF6; color: #1C2530; }
QMenu::item:disabled { color: #5F6974; }
QMenu::separator { height: 1px; background: #DDE1E6; margin: 4px 8px; }
QStatusBar { background: #FBFBFC; color: #1C2530; border-top: 1px solid #DDE1E6; }
QStatusBar::item { border: none; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QMessageBox {
  background: #FFFFFF;
  messagebox-information-icon: url(:/icons/information.svg);
  messagebox-warning-icon: url(:/icons/exclamation.svg);
  messagebox-question-icon: url(:/icons/question.svg);
  messagebox-critical-icon: url(:/icons/critical.svg);
}
QToolTip { background: #FFFFE6; color: #1C2530; border: 1px solid #AEB8C2; padding: 3px; }
QProgressBar {
  background: #FFFFFF; color: #1C2530; border: 1px solid #AEB8C2; border-radius: 4px;
  text-align: center; min-height: 1.3em;
}
QProgressBar::chunk { background: #9CC0EE; border-radius: 3px; }
)";

double Linear(double channel) {
  return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

QColor Blend(const QColor& a, const QColor& b, double share_of_b) {
  const auto mix = [&](int x, int y) { return static_cast<int>(x + (y - x) * share_of_b); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

// Every role has its colour here: one that is left out would be the desktop's own, which on a dark
// desktop is light letters or a dark ground.
QPalette LightPalette() {
  const QColor ink(0x1C, 0x25, 0x30);
  const QColor faint(0x5F, 0x69, 0x74);
  const QColor neutral = ToQColor(forms::kNeutral);
  QPalette palette(neutral, neutral);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xF4, 0xF6, 0xF8));
  palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE6));
  palette.setColor(QPalette::Highlight, kAccent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, kAccent);
  palette.setColor(QPalette::LinkVisited, QColor(0x6A, 0x3F, 0xA0));
  palette.setColor(QPalette::PlaceholderText, faint);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, ink);
    palette.setColor(QPalette::Disabled, role, faint);
  }
  for (int role = 0; role < QPalette::NColorRoles; ++role) {
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      const auto one = static_cast<QPalette::ColorRole>(role);
      palette.setBrush(group, one, palette.brush(group, one));
    }
  }
  return palette;
}

}  // namespace

QFont ScaledFont(TextSize size) {
  QFont font = QApplication::font();
  switch (size) {
    case TextSize::kNote:
      font.setPointSizeF(font.pointSizeF() * 0.9);
      break;
    case TextSize::kText:
      break;
    case TextSize::kStrong:
      font.setWeight(QFont::DemiBold);
      break;
    case TextSize::kHeading:
      font.setPointSizeF(font.pointSizeF() * 1.3);
      font.setWeight(QFont::DemiBold);
      break;
    case TextSize::kTitle:
      font.setPointSizeF(font.pointSizeF() * 2.1);
      font.setWeight(QFont::DemiBold);
      break;
  }
  return font;
}

QWidget* InSize(TextSize size, QWidget* label) {
  label->setFont(ScaledFont(size));
  return label;
}

QColor ToQColor(forms::Color color) {
  return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

forms::Color FromQColor(const QColor& color) {
  return color.red() | color.green() << 8 | color.blue() << 16;
}

double Contrast(const QColor& a, const QColor& b) {
  const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
  return (high + 0.05) / (low + 0.05);
}

QPalette PaletteOn(const QColor& background) {
  const QColor dark(0x1C, 0x25, 0x30);
  const QColor light(Qt::white);
  QColor text = Contrast(Qt::black, background) >= Contrast(light, background) ? dark : light;
  // On a middling ground the softer dark isn't enough.
  if (text == dark && Contrast(dark, background) < kAmpleContrast) text = Qt::black;
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Window, background);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Disabled, QPalette::WindowText, Blend(text, background, 0.45));
  palette.setColor(QPalette::Mid, Blend(background, text, 0.22));
  return palette;
}

void SetMark(QWidget* widget, const char* mark, bool on) {
  if (widget->property(mark).toBool() == on) return;
  widget->setProperty(mark, on);
  widget->style()->unpolish(widget);
  widget->style()->polish(widget);
  widget->update();
}

void ApplyLook(QApplication& application) {
  // Under a style sheet a panel's palette would stop at the panel, and its labels stay dark on it.
  QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
  application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QFont font = application.font();
  font.setFamilies({QStringLiteral("Segoe UI"), QStringLiteral("Inter"),
                    QStringLiteral("Noto Sans"), QStringLiteral("Liberation Sans"), font.family()});
  font.setPointSizeF(std::max(kLeastPointSize, font.pointSizeF()));
  application.setFont(font);
  application.setPalette(LightPalette());
  application.setStyleSheet(QString::fromLatin1(kStyleSheet));
}

}  // namespace tarnwell::desktop
