#include "desktop/services/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "desktop/widgets/rich_text_mime.h"
#include "desktop/widgets/text.h"
#include "richtext/rich_text_reader.h"

namespace tarnwell::desktop {

void QtClipboard::SetText(std::string_view text) {
  QGuiApplication::clipboard()->setText(FromCore(text));
}

void QtClipboard::SetRichText(std::string_view rtf) {
  const QByteArray bytes(rtf.data(), static_cast<qsizetype>(rtf.size()));
  QGuiApplication::clipboard()->setMimeData(ToMime(richtext::ReadRichText(rtf), bytes).release());
}

}  // namespace tarnwell::desktop
