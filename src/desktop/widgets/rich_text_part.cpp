#include "desktop/widgets/rich_text_part.h"

#include <QAbstractTextDocumentLayout>
#include <QPalette>
#include <QScopedValueRollback>
#include <QUrl>
#include <utility>

#include "desktop/widgets/rich_text_extras.h"

namespace tarnwell::desktop {

richtext::RichDocument PartSource::Read(const std::string& rtf) {
  if (!reader_) reader_.emplace(document_);
  return reader_->Read(rtf);
}

RichTextPart::RichTextPart(richtext::RichDocument text, PartSource& source, double width)
    : text_(std::move(text)), pictures_(source.on_ready()) {
  document_.setUndoRedoEnabled(false);
  document_.setUseDesignMetrics(true);
  document_.setDocumentMargin(0);
  document_.documentLayout()->registerHandler(kKeptObject, &objects_);
  objects_.SetSource(&source);
  document_.setTextWidth(width);
  renderer_.RenderAll(text_, source.formats());
  document_.size();  // lays it out while there is a source
  objects_.SetSource(nullptr);
}

QVariant RichTextPart::Document::loadResource(int type, const QUrl& name) {
  if (type != ImageResource) return {};
  const RichTextRenderer::ShownPicture picture = part_.renderer_.PictureOf(name.toString());
  if (!part_.is_painting_) return part_.pictures_.waiting();
  return part_.pictures_.At(name.toString(), picture.file, picture.size);
}

void RichTextPart::Paint(QPainter& painter, QPointF place) {
  const QScopedValueRollback<bool> painting(is_painting_, true);
  painter.save();
  painter.translate(place);
  std::vector<QTextBlock> blocks;
  for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
    blocks.push_back(block);
  }
  const RichTextExtras extras(*document_.documentLayout(), blocks);
  extras.PaintBelow(painter);
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  document_.documentLayout()->draw(&painter, context);
  extras.PaintAbove(painter, Qt::black);
  painter.restore();
}

}  // namespace tarnwell::desktop
