#include "desktop/services/qt_pages.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "desktop/services/modal_question.h"
#include "desktop/services/page_output.h"

namespace tarnwell::desktop {
namespace {

// On a machine without a printer a PDF file takes its place.
void Prepare(QPrinter& printer, const forms::PageSetup& setup) {
  if (QPrinterInfo::availablePrinterNames().isEmpty()) {
    printer.setOutputFormat(QPrinter::PdfFormat);
  }
  printer.setCreator(QStringLiteral("Tarnwell"));
  // The core has placed all texts on the whole sheet, inside its own margins.
  printer.setFullPage(true);
  printer.setPageLayout(LayoutOf(setup));
}

}  // namespace

forms::PrintResult QtPages::Print(const forms::Document& document) {
  const int pages = static_cast<int>(document.pages.size());
  if (pages == 0) return forms::PrintResult::kDone;
  QPrinter printer(QPrinter::HighResolution);
  Prepare(printer, document.setup);
  {
    const ModalQuestion question;
    QPrintDialog dialog(&printer, question.asker());
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, pages);
    if (dialog.exec() != QDialog::Accepted) return forms::PrintResult::kCancelled;
  }
  printer.setFullPage(true);
  const int first = printer.fromPage() > 0 ? printer.fromPage() - 1 : 0;
  const int last = printer.toPage() > 0 ? std::min(printer.toPage(), pages) - 1 : pages - 1;
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  auto result = PaintPages(document, pictures_, printer, first, last);
  const QString file = printer.outputFileName();
  if (result == forms::PrintResult::kDone && !file.isEmpty() && !IsWholePdf(file)) {
    result = forms::PrintResult::kBrokenOff;
  }
  QGuiApplication::restoreOverrideCursor();
  return result;
}

void QtPages::CopyPage(const forms::Document& document, int page) {
  const QImage image = ImageOf(document, pictures_, page);
  if (image.isNull()) return;
  auto* content = new QMimeData;
  content->setImageData(image);
  content->setText(TextOf(document.pages[static_cast<std::size_t>(page)]));
  QGuiApplication::clipboard()->setMimeData(content);
}

std::optional<forms::PageSetup> QtPages::ChooseSetup(const forms::PageSetup& start) {
  const ModalQuestion question;
  QPrinter printer(QPrinter::HighResolution);
  Prepare(printer, start);
  QPageSetupDialog dialog(&printer, question.asker());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return SetupOf(printer.pageLayout());
}

}  // namespace tarnwell::desktop
