#pragma once

#include <QPointer>
#include <QString>
#include <functional>

#include "forms/services.h"

class QMainWindow;
class QTextBrowser;
class QUrl;

namespace tarnwell::desktop {

// The help pages "<context>.html" of a folder, in a window of their own beside the program.
class HtmlHelpViewer : public forms::HelpViewer {
 public:
  explicit HtmlHelpViewer(QString folder) : folder_(std::move(folder)) {}
  ~HtmlHelpViewer() override;

  void Show(int context) override;

 private:
  void MakeWindow();
  // A page of the folder, with or without a place in it. Nothing else is ever opened.
  void Open(const QUrl& link);

  QString folder_;
  QPointer<QMainWindow> window_;
  QTextBrowser* browser_ = nullptr;
};

}  // namespace tarnwell::desktop
