#pragma once

#include <QWidget>

#include "parts/folder_chooser.h"

namespace tarnwell::desktop {

// The path, and below it drives and folders beside the files. `name`, where there is one, is the
// field of the file's name, above the files.
QWidget* FolderChooserView(parts::FolderChooser& chooser, QWidget* name = nullptr);

}  // namespace tarnwell::desktop
