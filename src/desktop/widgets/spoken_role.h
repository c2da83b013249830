// What a screen reader takes a widget for that Qt knows nothing of, because we paint it ourselves.

#pragma once

#include <QAccessible>
#include <QWidget>

namespace tarnwell::desktop {

// Before anybody has asked for the widget's accessible interface. Where `pressed_by_key`, the
// reader can press it, as Space does.
void SetSpokenRole(QWidget* widget, QAccessible::Role role, bool pressed_by_key = false);

// Once, before the first window.
void InstallSpokenRoles();

}  // namespace tarnwell::desktop
