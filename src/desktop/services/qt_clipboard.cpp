#include "desktop/services/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "desktop/widgets/text.h"
#include "richtext/html.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"

namespace tarnwell::desktop {
namespace {

// What programs of the different systems look for. Windows knows the format by its registered name.
constexpr const char* kRichTextFormats[] = {
    "text/rtf", "application/rtf", "text/richtext",
    R"(application/x-qt-windows-mime;value="Rich Text Format")"};

}  // namespace

void QtClipboard::SetText(std::string_view text) {
  QGuiApplication::clipboard()->setText(FromCore(text));
}

void QtClipboard::SetRichText(std::string_view rtf) {
  const QByteArray bytes(rtf.data(), static_cast<qsizetype>(rtf.size()));
  auto* content = new QMimeData;
  for (const char* format : kRichTextFormats) content->setData(QLatin1String(format), bytes);
  const richtext::RichDocument document = richtext::ReadRichText(rtf);
  content->setHtml(QString::fromStdString(richtext::ToHtml(document)));
  content->setText(QString::fromStdString(richtext::PlainText(document)));
  QGuiApplication::clipboard()->setMimeData(content);
}

}  // namespace tarnwell::desktop
