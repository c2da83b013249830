#include "desktop/widgets/text.h"

#include <QKeyEvent>
#include <QKeySequence>

#include "text/code_page_1252.h"

namespace tarnwell::desktop {

QString FromCore(std::string_view text) {
  return QString::fromStdString(text::ToUtf8(text).bytes());
}

std::string ToCore(const QString& text) { return text::FromUtf8(text::Utf8(text.toStdString())); }

QString Spoken(std::string_view caption) {
  std::string spoken;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    spoken += caption[i];
  }
  return FromCore(spoken).trimmed();
}

bool IsRedo(const QKeyEvent& event) {
  const std::string name = KeyName(event);
  return name == "Ctrl+Y" || name == "Ctrl+Shift+Z";
}

std::string KeyName(const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
  return QKeySequence(static_cast<int>(modifiers) | event.key())
      .toString(QKeySequence::PortableText)
      .toStdString();
}

}  // namespace tarnwell::desktop
