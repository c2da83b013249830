// The edge between the core's code page 1252 and Qt's Unicode.

#pragma once

#include <QString>
#include <string>
#include <string_view>

class QKeyEvent;

namespace tarnwell::desktop {

QString FromCore(std::string_view text);

// One byte for each character; what the code page can't hold becomes its nearest form or "?".
std::string ToCore(const QString& text);

// A caption as it is spoken: without the marks of its mnemonic, "&&" as one ampersand.
QString Spoken(std::string_view caption);

// The keys that do again what was taken back: on every desktop the same two.
bool IsRedo(const QKeyEvent& event);

// The name of a key with those held down beside it, as menus have it: "Ctrl+Shift+Z".
std::string KeyName(const QKeyEvent& event);

}  // namespace tarnwell::desktop
