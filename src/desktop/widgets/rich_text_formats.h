// Formats of documents as formats of Qt's text.

#pragma once

#include <QPaintDevice>
#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextTableCellFormat>
#include <string>

#include "richtext/rich_document.h"

namespace tarnwell::desktop {

// What Qt's formats have no property for and the view paints itself.
enum RichTextProperty {
  kMarkerProperty = QTextFormat::UserProperty + 1,  // of a block: what stands before a list's item
  kMarkerPlaceProperty,                             // where, in pixels right of the left indent
  kPageBreakBeforeProperty,                         // of a block
  kPageBreakBehindProperty,                         // of a block
  kPageBreakProperty,                               // of a line break that ends a page
};

class RichTextFormats {
 public:
  // Lengths are for the resolution of `device`, times `zoom`; `font` is that of text without one.
  RichTextFormats(const QPaintDevice& device, double zoom, const std::string& font);

  double Pixels(int twips) const { return twips * pixels_per_twip_; }
  QTextCharFormat Of(const richtext::CharacterFormat& format) const;
  QTextBlockFormat Of(const richtext::Paragraph& paragraph) const;
  QTextTableCellFormat Of(const richtext::Cell& cell, int half_gap) const;

 private:
  void AddMarker(const richtext::Paragraph& paragraph, QTextBlockFormat& format) const;

  double pixels_per_twip_;
  double zoom_;
  QString font_;
};

}  // namespace tarnwell::desktop
