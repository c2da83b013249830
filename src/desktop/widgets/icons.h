#pragma once

#include <QIcon>

namespace tarnwell::desktop {

// A small drawing by its name ("save"), in colours that are seen on a field of the look.
QIcon IconOf(const QString& name);

}  // namespace tarnwell::desktop
