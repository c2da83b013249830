#pragma once

#include <QTextEdit>
#include <QTimer>
#include <optional>

#include "desktop/widgets/kept_objects.h"
#include "desktop/widgets/picture_cache.h"
#include "desktop/widgets/rich_text_furniture.h"
#include "desktop/widgets/rich_text_renderer.h"
#include "forms/rich_text_box.h"

namespace tarnwell::desktop {

// The document of a RichTextBox as a sheet of paper. It never edits what it shows: keys, input
// methods, pastes and drops become gestures of the box, and what the box changed is shown again.
// The box may go first.
class RichTextView : public QTextEdit {
 public:
  explicit RichTextView(forms::RichTextBox& box);

  // Shows what changed in the box since the last time.
  void Show();

  // 1 is the document's own size. Until somebody sets it, it follows the view's width.
  double zoom() const { return zoom_; }
  void SetZoom(double zoom);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  RichTextFormats Formats() const;
  // The first screens at once, the rest while nothing else happens.
  void ShowAll();
  void ShowMore(std::size_t work);
  void RenderMore(std::size_t work);
  // All of it where that is soon done.
  void ShowRest();
  void ShowState();
  // Finds anew what stands around the text, behind a change.
  void Follow();
  void ShowSelection();
  void ShowPartOfSelection();
  void ShowAnew();
  static constexpr int kSheetMargin = 480;  // twips, of a sheet that isn't a page
  static constexpr int kTableEdge = 2;      // pixels by which borders are wider than their cells
  int SheetWidth() const;
  bool shows_pages() const { return shows_pages_; }
  // Pixels from one page's beginning to the next.
  double PageStep() const;
  // Of the text on the sheet, in pixels.
  QMarginsF SheetMargins();
  // What stands below the text: notes, and a footer where there are no pages.
  double FurnitureHeight();
  void MakeRoomBelow();
  double EndOfText() const;
  void DescribeKept();
  QString KeptAt(QPoint place) const;
  int RoomForSheet() const;  // pixels
  double FittingZoom() const;
  void PlaceSheet();

  richtext::Position PositionOf(int qt_position) const;
  int QtPositionOf(richtext::Position position) const;
  richtext::Range RangeOf(const QTextCursor& cursor) const;
  // A person moved the cursor.
  void TakeSelection();
  int BehindFiller(const QTextBlock& filler) const;
  // Somebody but the renderer changed Qt's text.
  void TakeForeignChange();

  void StepOverBreak(const QKeyEvent& event);
  bool PressCommandKey(const QKeyEvent& event);
  bool PressEraseKey(const QKeyEvent& event);
  bool PressTextKey(const QKeyEvent& event);
  bool PressTab(const QKeyEvent& event);
  void EraseTo(QTextCursor::MoveOperation operation);
  void Backspace();
  void TypeText(const QString& text);
  void MoveUnderPointer(QPoint place);
  void SelectToEnd(richtext::Position from);
  void CopySelection();
  void CutSelection();

  // The border of a column: twips from the page's left margin, and pixels of the text.
  struct ColumnEdge {
    int paragraph = 0;  // of the table
    int place = 0;
    double x = 0;
  };
  std::optional<ColumnEdge> EdgeAt(QPoint place) const;
  void PaintDraggedEdge(QPainter& painter);

  QPixmap PictureNamed(const QString& name);
  void PaintSheets(QPainter& painter, double top, double bottom);
  void PaintFurniture(QPainter& painter, double top, double bottom);
  void PaintPageFurniture(QPainter& painter, int page, int pages);
  void PaintPageBreaks(QPainter& painter, const QTextBlock& block, QPointF origin);

  forms::RichTextBox& box_;
  forms::Subscription box_is_there_;
  PictureCache pictures_;
  RichTextRenderer renderer_;
  KeptObjects kept_{renderer_};
  RichTextFurniture furniture_{[this] { viewport()->update(); }};
  std::optional<ColumnEdge> dragged_edge_;
  double dragged_to_ = 0;
  bool shows_pages_ = false;
  bool makes_room_ = false;
  qsizetype described_ = -1;  // signs of the renderer
  QString kept_told_;         // of those
  int own_range_ = 0;         // of the scroll bar, for Qt's text alone
  QTimer next_part_;
  std::optional<std::size_t> known_;  // spans of the box that are shown
  int scroll_requests_ = 0;
  bool selection_waits_ = false;  // for its place to be shown
  double zoom_ = 1;
  bool is_zoomed_ = false;  // by a person
  bool is_painting_ = false;
  // What happens to Qt's text and cursor now is our own doing.
  bool is_showing_ = false;
  bool has_foreign_change_ = false;
};

}  // namespace tarnwell::desktop
