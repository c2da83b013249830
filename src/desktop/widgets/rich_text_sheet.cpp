// The sheet that a RichTextView shows its text on: one without an end, or the document's pages.

#include <QAbstractTextDocumentLayout>
#include <QHelpEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFrame>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/widgets/look.h"
#include "desktop/widgets/rich_text_view.h"
#include "desktop/widgets/text.h"
#include "forms/kept_signs.h"
#include "forms/spoken.h"
#include "richtext/paragraphs.h"

namespace tarnwell::desktop {
namespace {

constexpr double kPageGap = 12;   // pixels between two pages
constexpr double kNotesGap = 20;  // above and below the line over the notes
constexpr int kLongestNotesLine = 200;
constexpr int kMostDescribed = 20;  // signs
constexpr double kPaleness = 0.55;  // of what can't be edited
const QColor kRuleColor{0x8A, 0x94, 0x9E};

}  // namespace

// In twips: the document's page, or what it has for text and the sheet's own margins.
int RichTextView::SheetWidth() const {
  const richtext::Page& page = box_.document().page;
  const int text = std::max(page.width - page.left_margin - page.right_margin, 2 * kSheetMargin);
  const int margins = shows_pages() ? page.left_margin + page.right_margin : 2 * kSheetMargin;
  return text + margins;
}

double RichTextView::PageStep() const {
  return std::ceil(Formats().Pixels(std::max(box_.document().page.height, 4 * kSheetMargin)) +
                   kPageGap);
}

QMarginsF RichTextView::SheetMargins() {
  const RichTextFormats formats = Formats();
  const double usual = formats.Pixels(kSheetMargin);
  QMarginsF margins(usual, usual, usual, usual);
  RichTextPart* const header = furniture_.Header(0, shows_pages() ? 1 : 0, 1);
  if (!shows_pages()) {
    if (header != nullptr) margins.setTop(usual + header->size().height() + kNotesGap);
    return margins;
  }
  const richtext::Section& section = furniture_.first_section();
  const richtext::Page& page = box_.document().page;
  margins = {formats.Pixels(page.left_margin), formats.Pixels(page.top_margin),
             formats.Pixels(page.right_margin), formats.Pixels(page.bottom_margin)};
  const auto grow = [&](RichTextPart* part, int distance, double margin) {
    if (part == nullptr) return margin;
    const double needed = formats.Pixels(distance) + part->size().height();
    return std::clamp(needed, margin, std::max(margin, formats.Pixels(page.height) / 3));
  };
  margins.setTop(grow(header, section.header_distance, margins.top()) + kPageGap);
  margins.setBottom(grow(furniture_.Footer(0, 1, 1), section.footer_distance, margins.bottom()));
  return margins;
}

// The sheet lies in the middle of the view; it gets narrower where there is less room.
void RichTextView::PlaceSheet() {
  if (!box_is_there_.Connected()) return;
  const int sheet = static_cast<int>(std::ceil(Formats().Pixels(SheetWidth()))) + kTableEdge;
  const int side = kSpace + std::max(0, (RoomForSheet() - sheet) / 2);
  if (viewportMargins().left() != side) setViewportMargins(side, 0, side, 0);
  const QMarginsF margins = SheetMargins();
  QTextFrameFormat format = document()->rootFrame()->frameFormat();
  const QMarginsF old(format.leftMargin(), format.topMargin(), format.rightMargin(),
                      format.bottomMargin());
  if (old != margins) {
    format.setLeftMargin(margins.left());
    format.setTopMargin(margins.top());
    format.setRightMargin(margins.right());
    format.setBottomMargin(margins.bottom());
    document()->rootFrame()->setFrameFormat(format);
  }
  // Pages keep their width where the view is too narrow.
  const LineWrapMode wrap = shows_pages() ? FixedPixelWidth : WidgetWidth;
  if (lineWrapMode() != wrap) setLineWrapMode(wrap);
  if (shows_pages() && lineWrapColumnOrWidth() != sheet) setLineWrapColumnOrWidth(sheet);
  const QSizeF page(shows_pages() ? sheet : viewport()->width(), shows_pages() ? PageStep() : -1);
  if (document()->pageSize() != page) document()->setPageSize(page);
  MakeRoomBelow();
}

double RichTextView::FurnitureHeight() {
  double height = 0;
  if (!renderer_.is_done()) return height;
  if (RichTextPart* const notes = furniture_.Notes()) {
    height += 2 * kNotesGap + notes->size().height();
  }
  if (shows_pages()) {
    // The last page is a whole one.
    const double end = EndOfText();
    return std::max(height, std::ceil(end / PageStep()) * PageStep() - end);
  }
  if (RichTextPart* const footer = furniture_.Footer(0, 0, 0)) {
    height += 2 * kNotesGap + footer->size().height();
  }
  return height;
}

// Qt scrolls to the end of its own text, and a little further goes what stands below it.
void RichTextView::MakeRoomBelow() {
  if (makes_room_ || !box_is_there_.Connected()) return;
  const QScopedValueRollback<bool> making(makes_room_, true);
  if (sender() == verticalScrollBar()) own_range_ = verticalScrollBar()->maximum();
  const int all = static_cast<int>(std::ceil(EndOfText() + FurnitureHeight()));
  const int range = std::max(own_range_, all - viewport()->height());
  if (range != verticalScrollBar()->maximum()) verticalScrollBar()->setMaximum(range);
}

// Of a text that is longer than the view the layout isn't asked: it would have to be complete.
double RichTextView::EndOfText() const {
  if (own_range_ > 0) return own_range_ + viewport()->height();
  return document()->documentLayout()->documentSize().height();
}

void RichTextView::PaintSheets(QPainter& painter, double top, double bottom) {
  const double step = PageStep();
  const double width = document()->pageSize().width();
  const QColor desk = palette().color(QPalette::Window);
  for (double y = std::floor(top / step) * step; y <= bottom; y += step) {
    painter.fillRect(QRectF(0, y, width, kPageGap), desk);
  }
}

void RichTextView::PaintFurniture(QPainter& painter, double top, double bottom) {
  painter.setOpacity(kPaleness);
  if (shows_pages()) {
    const int last = static_cast<int>(std::max(EndOfText() - 1, 0.0) / PageStep());
    const int first = std::max(0, static_cast<int>(top / PageStep()));
    for (int page = first; page <= last && page * PageStep() <= bottom; ++page) {
      PaintPageFurniture(painter, page, last + 1);
    }
  }
  const QMarginsF margins = SheetMargins();
  const double left = margins.left();
  const double right = document()->pageSize().width() - margins.right();
  const auto draw = [&](double y) {
    painter.setPen(kRuleColor);
    painter.drawLine(QLineF(left, y, right, y));
  };
  if (RichTextPart* const header = furniture_.Header(0, 0, 0); header && !shows_pages()) {
    const double y = margins.top() - kNotesGap - header->size().height();
    if (top < margins.top()) header->Paint(painter, QPointF(left, y));
    draw(margins.top() - kNotesGap / 2);
  }
  double y = EndOfText();
  if (!renderer_.is_done() || bottom < y) return;
  if (RichTextPart* const notes = furniture_.Notes()) {
    painter.setPen(kRuleColor);
    painter.drawLine(QLineF(left, y, left + std::min<double>(kLongestNotesLine, right - left), y));
    notes->Paint(painter, QPointF(left, y + kNotesGap / 2));
    y += kNotesGap + notes->size().height();
  }
  if (RichTextPart* const footer = furniture_.Footer(0, 0, 0); footer && !shows_pages()) {
    draw(y + kNotesGap / 2);
    footer->Paint(painter, QPointF(left, y + kNotesGap));
  }
}

void RichTextView::PaintPageFurniture(QPainter& painter, int page, int pages) {
  const RichTextFormats formats = Formats();
  const double top = page * PageStep() + kPageGap;
  const double bottom = top + PageStep() - kPageGap;
  const double left = document()->rootFrame()->frameFormat().leftMargin();
  std::size_t block = 0;
  if (furniture_.section_count() > 1) {
    const QPointF begin(left + 1,
                        page * PageStep() + document()->rootFrame()->frameFormat().topMargin() + 2);
    const int place = document()->documentLayout()->hitTest(begin, Qt::FuzzyHit);
    const int paragraph = renderer_.ParagraphOf(document()->findBlock(std::max(place, 0)));
    block = richtext::FindPlace(box_.document(), paragraph).block;
  }
  const richtext::Section& section = furniture_.first_section();
  if (RichTextPart* const header = furniture_.Header(block, page + 1, pages)) {
    header->Paint(painter, QPointF(left, top + formats.Pixels(section.header_distance)));
  }
  if (RichTextPart* const footer = furniture_.Footer(block, page + 1, pages)) {
    const double distance = formats.Pixels(section.footer_distance) + footer->size().height();
    footer->Paint(painter, QPointF(left, bottom - distance));
  }
}

QString RichTextView::KeptAt(QPoint place) const {
  const QPointF at = place + QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
  const QTextFormat format = document()->documentLayout()->formatAt(at);
  const richtext::KeptThing* const thing = renderer_.KeptOf(format.stringProperty(kKeptProperty));
  return thing == nullptr ? QString() : QString::fromStdString(forms::TipOf(*thing));
}

bool RichTextView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !box_is_there_.Connected()) {
    return QTextEdit::viewportEvent(event);
  }
  const auto* const help = static_cast<QHelpEvent*>(event);
  const QString tip = KeptAt(help->pos());
  if (tip.isEmpty()) return QTextEdit::viewportEvent(event);
  QToolTip::showText(help->globalPos(), tip, viewport());
  return true;
}

// For those who don't see the signs.
void RichTextView::DescribeKept() {
  const QString hint = FromCore(forms::DescriptionOf(box_));
  const auto tell = [&] {
    setAccessibleDescription(kept_told_.isEmpty() ? hint
                                                  : kept_told_ + QStringLiteral(". ") + hint);
  };
  if (std::exchange(described_, renderer_.kept().size()) == renderer_.kept().size()) return tell();
  QStringList tips;
  for (const richtext::KeptThing& thing : renderer_.kept()) {
    if (tips.size() == kMostDescribed) break;
    if (thing.kind == richtext::KeptKind::kNoteNumber) continue;
    tips << QString::fromStdString(forms::TipOf(thing));
  }
  tips.sort();
  kept_told_ = tips.join(QStringLiteral(". "));
  tell();
}

}  // namespace tarnwell::desktop
