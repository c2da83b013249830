#pragma once

#include <QWidget>

#include "workarea/worksheets_pane.h"

namespace tarnwell::desktop {

// The buttons of the worksheets, and the rows of the rule in their place.
QWidget* WorksheetButtons(workarea::WorksheetsPane& worksheets);
// The panel in which their titles are changed.
QWidget* TitlesView(workarea::TitlesPanel& titles);

}  // namespace tarnwell::desktop
