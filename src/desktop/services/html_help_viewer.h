#pragma once

#include <QPointer>
#include <QString>
#include <functional>

#include "forms/services.h"

class QMainWindow;
class QTextBrowser;

namespace tarnwell::desktop {

// The help pages "<context>.html" of a folder, in a window of their own beside the program.
class HtmlHelpViewer : public forms::HelpViewer {
 public:
  explicit HtmlHelpViewer(QString folder) : folder_(std::move(folder)) {}
  ~HtmlHelpViewer() override;

  void Show(int context) override;

 private:
  void MakeWindow();

  QString folder_;
  QPointer<QMainWindow> window_;
  QTextBrowser* browser_ = nullptr;
};

}  // namespace tarnwell::desktop
