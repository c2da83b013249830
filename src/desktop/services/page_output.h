// Pages on their way out of the program.

#pragma once

#include <QImage>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QString>
#include <functional>

#include "forms/page.h"
#include "forms/pages.h"

namespace tarnwell::desktop {

// The same sheet in Qt's terms, and back.
QPageLayout LayoutOf(const forms::PageSetup& setup);
forms::PageSetup SetupOf(const QPageLayout& layout);

// Paints the pages `first` to `last`, counted from 0, on a sheet each. A sheet of other paper than
// the pages were made for gets them whole, as large as it allows. `may_go_on`, where there is one,
// is asked before each page; no more come once it says no, and the result is kCancelled.
forms::PrintResult PaintPages(const forms::Document& document, QPagedPaintDevice& device, int first,
                              int last, const std::function<bool(int page)>& may_go_on = {});

// Whether a file was written to its end. Qt doesn't tell of a disk that had no room for it.
bool IsWholePdf(const QString& file);

// False when the file can't be written.
bool WritePdf(const forms::Document& document, const QString& file);

// One page, counted from 0, as a picture on white; null where there is no such page.
QImage ImageOf(const forms::Document& document, int page);

// The texts of a page in reading order: a line for each height, tabs between what stands on it.
QString TextOf(const forms::Page& page);

}  // namespace tarnwell::desktop
