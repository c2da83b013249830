#pragma once

#include <QPointer>
#include <QString>
#include <functional>

#include "forms/services.h"
#include "parts/help_book.h"

class QMainWindow;
class QTextBrowser;
class QUrl;

namespace tarnwell::desktop {

class HelpPanel;

// The help pages "<context>.html" of a folder, in a window of their own beside the program, with
// the ways into them.
class HtmlHelpViewer : public forms::HelpViewer {
 public:
  explicit HtmlHelpViewer(QString folder) : folder_(std::move(folder)) {}
  ~HtmlHelpViewer() override;

  void Show(int context) override;

 private:
  void MakeWindow();
  void AddBar(HelpPanel& panel);
  // A page of the folder, with or without a place in it. Nothing else is ever opened.
  void Open(const QUrl& link);
  void OpenAt(const parts::HelpPlace& place);

  QString folder_;
  QPointer<QMainWindow> window_;
  QTextBrowser* browser_ = nullptr;
};

}  // namespace tarnwell::desktop
