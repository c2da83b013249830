#include "desktop/services/desktop_tones.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QMap>

#include "desktop/widgets/look.h"

namespace tarnwell::desktop {
namespace {

constexpr int kPortalTimeMs = 250;
constexpr uint kWishDark = 1;
constexpr uint kWishLight = 2;
constexpr uint kStrong = 1;
// Nobody but who needs it has black on white, or the reverse, without any shade.
constexpr double kUnshaded = 20.5;

// Without a bus of that session one would be started for us alone.
bool HasBus() {
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
         QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

// What every desktop tells through its portal, whichever theme Qt has found.
QVariantMap SettingsOfDesktop() {
  if (!HasBus()) return {};
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.portal.Desktop"),
      QStringLiteral("/org/freedesktop/portal/desktop"),
      QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("ReadAll"));
  call << QStringList{QStringLiteral("org.freedesktop.appearance"),
                      QStringLiteral("org.gnome.desktop.interface"),
                      QStringLiteral("org.gnome.desktop.a11y.interface")};
  call.setAutoStartService(false);
  const QDBusMessage answer = QDBusConnection::sessionBus().call(call, QDBus::Block, kPortalTimeMs);
  if (answer.type() != QDBusMessage::ReplyMessage ||
      answer.signature() != QLatin1String("a{sa{sv}}")) {
    return {};
  }
  QVariantMap settings;
  for (const QVariantMap& part :
       qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().value(0))) {
    settings.insert(part);
  }
  return settings;
}

}  // namespace

ToneSet TonesFor(const QPalette& palette, const QVariantMap& settings) {
  const QColor ground = palette.color(QPalette::Window);
  const QColor letters = palette.color(QPalette::WindowText);
  const QString theme = settings.value(QStringLiteral("gtk-theme")).toString();
  const bool is_strong = settings.value(QStringLiteral("contrast")).toUInt() == kStrong ||
                         settings.value(QStringLiteral("high-contrast")).toBool() ||
                         theme.startsWith(QLatin1String("HighContrast")) ||
                         Contrast(ground, letters) >= kUnshaded;
  const uint wish = settings.value(QStringLiteral("color-scheme")).toUInt();
  const bool has_dark_theme = theme.endsWith(QLatin1String("dark"), Qt::CaseInsensitive) ||
                              theme.endsWith(QLatin1String("Inverse")) ||
                              Contrast(ground, Qt::white) > Contrast(ground, Qt::black);
  const bool is_dark = wish == kWishDark || (wish != kWishLight && has_dark_theme);
  if (is_strong) return is_dark ? ToneSet::kBlack : ToneSet::kWhite;
  return is_dark ? ToneSet::kDark : ToneSet::kLight;
}

ToneSet TonesOfDesktop() { return TonesFor(QApplication::palette(), SettingsOfDesktop()); }

}  // namespace tarnwell::desktop
