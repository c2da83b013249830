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
constexpr double kReadable = 4.5;

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

// Towards black or white, whichever the ground is farther from.
QColor Farthest(const QColor& ground) {
  return Contrast(Qt::black, ground) >= Contrast(Qt::white, ground) ? Qt::black : Qt::white;
}

// Every role has its colour here: one that is left out would be the desktop's own, which doesn't go
// with ours.
QPalette PaletteOfTones() {
  const QColor ground = ColorOf(Tone::kGround);
  QPalette palette(ground, ground);
  palette.setColor(QPalette::Base, ColorOf(Tone::kField));
  palette.setColor(QPalette::AlternateBase, ColorOf(Tone::kStripe));
  palette.setColor(QPalette::ToolTipBase, ColorOf(Tone::kTip));
  palette.setColor(QPalette::Highlight, ColorOf(Tone::kMark));
  palette.setColor(QPalette::HighlightedText, ColorOf(Tone::kOnMark));
  palette.setColor(QPalette::Link, ColorOf(Tone::kAccent));
  palette.setColor(QPalette::LinkVisited, ColorOf(Tone::kVisited));
  palette.setColor(QPalette::BrightText, ColorOf(Tone::kAlarm));
  palette.setColor(QPalette::PlaceholderText, ColorOf(Tone::kFaint));
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, ColorOf(Tone::kInk));
    palette.setColor(QPalette::Disabled, role, ColorOf(Tone::kFaint));
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

QColor GroundOf(const std::optional<forms::Color>& chosen) {
  return chosen && *chosen != forms::kNeutral ? ToQColor(*chosen) : ColorOf(Tone::kGround);
}

QColor Readable(const QColor& color, const QColor& ground) {
  if (color == Qt::black && Contrast(color, ground) < kReadable) return Farthest(ground);
  QColor readable = color;
  for (int tenths = 1; Contrast(readable, ground) < kReadable && tenths <= 10; ++tenths) {
    readable = Blend(color, Farthest(ground), tenths / 10.0);
  }
  return readable;
}

QPalette PaletteOn(const QColor& background) {
  QColor text = ColorOf(Tone::kInk);
  // On a middling ground the softer ink isn't enough.
  if (Contrast(text, background) < kAmpleContrast) text = Farthest(background);
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Window, background);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Disabled, QPalette::WindowText,
                   Readable(Blend(text, background, 0.45), background));
  palette.setColor(QPalette::Link, Readable(ColorOf(Tone::kAccent), background));
  const bool is_strong = CurrentTones() == ToneSet::kBlack || CurrentTones() == ToneSet::kWhite;
  palette.setColor(QPalette::Mid, Blend(background, text, is_strong ? 0.5 : 0.22));
  return palette;
}

void SetMark(QWidget* widget, const char* mark, bool on) {
  if (widget->property(mark).toBool() == on) return;
  widget->setProperty(mark, on);
  widget->style()->unpolish(widget);
  widget->style()->polish(widget);
  widget->update();
}

void ApplyLook(QApplication& application, ToneSet tones) {
  SetCurrentTones(tones);
  // Under a style sheet a panel's palette would stop at the panel, and its labels stay dark on it.
  QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
  application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QFont font = application.font();
  font.setFamilies({QStringLiteral("Segoe UI"), QStringLiteral("Inter"),
                    QStringLiteral("Noto Sans"), QStringLiteral("Liberation Sans"), font.family()});
  font.setPointSizeF(std::max(kLeastPointSize, font.pointSizeF()));
  application.setFont(font);
  application.setPalette(PaletteOfTones());
  application.setStyleSheet(StyleSheetOf(tones));
}

}  // namespace tarnwell::desktop
