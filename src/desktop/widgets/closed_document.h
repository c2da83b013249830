#pragma once

#include <QTextDocument>

namespace tarnwell::desktop {

// A text that never opens a file or an address, whatever it names: style sheets, backgrounds and
// pictures alike. QTextDocument itself would open any local file.
class ClosedDocument : public QTextDocument {
 public:
  using QTextDocument::QTextDocument;

 protected:
  QVariant loadResource(int, const QUrl&) override { return {}; }
};

}  // namespace tarnwell::desktop
