#include "desktop/services/html_help_viewer.h"

#include <QFileInfo>
#include <QIcon>
#include <QMainWindow>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

#include "desktop/widgets/look.h"

namespace tarnwell::desktop {
namespace {

constexpr QSize kWindowSize{720, 560};

}  // namespace

HtmlHelpViewer::~HtmlHelpViewer() { delete window_; }

void HtmlHelpViewer::Show(int context) {
  const QString page = QStringLiteral("%1/%2.html").arg(folder_).arg(context);
  if (folder_.isEmpty() || !QFileInfo(page).isFile()) return;
  if (!window_) MakeWindow();
  browser_->setSource(QUrl::fromLocalFile(page));
  window_->show();
  window_->raise();
  window_->activateWindow();
}

void HtmlHelpViewer::MakeWindow() {
  window_ = new QMainWindow;
  window_->setWindowTitle(QStringLiteral("Tarnwell Help"));
  window_->setAttribute(Qt::WA_QuitOnClose, false);
  window_->resize(kWindowSize);
  browser_ = new QTextBrowser(window_);
  browser_->setAccessibleName(QStringLiteral("Help page"));
  browser_->document()->setDocumentMargin(kPageSpace);
  browser_->setOpenExternalLinks(true);
  window_->setCentralWidget(browser_);

  QToolBar* bar = window_->addToolBar(QStringLiteral("Pages"));
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  QAction* index = bar->addAction(QIcon(QStringLiteral(":/icons/index.svg")), "&Index");
  QAction* back = bar->addAction(QIcon(QStringLiteral(":/icons/back.svg")), "&Back");
  back->setShortcut(QKeySequence::Back);
  back->setEnabled(false);
  QObject::connect(index, &QAction::triggered, browser_, [this] {
    browser_->setSource(QUrl::fromLocalFile(folder_ + QStringLiteral("/index.html")));
  });
  QObject::connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
  QObject::connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
}

}  // namespace tarnwell::desktop
