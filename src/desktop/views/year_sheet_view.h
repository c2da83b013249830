// What the views of the year sheets have in common.

#pragma once

#include <QWidget>
#include <initializer_list>

#include "year_sheet/year_sheet.h"

namespace tarnwell::desktop {

class PictureStore;

// The sheet: year, Input Box and location over the grid, then `below` it what a sheet adds, and
// the commands.
QWidget* YearSheetView(year_sheet::YearSheet& form, PictureStore& pictures,
                       QWidget* below = nullptr);
// The page: the sheet, the panels that take its place, and those that a sheet adds.
QWidget* YearSheetPage(year_sheet::YearSheet& form, PictureStore& pictures, QWidget* sheet,
                       QWidget* print, std::initializer_list<QWidget*> panels = {});

}  // namespace tarnwell::desktop
