#include "desktop/widgets/rich_text_view.h"

#include <QAbstractTextDocumentLayout>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <QUrl>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "desktop/widgets/closed_document.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/rich_text_positions.h"
#include "richtext/paragraphs.h"

namespace tarnwell::desktop {
namespace {

// Work of the renderer.
constexpr std::size_t kFirstWork = 400;   // the first screens
constexpr std::size_t kMoreWork = 60;     // no longer than a frame of the screen
constexpr std::size_t kWaitedFor = 5000;  // hardly more than a second
// Of a change: more comes sooner in steps, as a document does.
constexpr std::size_t kMostAtOnce = 1000;         // paragraphs
constexpr std::size_t kMostTextAtOnce = 100'000;  // bytes
constexpr double kLeastZoom = 0.5;
constexpr double kMostZoom = 3;
constexpr double kZoomStep = 1.1;
constexpr double kLeastFittingZoom = 0.75;
// Letters get whole pixels only; at a quarter's steps most of them keep their proportions.
constexpr double kFittingZooms = 4;  // in 1
constexpr double kWheelStep = 120;
const QColor kLockedPaper{0xF7, 0xF7, 0xF5};

// Bytes of the paragraphs that the change brought, those in tables left out.
std::size_t TextOf(const richtext::RichDocument& document, const richtext::ChangedSpan& span) {
  if (span.where.in_table) return 0;
  std::size_t text = 0;
  const std::size_t end = std::min(span.where.block + span.blocks_after, document.blocks.size());
  for (std::size_t i = span.where.block; i < end; ++i) {
    const auto* paragraph = std::get_if<richtext::Paragraph>(&document.blocks[i]);
    if (!paragraph) continue;
    for (const richtext::Run& run : paragraph->runs) text += richtext::ShownText(run).size();
  }
  return text;
}

bool IsMuch(const richtext::RichDocument& document,
            const std::vector<richtext::ChangedSpan>& spans) {
  std::size_t blocks = 0;
  std::size_t text = 0;
  for (const richtext::ChangedSpan& span : spans) {
    blocks += span.blocks_before + span.blocks_after;
    if (blocks > kMostAtOnce) return true;
    text += TextOf(document, span);
  }
  return text > kMostTextAtOnce;
}

// Asks the view for the pictures that it shows, and nobody for anything else.
class ViewDocument : public ClosedDocument {
 public:
  using Pictures = std::function<QPixmap(const QString& name)>;

  ViewDocument(QObject* parent, Pictures pictures)
      : ClosedDocument(parent), pictures_(std::move(pictures)) {}

 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    if (type != ImageResource) return {};
    return pictures_(name.toString());
  }

 private:
  Pictures pictures_;
};

// What QTextEdit does to its first document.
QTextDocument& Given(QTextDocument* document, QTextEdit& view) {
  document->setPageSize(QSize(0, 0));
  document->documentLayout()->setPaintDevice(view.viewport());
  document->setDefaultFont(view.font());
  document->setUndoRedoEnabled(false);
  view.setDocument(document);
  return *document;
}

}  // namespace

RichTextView::RichTextView(forms::RichTextBox& box)
    : box_(box),
      box_is_there_(box.OnChanged([] {})),
      pictures_([this] { viewport()->update(); }),
      renderer_(
          Given(new ViewDocument(this, [this](const QString& name) { return PictureNamed(name); }),
                *this)) {
  document()->setUseDesignMetrics(true);
  document()->documentLayout()->registerHandler(kKeptObject, &kept_);
  kept_.number_of = [this](int paragraph, int note) {
    return furniture_.NumberOf(paragraph, note);
  };
  // The sheet is as wide with a long text as with a short one.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] { MakeRoomBelow(); });
  setAcceptRichText(true);
  connect(document(), &QTextDocument::contentsChange, this, [this](int, int removed, int added) {
    if (!is_showing_ && removed + added > 0) TakeForeignChange();
  });
  next_part_.setInterval(0);
  connect(&next_part_, &QTimer::timeout, this, [this] { ShowMore(kMoreWork); });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { pictures_.Retry(); });
  connect(this, &QTextEdit::cursorPositionChanged, this, [this] { TakeSelection(); });
  connect(this, &QTextEdit::selectionChanged, this, [this] { TakeSelection(); });
}

RichTextFormats RichTextView::Formats() const { return {*viewport(), zoom_, box_.document()}; }

void RichTextView::Show() {
  const QScopedValueRollback<bool> showing(is_showing_, true);
  ShowState();
  const auto spans = known_ ? box_.SpansFrom(*known_) : std::nullopt;
  known_ = box_.spans_made();
  const bool turns = shows_pages_ != box_.shows_pages();
  shows_pages_ = box_.shows_pages();
  if (!spans) {
    ShowAll();
  } else if (turns) {
    ShowAll();
    scroll_requests_ = -1;
  } else if (!spans->empty()) {
    const int place = verticalScrollBar()->value();
    scroll_requests_ = -1;
    if (IsMuch(box_.document(), *spans) || !renderer_.Update(box_.document(), Formats(), *spans)) {
      ShowAll();
    } else {
      verticalScrollBar()->setValue(place);
      if (renderer_.has_kept()) Follow();
    }
  }
  ShowSelection();
  DescribeKept();
}

void RichTextView::ShowAll() {
  if (!is_zoomed_) zoom_ = FittingZoom();
  const RichTextFormats formats = Formats();
  const richtext::Page& page = box_.document().page;
  furniture_.Show(
      box_.document(), formats,
      kTableEdge + formats.Pixels(std::max(page.width - page.left_margin - page.right_margin,
                                           2 * kSheetMargin)));
  kept_.SetSource(furniture_.source());
  renderer_.Start(box_.document(), formats);
  renderer_.RenderMore(box_.document(), Formats(), kFirstWork);
  PlaceSheet();
  moveCursor(QTextCursor::Start);
  if (!renderer_.is_done()) next_part_.start();
  described_ = -1;
}

void RichTextView::Follow() {
  furniture_.Follow(box_.document());
  MakeRoomBelow();
  DescribeKept();
}

void RichTextView::ShowMore(std::size_t work) {
  const QScopedValueRollback<bool> showing(is_showing_, true);
  // A change in the box starts anew; see Show.
  const bool is_current = box_is_there_.Connected() && known_ == box_.spans_made();
  if (is_current) RenderMore(work);
  if (!is_current || renderer_.is_done()) next_part_.stop();
  if (is_current && selection_waits_) ShowSelection();
  if (is_current && renderer_.is_done()) Follow();
}

// What comes below the window's end changes nothing in it. Qt would paint all of it anew, which in
// a table of many columns takes longer than what comes.
void RichTextView::RenderMore(std::size_t work) {
  const int below = verticalScrollBar()->maximum() - verticalScrollBar()->value();
  viewport()->setAttribute(Qt::WA_UpdatesDisabled, below > viewport()->height());
  renderer_.RenderMore(box_.document(), Formats(), work);
  viewport()->setAttribute(Qt::WA_UpdatesDisabled, false);
}

void RichTextView::ShowRest() {
  if (!renderer_.is_done()) ShowMore(kWaitedFor);
}

void RichTextView::ShowState() {
  const bool locked = box_.locked();
  const Qt::TextInteractionFlags flags =
      locked ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard : Qt::TextEditorInteraction;
  if (textInteractionFlags() != flags) setTextInteractionFlags(flags);
  const QColor usual = locked ? kLockedPaper : QColor(Qt::white);
  QPalette colors = palette();
  colors.setColor(QPalette::Base, box_.background() ? ToQColor(*box_.background()) : usual);
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    colors.setColor(group, QPalette::Text,
                    box_.text_color() ? ToQColor(*box_.text_color()) : QColor(Qt::black));
  }
  if (colors != palette()) setPalette(colors);
}

void RichTextView::ShowSelection() {
  const bool waited = std::exchange(selection_waits_, false);
  const auto is_shown = [this] {
    return renderer_.is_done() || renderer_.BlockOf(box_.selection().to.paragraph).isValid();
  };
  // A place that somebody asked for is soon there; what a person selects may reach further.
  if (!waited && !is_shown() && box_.selection().empty()) ShowRest();
  selection_waits_ = !is_shown();
  if (selection_waits_) return ShowPartOfSelection();
  const bool scrolls = scroll_requests_ != box_.scroll_requests();
  scroll_requests_ = box_.scroll_requests();
  QTextCursor cursor(document());
  cursor.setPosition(QtPositionOf(box_.selection().from));
  cursor.setPosition(QtPositionOf(box_.selection().to), QTextCursor::KeepAnchor);
  const bool is_beside_sign = !cursor.hasSelection() && !textCursor().hasSelection() &&
                              textCursor().block() == cursor.block() &&
                              textCursor().position() != cursor.position();
  const bool is_astray = is_beside_sign || renderer_.IsFiller(textCursor().block());
  // All parts of a table, too, where a person's cursor reaches from one into another.
  const bool is_all = textCursor().selectionStart() <= cursor.selectionStart() &&
                      textCursor().selectionEnd() >= cursor.selectionEnd();
  if (is_astray || !is_all || RangeOf(textCursor()) != box_.selection()) {
    const int place = verticalScrollBar()->value();
    setTextCursor(cursor);
    if (!is_all && !scrolls) verticalScrollBar()->setValue(place);
  }
  if (scrolls) ensureCursorVisible();
}

// As far as the text is shown.
void RichTextView::ShowPartOfSelection() {
  if (box_.selection().empty() || !renderer_.BlockOf(box_.selection().from.paragraph).isValid()) {
    return;
  }
  const int place = verticalScrollBar()->value();
  QTextCursor cursor(document());
  cursor.setPosition(QtPositionOf(box_.selection().from));
  cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  verticalScrollBar()->setValue(place);
}

void RichTextView::SetZoom(double zoom) {
  is_zoomed_ = true;
  zoom_ = std::clamp(zoom, kLeastZoom, kMostZoom);
  ShowAnew();
}

void RichTextView::ShowAnew() {
  if (!box_is_there_.Connected()) return;
  known_.reset();
  scroll_requests_ = -1;
  Show();
}

int RichTextView::RoomForSheet() const {
  return width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width() - 2 * kSpace;
}

// Small enough for the whole width of the sheet, as long as that can be read.
double RichTextView::FittingZoom() const {
  const double sheet =
      RichTextFormats(*viewport(), 1, richtext::RichDocument()).Pixels(SheetWidth());
  const double room = RoomForSheet() - kTableEdge;
  // A page is seen in its whole width.
  if (shows_pages()) return std::clamp(room / sheet, kLeastZoom, 1.0);
  const double zoom = std::floor(room / sheet * kFittingZooms) / kFittingZooms;
  return std::clamp(zoom, kLeastFittingZoom, 1.0);
}

void RichTextView::resizeEvent(QResizeEvent* event) {
  QTextEdit::resizeEvent(event);
  if (box_is_there_.Connected() && known_ && !is_zoomed_ && zoom_ != FittingZoom()) ShowAnew();
  const QScopedValueRollback<bool> showing(is_showing_, true);
  PlaceSheet();
}

void RichTextView::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QTextEdit::wheelEvent(event);
  SetZoom(zoom_ * std::pow(kZoomStep, event->angleDelta().y() / kWheelStep));
  event->accept();
}

richtext::Position RichTextView::PositionOf(int qt_position) const {
  const QTextBlock block = document()->findBlock(qt_position);
  const int paragraph = renderer_.ParagraphOf(block);
  const std::string text = box_.ParagraphText(paragraph);
  return {paragraph, ToUtf8Offset(text, qt_position - block.position(), SignsIn(block))};
}

int RichTextView::QtPositionOf(richtext::Position position) const {
  const QTextBlock block = renderer_.BlockOf(position.paragraph);
  const int offset =
      ToUtf16Offset(box_.ParagraphText(position.paragraph), position.offset, SignsIn(block));
  return block.position() + std::min(offset, block.length() - 1);
}

richtext::Range RichTextView::RangeOf(const QTextCursor& cursor) const {
  const richtext::Position from = PositionOf(cursor.selectionStart());
  const richtext::Range range{from,
                              cursor.hasSelection() ? PositionOf(cursor.selectionEnd()) : from};
  if (!cursor.hasSelection()) return range;
  const QTextBlock first = document()->findBlock(cursor.selectionStart());
  const QTextBlock last = document()->findBlock(cursor.selectionEnd());
  const bool is_astray = renderer_.IsFiller(first) || renderer_.IsFiller(last);
  const bool is_in_one = QTextCursor(first).currentTable() == QTextCursor(last).currentTable();
  return is_in_one && !is_astray ? range : WithWholeTables(box_.document(), range);
}

void RichTextView::TakeSelection() {
  if (is_showing_ || !box_is_there_.Connected()) return;
  QTextCursor cursor = textCursor();
  if (renderer_.IsFiller(cursor.block()) && !cursor.hasSelection()) {
    cursor.setPosition(BehindFiller(cursor.block()));
    return setTextCursor(cursor);
  }
  const richtext::Range range = RangeOf(cursor);
  if (range != box_.selection()) return box_.MoveSelection(range);
  // The box has nothing to tell, though Qt may show less of it.
  const QScopedValueRollback<bool> showing(is_showing_, true);
  ShowSelection();
}

// The cell that the cursor means between two parts of a table: the next one, or, up or down, the
// one in its own column.
int RichTextView::BehindFiller(const QTextBlock& filler) const {
  const QTextCursor from(renderer_.BlockOf(box_.selection().to.paragraph));
  const QTextTable* const old_table = from.currentTable();
  const bool forward = from.position() < filler.position() || !filler.previous().isValid();
  const QTextCursor to(forward ? filler.next() : filler.previous());
  const QTextTable* const table = to.currentTable();
  if (table == nullptr) return to.position();
  const int row = forward ? 0 : table->rows() - 1;
  const int last = table->columns() - 1;
  const int old_column = old_table == nullptr ? 0 : old_table->cellAt(from).column();
  const bool turns = old_table == nullptr || old_column == (forward ? last : 0);
  const int column = turns ? (forward ? 0 : last) : std::min(old_column, last);
  const QTextTableCell cell = table->cellAt(row, column);
  return forward ? cell.firstPosition() : cell.lastPosition();
}

void RichTextView::TakeForeignChange() {
  if (std::exchange(has_foreign_change_, true)) return;
  // Not amid the change.
  QMetaObject::invokeMethod(
      this,
      [this] {
        has_foreign_change_ = false;
        if (!box_is_there_.Connected()) return;
        known_.reset();
        Show();
      },
      Qt::QueuedConnection);
}

// Qt asks for a picture when it lays the text out, too, and does without it there.
QPixmap RichTextView::PictureNamed(const QString& name) {
  const RichTextRenderer::ShownPicture picture = renderer_.PictureOf(name);
  if (!is_painting_) return pictures_.waiting();
  return pictures_.At(name, picture.file, picture.size * devicePixelRatioF());
}

}  // namespace tarnwell::desktop
