#include "desktop/services/html_help_viewer.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QMainWindow>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

#include "desktop/widgets/closed_document.h"
#include "desktop/widgets/look.h"

namespace tarnwell::desktop {
namespace {

constexpr QSize kWindowSize{720, 560};

QUrl PageAddress(const QString& folder, const QString& page) {
  return QUrl::fromLocalFile(folder + QLatin1Char('/') + page);
}

// A link to a file elsewhere is elsewhere.
bool IsPage(const QString& folder, const QUrl& address) {
  const QFileInfo file(address.toLocalFile());
  return file.suffix() == QLatin1String("html") && file.isFile() &&
         file.canonicalPath() == QDir(folder).canonicalPath();
}

}  // namespace

HtmlHelpViewer::~HtmlHelpViewer() { delete window_; }

void HtmlHelpViewer::Show(int context) {
  const QUrl page = PageAddress(folder_, QStringLiteral("%1.html").arg(context));
  if (folder_.isEmpty() || !IsPage(folder_, page)) return;
  if (!window_) MakeWindow();
  Open(page);
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
  auto* text = new ClosedDocument(browser_);
  text->documentLayout()->setPaintDevice(browser_->viewport());
  text->setDocumentMargin(kPageSpace);
  browser_->setDocument(text);
  browser_->setOpenLinks(false);
  QObject::connect(browser_, &QTextBrowser::anchorClicked, browser_,
                   [this](const QUrl& link) { Open(link); });
  window_->setCentralWidget(browser_);

  QToolBar* bar = window_->addToolBar(QStringLiteral("Pages"));
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  QAction* index = bar->addAction(QIcon(QStringLiteral(":/icons/index.svg")), "&Index");
  QAction* back = bar->addAction(QIcon(QStringLiteral(":/icons/back.svg")), "&Back");
  back->setShortcut(QKeySequence::Back);
  back->setEnabled(false);
  QObject::connect(index, &QAction::triggered, browser_,
                   [this] { Open(PageAddress(folder_, QStringLiteral("index.html"))); });
  QObject::connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
  QObject::connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
}

void HtmlHelpViewer::Open(const QUrl& link) {
  const QUrl address = browser_->source().resolved(link);
  if (address.isLocalFile() && IsPage(folder_, address)) browser_->setSource(address);
}

}  // namespace tarnwell::desktop
