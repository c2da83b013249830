#include "desktop/widgets/kept_objects.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>
#include <cstring>

#include "desktop/widgets/rich_text_part.h"
#include "desktop/widgets/text.h"
#include "forms/kept_signs.h"

namespace tarnwell::desktop {
namespace {

constexpr double kScriptSize = 2.0 / 3;  // as Qt's raised letters
constexpr double kSignSize = 0.75;       // against the letters around
constexpr double kSignPadding = 4;       // pixels
constexpr int kMostNested = 8;
const QColor kSignInk{0x3A, 0x4A, 0x5A};
const QColor kSignPaper{0xE6, 0xEC, 0xF2};

QFont FontOf(const QTextFormat& format, double scale) {
  QFont font = format.toCharFormat().font();
  font.setPointSizeF(std::max(1.0, font.pointSizeF() * scale));
  return font;
}

QFont NumberFont(const QTextFormat& format) {
  const auto script = format.toCharFormat().verticalAlignment();
  return FontOf(format, script == QTextCharFormat::AlignNormal ? 1 : kScriptSize);
}

QFont SignFont(const QTextFormat& format) {
  QFont font = FontOf(format, kSignSize);
  font.setFamilies({QFont().family()});
  font.setBold(false);
  font.setItalic(false);
  return font;
}

}  // namespace

void* KeptObjects::qt_metacast(const char* name) {
  if (std::strcmp(name, qobject_interface_iid<QTextObjectInterface*>()) == 0) {
    return static_cast<QTextObjectInterface*>(this);
  }
  return QObject::qt_metacast(name);
}

void KeptObjects::SetSource(PartSource* source) {
  source_ = source;
  if (source != nullptr) tables_.clear();
}

QString KeptObjects::NumberAt(const QTextDocument& document, int place,
                              const QTextFormat& format) const {
  const QString number = number_of ? number_of(renderer_.ParagraphOf(document.findBlock(place)),
                                               format.intProperty(kNoteProperty))
                                   : QString();
  return number.isEmpty() ? QStringLiteral("*") : number;
}

RichTextPart* KeptObjects::TableOf(const QTextFormat& format) {
  const QString name = format.stringProperty(kKeptProperty);
  const auto known = tables_.constFind(name);
  if (known != tables_.constEnd()) return known->get();
  const richtext::KeptThing* const thing = renderer_.KeptOf(name);
  if (source_ == nullptr || thing == nullptr || source_->depth >= kMostNested) return nullptr;
  ++source_->depth;
  auto part = std::make_shared<RichTextPart>(source_->Read(thing->rtf), *source_,
                                             format.doubleProperty(kKeptWidthProperty));
  --source_->depth;
  return tables_.insert(name, std::move(part))->get();
}

QSizeF KeptObjects::intrinsicSize(QTextDocument* document, int place, const QTextFormat& format) {
  const richtext::KeptThing* const thing = renderer_.KeptOf(format.stringProperty(kKeptProperty));
  if (thing == nullptr) return {1, 1};
  if (thing->kind == richtext::KeptKind::kNoteNumber) {
    const double width =
        QFontMetricsF(NumberFont(format)).horizontalAdvance(NumberAt(*document, place, format));
    return {width, QFontMetricsF(FontOf(format, 1)).ascent()};
  }
  if (thing->kind == richtext::KeptKind::kNestedTable) {
    if (const RichTextPart* const table = TableOf(format)) return table->size();
  }
  const QFontMetricsF metrics(SignFont(format));
  return {metrics.horizontalAdvance(FromCore(forms::SignOf(*thing))) + 2 * kSignPadding,
          metrics.height()};
}

void KeptObjects::drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document,
                             int place, const QTextFormat& format) {
  const richtext::KeptThing* const thing = renderer_.KeptOf(format.stringProperty(kKeptProperty));
  if (thing == nullptr) return;
  painter->save();
  if (thing->kind == richtext::KeptKind::kNoteNumber) {
    const QFont font = NumberFont(format);
    painter->setFont(font);
    painter->setPen(format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color()
                                                                     : QColor(Qt::black));
    const bool is_raised =
        format.toCharFormat().verticalAlignment() == QTextCharFormat::AlignSuperScript;
    const double base = is_raised ? rect.top() + QFontMetricsF(font).ascent() : rect.bottom();
    painter->drawText(QPointF(rect.left(), base), NumberAt(*document, place, format));
  } else if (RichTextPart* const table =
                 thing->kind == richtext::KeptKind::kNestedTable ? TableOf(format) : nullptr) {
    table->Paint(*painter, rect.topLeft());
  } else {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(kSignInk);
    painter->setBrush(kSignPaper);
    painter->drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter->setFont(SignFont(format));
    painter->drawText(rect, Qt::AlignCenter, FromCore(forms::SignOf(*thing)));
  }
  painter->restore();
}

}  // namespace tarnwell::desktop
