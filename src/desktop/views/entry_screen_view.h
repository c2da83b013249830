#pragma once

#include <QWidget>

#include "record_book/entry_screen.h"

namespace tarnwell::desktop {

// The list of names of the View Screen, with its search.
QWidget* EntryListView(record_book::EntryScreen& form);

}  // namespace tarnwell::desktop
