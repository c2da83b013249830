#pragma once

#include <QWidget>

#include "parts/find_bar.h"
#include "parts/format_bar.h"

namespace tarnwell::desktop {

QWidget* FormatBarView(parts::FormatBar& bar);
QWidget* FindBarView(parts::FindBar& bar);

}  // namespace tarnwell::desktop
