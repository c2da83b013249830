// Formats of documents as formats of Qt's text.

#pragma once

#include <QColor>
#include <QPaintDevice>
#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextTableCellFormat>
#include <array>
#include <optional>
#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::desktop {

// What Qt's formats have no property for and the view paints itself.
enum RichTextProperty {
  kMarkerProperty = QTextFormat::UserProperty + 1,  // of a block: what stands before a list's item
  kMarkerPlaceProperty,                             // where, in pixels right of the left indent
  kPageBreakBeforeProperty,                         // of a block
  kPageBreakBehindProperty,                         // of a block
  kPageBreakProperty,                               // of a line break that ends a page
  kUnderlineProperty,                               // of text: a richtext::Underline
  kLeadersProperty,    // of a block: the places of its tab stops from the line's beginning, in
                       // pixels, each with its richtext::TabStop::Leader behind it
  kFrameProperty,      // of a block: see ShownFrame
  kKeptProperty,       // of a kKeptObject: its name in the renderer
  kKeptWidthProperty,  // likewise: the room of its cell, in pixels
  kNoteProperty,       // of a kKeptObject: which of its paragraph's notes it numbers, from 0
};

// Stands in Qt's text for what the document only keeps.
inline constexpr int kKeptObject = QTextFormat::UserObject + 1;

// What is drawn around and behind a block: top, left, bottom, right, and between it and one before
// it in the same frame. Lengths are pixels.
struct ShownFrame {
  struct Side {
    double width = 0;  // 0: no line
    double distance = 0;
    QColor color;
    Qt::PenStyle style = Qt::SolidLine;
    bool is_double = false;
  };
  std::array<Side, 5> sides;
  QColor fill;  // invalid: none

  QVariant ToVariant() const;
  static ShownFrame Of(const QTextBlockFormat& format);
};

class RichTextFormats {
 public:
  // Lengths are for the resolution of `device`, times `zoom`.
  RichTextFormats(const QPaintDevice& device, double zoom, const richtext::RichDocument& document);

  double Pixels(int twips) const { return twips * pixels_per_twip_; }
  QTextCharFormat Of(const richtext::CharacterFormat& format) const;
  QTextBlockFormat Of(const richtext::Paragraph& paragraph) const;
  QTextTableCellFormat Of(const richtext::Cell& cell, int half_gap) const;

 private:
  void AddMarker(const richtext::Paragraph& paragraph, QTextBlockFormat& format) const;
  void AddTabs(const richtext::ParagraphFormat& format, QTextBlockFormat& out) const;
  void AddFrame(const richtext::ParagraphFormat& format, QTextBlockFormat& out) const;

  double pixels_per_twip_;
  double zoom_;
  QString font_;
  std::vector<std::optional<richtext::Color>> colors_;
};

}  // namespace tarnwell::desktop
