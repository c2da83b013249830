// What a document only keeps, in Qt's text: a sign that says what is there, the number of a note,
// a table inside a cell.

#pragma once

#include <QHash>
#include <QObject>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <functional>
#include <memory>
#include <string>

#include "desktop/widgets/rich_text_renderer.h"

namespace tarnwell::desktop {

class PartSource;
class RichTextPart;

class KeptObjects : public QObject, public QTextObjectInterface {
 public:
  explicit KeptObjects(const RichTextRenderer& renderer) : renderer_(renderer) {}

  // What tables inside cells are made with, from now on; until then they are signs.
  void SetSource(PartSource* source);

  // The number of a note, by its paragraph and its place among the notes there.
  std::function<QString(int paragraph, int note)> number_of;

  // Without Qt's own tables of classes.
  void* qt_metacast(const char* name) override;

  QSizeF intrinsicSize(QTextDocument* document, int place, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int place,
                  const QTextFormat& format) override;

 private:
  QString NumberAt(const QTextDocument& document, int place, const QTextFormat& format) const;
  RichTextPart* TableOf(const QTextFormat& format);

  const RichTextRenderer& renderer_;
  PartSource* source_ = nullptr;
  QHash<QString, std::shared_ptr<RichTextPart>> tables_;
};

}  // namespace tarnwell::desktop
