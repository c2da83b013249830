#pragma once

#include <QPalette>
#include <QVariantMap>

#include "desktop/widgets/tones.h"

namespace tarnwell::desktop {

// The set that goes with a desktop: `palette` is what its theme gives every program, `settings`
// what it tells on request, by their keys: "color-scheme" (1 for dark, 2 for light), "contrast" (1
// for strong), "high-contrast", "gtk-theme". Any may be missing.
ToneSet TonesFor(const QPalette& palette, const QVariantMap& settings);

// The set for the desktop that the program runs on. Takes a quarter of a second at most.
ToneSet TonesOfDesktop();

}  // namespace tarnwell::desktop
