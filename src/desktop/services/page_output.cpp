#include "desktop/services/page_output.h"

#include <QFile>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "desktop/widgets/page_painter.h"
#include "desktop/widgets/text.h"
#include "forms/services.h"

namespace tarnwell::desktop {
namespace {

constexpr int kClipboardDpi = 150;

int ToTwips(double points) { return static_cast<int>(std::lround(points * forms::kTwipsPerPoint)); }

void PaintSheet(QPainter& painter, PagePainter& pages, int page, double pixels_per_twip) {
  painter.save();
  painter.scale(pixels_per_twip, pixels_per_twip);
  pages.Paint(painter, page);
  painter.restore();
}

}  // namespace

QPageLayout LayoutOf(const forms::PageSetup& setup) {
  const QSizeF paper(setup.paper_width / forms::kTwipsPerPoint,
                     setup.paper_height / forms::kTwipsPerPoint);
  const QMarginsF margins(
      setup.margins.left / forms::kTwipsPerPoint, setup.margins.top / forms::kTwipsPerPoint,
      setup.margins.right / forms::kTwipsPerPoint, setup.margins.bottom / forms::kTwipsPerPoint);
  return {QPageSize(paper, QPageSize::Point, QString(), QPageSize::FuzzyMatch),
          setup.landscape ? QPageLayout::Landscape : QPageLayout::Portrait, margins,
          QPageLayout::Point};
}

forms::PageSetup SetupOf(const QPageLayout& layout) {
  const QSizeF paper = layout.pageSize().size(QPageSize::Point);
  const QMarginsF margins = layout.margins(QPageLayout::Point);
  forms::PageSetup setup;
  setup.paper_width = ToTwips(paper.width());
  setup.paper_height = ToTwips(paper.height());
  setup.landscape = layout.orientation() == QPageLayout::Landscape;
  setup.margins = {ToTwips(margins.left()), ToTwips(margins.top()), ToTwips(margins.right()),
                   ToTwips(margins.bottom())};
  return setup;
}

forms::PrintResult PaintPages(const forms::Document& document, QPagedPaintDevice& device, int first,
                              int last, const std::function<bool(int page)>& may_go_on) {
  using forms::PrintResult;
  QPainter painter;
  PagePainter pages(document);
  for (int page = first; page <= last; ++page) {
    if (may_go_on && !may_go_on(page)) return PrintResult::kCancelled;
    const forms::PageSetup& setup = document.SetupOf(static_cast<std::size_t>(page));
    QPageLayout layout = LayoutOf(setup);
    layout.setMode(device.pageLayout().mode());
    const bool is_other = !layout.isEquivalentTo(device.pageLayout());
    // A printer that doesn't have the paper prints on its own.
    if (is_other) device.setPageLayout(layout);
    if (page == first && !painter.begin(&device)) return PrintResult::kNotStarted;
    if (page > first && !device.newPage()) return PrintResult::kBrokenOff;
    const double scale = std::min(static_cast<double>(device.width()) / setup.width(),
                                  static_cast<double>(device.height()) / setup.height());
    PaintSheet(painter, pages, page, scale);
  }
  return painter.end() ? PrintResult::kDone : PrintResult::kBrokenOff;
}

bool IsWholePdf(const QString& file) {
  const QByteArray end = "%%EOF\n";
  QFile pdf(file);
  return pdf.open(QIODevice::ReadOnly) && pdf.size() > end.size() &&
         pdf.seek(pdf.size() - end.size()) && pdf.read(end.size()) == end;
}

bool WritePdf(const forms::Document& document, const QString& file) {
  QPdfWriter writer(file);
  writer.setCreator(QStringLiteral("Tarnwell"));
  writer.setTitle(FromCore(document.title));
  writer.setResolution(forms::kTwipsPerInch);
  QPageLayout layout = LayoutOf(document.SetupOf(0));
  layout.setMode(QPageLayout::FullPageMode);
  writer.setPageLayout(layout);
  const int last = static_cast<int>(document.pages.size()) - 1;
  return PaintPages(document, writer, 0, last) == forms::PrintResult::kDone && IsWholePdf(file);
}

QImage ImageOf(const forms::Document& document, int page) {
  if (page < 0 || page >= static_cast<int>(document.pages.size())) return {};
  const double scale = static_cast<double>(kClipboardDpi) / forms::kTwipsPerInch;
  const forms::PageSetup& setup = document.SetupOf(static_cast<std::size_t>(page));
  QImage image(static_cast<int>(setup.width() * scale), static_cast<int>(setup.height() * scale),
               QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PagePainter pages(document);
  PaintSheet(painter, pages, page, scale);
  return image;
}

QString TextOf(const forms::Page& page) {
  struct Piece {
    int x;
    int y;
    QString text;
  };
  std::vector<Piece> pieces;
  for (const forms::Mark& mark : page) {
    const auto* text = std::get_if<forms::PlacedText>(&mark);
    if (!text) continue;
    if (text->goes_on && !pieces.empty()) {
      pieces.back().text += TextOf(*text);
    } else {
      pieces.push_back({text->x, text->y, TextOf(*text)});
    }
  }
  std::ranges::stable_sort(
      pieces, [](const auto& a, const auto& b) { return a.y != b.y ? a.y < b.y : a.x < b.x; });
  QString all;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (i > 0) all += pieces[i].y == pieces[i - 1].y ? QLatin1Char('\t') : QLatin1Char('\n');
    all += pieces[i].text;
  }
  return all;
}

}  // namespace tarnwell::desktop
