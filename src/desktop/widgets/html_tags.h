// The tags of a page, without reading it as Qt does.

#pragma once

#include <QString>
#include <functional>

namespace tarnwell::desktop {

struct HtmlTag {
  QStringView name;  // with the slash of one that closes; empty for a comment and the like
  QStringView rest;  // up to and with the ">"

  bool Is(const char* wanted) const {
    return name.compare(QLatin1String(wanted), Qt::CaseInsensitive) == 0;
  }
  bool closes() const { return name.startsWith(QLatin1Char('/')); }
};

// Calls visit(tag, place of its "<"), but for what stands in comments, style sheets and scripts.
void ForEachTag(QStringView html, const std::function<void(const HtmlTag&, qsizetype)>& visit);

// Whether Qt reads the page in about a second: it goes through all that is open with each thing
// that it meets, and keeps some kilobytes for each.
bool IsReadSoon(QStringView html);

}  // namespace tarnwell::desktop
