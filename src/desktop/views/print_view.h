#pragma once

#include <QWidget>
#include <initializer_list>

#include "desktop/widgets/pictures.h"
#include "parts/export_panel.h"
#include "print/print_panel.h"

namespace tarnwell::desktop {

// The panel "Print Options"; `own_options` are those of the screen, in the order given.
QWidget* PrintView(print::PrintPanel& panel, std::initializer_list<QWidget*> own_options = {});

QWidget* ExportView(parts::ExportPanel& panel);

}  // namespace tarnwell::desktop
