#include "desktop/widgets/rich_text_mime.h"

#include <QBuffer>
#include <QImage>

#include "desktop/widgets/html_fragment.h"
#include "desktop/widgets/html_tags.h"
#include "desktop/widgets/picture_files.h"
#include "richtext/html.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"
#include "richtext/rich_text_writer.h"

namespace tarnwell::desktop {
namespace {

// What programs of the different systems look for. Windows knows the format by its registered name.
constexpr const char* kRichTextFormats[] = {
    "text/rtf", "application/rtf", "text/richtext",
    R"(application/x-qt-windows-mime;value="Rich Text Format")"};

QByteArray RtfIn(const QMimeData& mime) {
  for (const char* format : kRichTextFormats) {
    QByteArray rtf = mime.data(QLatin1String(format));
    if (richtext::IsRtf({rtf.constData(), static_cast<std::size_t>(rtf.size())})) return rtf;
  }
  return {};
}

QByteArray PngOf(const QImage& image) {
  QByteArray file;
  QBuffer buffer(&file);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return file;
}

// The picture that another program offers, as a file for a document; empty for none. Qt would read
// it by its content, and so might take it for a drawing that names files.
QByteArray PictureIn(const QMimeData& mime) {
  bool is_file = false;
  for (const QString& format : mime.formats()) {
    if (!format.startsWith(QLatin1String("image/"))) continue;
    is_file = true;
    QByteArray file = mime.data(format);
    const QByteArray type = PictureTypeOf(file);
    if (!PixelsOf(file).isValid() || format != QLatin1String("image/" + type)) continue;
    return type == "bmp" ? PngOf(Decoded(file)) : file;
  }
  // This program's own.
  if (is_file || !mime.hasImage()) return {};
  const QImage image = qvariant_cast<QImage>(mime.imageData());
  return image.isNull() ? QByteArray() : PngOf(image);
}

// What no document has room for.
richtext::RichDocument TooMuch() {
  richtext::RichDocument part;
  part.is_part = true;
  part.blocks.emplace_back();
  return part;
}

richtext::RichDocument PictureDocument(const QByteArray& file) {
  richtext::Picture picture;
  if (PictureTypeOf(file) == "jpeg") picture.kind = richtext::Picture::Kind::kJpeg;
  picture.bytes = file.toStdString();
  richtext::RichDocument document;
  richtext::Paragraph paragraph;
  paragraph.runs.push_back({{}, std::move(picture), richtext::kNoField});
  document.blocks.emplace_back(std::move(paragraph));
  return document;
}

}  // namespace

std::unique_ptr<QMimeData> ToMime(const richtext::RichDocument& document, const QByteArray& rtf) {
  auto mime = std::make_unique<QMimeData>();
  for (const char* format : kRichTextFormats) mime->setData(QLatin1String(format), rtf);
  mime->setHtml(QString::fromStdString(richtext::ToHtml(document)));
  mime->setText(QString::fromStdString(richtext::PlainText(document)));
  return mime;
}

std::unique_ptr<QMimeData> ToMime(const richtext::RichDocument& document) {
  return ToMime(document, QByteArray::fromStdString(richtext::WriteRichText(document)));
}

std::optional<richtext::RichDocument> FromMime(const QMimeData& mime) {
  const QByteArray rtf = RtfIn(mime);
  if (!rtf.isEmpty()) {
    return richtext::ReadRichText({rtf.constData(), static_cast<std::size_t>(rtf.size())});
  }
  if (mime.hasHtml()) {
    const QString html = mime.html();
    return IsReadSoon(html) ? HtmlFragment(html) : TooMuch();
  }
  if (!mime.hasText()) {
    const QByteArray picture = PictureIn(mime);
    if (!picture.isEmpty()) return PictureDocument(picture);
  }
  return std::nullopt;
}

bool HoldsText(const QMimeData& mime) {
  return mime.hasText() || mime.hasHtml() || mime.hasImage() || !RtfIn(mime).isEmpty();
}

}  // namespace tarnwell::desktop
