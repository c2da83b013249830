#include "desktop/services/qt_pages.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QMimeData>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QStandardPaths>
#include <algorithm>
#include <cmath>

#include "desktop/services/modal_question.h"
#include "desktop/services/page_output.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr int kPatience = 1000;                            // milliseconds
constexpr forms::Margins kUsualReach{360, 360, 360, 360};  // a quarter of an inch

// Beside the user's other documents, with "-" for what a file's name can't hold.
QString PdfNameOf(const QString& title) {
  QString name;
  for (const QChar c : title) {
    if (!c.isPrint()) continue;
    name += QStringLiteral("/\\:*?\"<>|").contains(c) ? QChar(u'-') : c;
  }
  name = name.simplified();
  if (name.isEmpty() || name.startsWith(QLatin1Char('.'))) name = QStringLiteral("Tarnwell");
  const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  const QDir folder = documents.exists() ? documents : QDir::home();
  return folder.filePath(name + QStringLiteral(".pdf"));
}

// Letter is measured in inches, A4 in millimetres, whatever the system prefers.
void SetUnits(const QPageSize& paper, QPageSetupDialog& dialog) {
  auto* const units = dialog.findChild<QComboBox*>(QStringLiteral("unitCombo"));
  if (units == nullptr) return;
  const bool is_metric = paper.definitionUnits() == QPageSize::Millimeter;
  const auto unit = is_metric ? QPageLayout::Millimeter : QPageLayout::Inch;
  const int place = units->findData(QVariant::fromValue(unit));
  if (place < 0) return;
  units->setCurrentIndex(place);
  emit units->activated(place);  // as a person's choice: the lengths follow
}

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

// What takes over a second shows how far it is and can be stopped. Until then no event is looked
// at, so that nobody closes what is being printed.
forms::PrintResult PrintWithProgress(const forms::Document& document, QPrinter& printer, int first,
                                     int last) {
  const ModalQuestion question;
  QProgressDialog progress(QString(), QStringLiteral("Cancel"), first, last + 1, question.asker());
  progress.setWindowTitle(QStringLiteral("Print"));
  progress.setWindowModality(Qt::ApplicationModal);
  QElapsedTimer elapsed;
  elapsed.start();
  return PaintPages(document, printer, first, last, [&](int page) {
    if (elapsed.elapsed() < kPatience) return true;
    progress.setLabelText(QStringLiteral("Printing page %1 of %2").arg(page + 1).arg(last + 1));
    progress.show();
    progress.setValue(page);
    if (progress.wasCanceled()) printer.abort();
    return !progress.wasCanceled();
  });
}

}  // namespace

forms::PrintResult QtPages::Print(const forms::Document& document) {
  const int pages = static_cast<int>(document.pages.size());
  if (pages == 0) return forms::PrintResult::kDone;
  QPrinter printer(QPrinter::HighResolution);
  Prepare(printer, document.SetupOf(0));
  const QString title = FromCore(document.title);
  printer.setDocName(title);
  if (printer.outputFormat() == QPrinter::PdfFormat) printer.setOutputFileName(PdfNameOf(title));
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
  const auto result = PrintWithProgress(document, printer, first, last);
  const QString file = printer.outputFileName();
  if (file.isEmpty()) return result;
  if (result == forms::PrintResult::kCancelled) QFile::remove(file);
  const bool is_whole = result != forms::PrintResult::kDone || IsWholePdf(file);
  return is_whole ? result : forms::PrintResult::kBrokenOff;
}

void QtPages::CopyPage(const forms::Document& document, int page) {
  const QImage image = ImageOf(document, page);
  if (image.isNull()) return;
  auto* content = new QMimeData;
  content->setImageData(image);
  content->setText(TextOf(document.pages[static_cast<std::size_t>(page)]));
  QGuiApplication::clipboard()->setMimeData(content);
}

forms::Margins QtPages::Reach() {
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  if (info.isNull()) return kUsualReach;
  const QMarginsF edges = QPrinter(info).pageLayout().minimumMargins();
  const auto twips = [](double points) { return static_cast<int>(std::ceil(points * 20)); };
  return {twips(edges.left()), twips(edges.top()), twips(edges.right()), twips(edges.bottom())};
}

std::vector<std::string> QtPages::FontNames() {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(family)) names.push_back(ToCore(family));
  }
  return names;
}

std::optional<forms::PageSetup> QtPages::ChooseSetup(const forms::PageSetup& start) {
  const ModalQuestion question;
  QPrinter printer(QPrinter::HighResolution);
  Prepare(printer, start);
  QPageSetupDialog dialog(&printer, question.asker());
  SetUnits(printer.pageLayout().pageSize(), dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return SetupOf(printer.pageLayout());
}

}  // namespace tarnwell::desktop
