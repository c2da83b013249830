#pragma once

#include <QPainter>
#include <QSizeF>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "desktop/widgets/closed_document.h"
#include "desktop/widgets/kept_objects.h"
#include "desktop/widgets/picture_cache.h"
#include "desktop/widgets/rich_text_renderer.h"
#include "richtext/sections.h"

namespace tarnwell::desktop {

// What parts of a document's text are made with. Needs the document to stay.
class PartSource {
 public:
  PartSource(const richtext::RichDocument& document, const RichTextFormats& formats,
             std::function<void()> on_ready)
      : document_(document), formats_(formats), on_ready_(std::move(on_ready)) {}

  richtext::RichDocument Read(const std::string& rtf);
  const RichTextFormats& formats() const { return formats_; }
  // Runs when a picture has come.
  const std::function<void()>& on_ready() const { return on_ready_; }

  // Of tables inside cells.
  int depth = 0;

 private:
  const richtext::RichDocument& document_;
  const RichTextFormats formats_;
  std::function<void()> on_ready_;
  std::optional<richtext::PartReader> reader_;
};

// A text that stands in or beside another: a header, the notes, a table inside a cell. It is shown
// as a whole and not edited.
class RichTextPart {
 public:
  // `width` is that of its lines, in pixels.
  RichTextPart(richtext::RichDocument text, PartSource& source, double width);

  QSizeF size() const { return document_.size(); }
  void Paint(QPainter& painter, QPointF place);

 private:
  class Document : public ClosedDocument {
   public:
    explicit Document(RichTextPart& part) : part_(part) {}

   protected:
    QVariant loadResource(int type, const QUrl& name) override;

   private:
    RichTextPart& part_;
  };

  richtext::RichDocument text_;
  PictureCache pictures_;
  Document document_{*this};
  RichTextRenderer renderer_{document_};
  KeptObjects objects_{renderer_};
  bool is_painting_ = false;
};

}  // namespace tarnwell::desktop
