// The look: one type scale, one spacing scale, one set of colours.

#pragma once

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QPalette>
#include <QWidget>

#include "forms/color.h"

namespace tarnwell::desktop {

// Logical pixels; a display's scale factor multiplies them.
inline constexpr int kHairSpace = 2;
inline constexpr int kTightSpace = 4;
inline constexpr int kSpace = 8;
inline constexpr int kWideSpace = 16;
inline constexpr int kPageSpace = 20;

enum class TextSize { kNote, kText, kStrong, kHeading, kTitle };

// In steps from the application's font, so that a person's larger system font enlarges all.
QFont ScaledFont(TextSize size);
// The label, in a font of that size.
QWidget* InSize(TextSize size, QWidget* label);

inline const QColor kAccent{0x1F, 0x5F, 0xBF};
// The text of a selected main button.
inline const QColor kSelectedText{0x55, 0x55, 0xFF};

QColor ToQColor(forms::Color color);
forms::Color FromQColor(const QColor& color);

// WCAG contrast of two colours, 1 to 21.
double Contrast(const QColor& a, const QColor& b);
// A palette whose text reads well on any background that a person may have chosen.
QPalette PaletteOn(const QColor& background);

// A yes-or-no property that the style sheet paints by, such as "selected".
void SetMark(QWidget* widget, const char* mark, bool on);

void ApplyLook(QApplication& application);

}  // namespace tarnwell::desktop
