#include "desktop/services/html_help_viewer.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QMainWindow>
#include <QSplitter>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

#include "desktop/services/help_panel.h"
#include "desktop/widgets/closed_document.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/look.h"

namespace tarnwell::desktop {
namespace {

constexpr QSize kWindowSize{960, 640};
constexpr qint64 kLargestPage = 1 << 20;  // bytes

QUrl PageAddress(const QString& folder, const QString& page) {
  return QUrl::fromLocalFile(folder + QLatin1Char('/') + page);
}

// A link to a file elsewhere is elsewhere.
bool IsPage(const QString& folder, const QUrl& address) {
  const QFileInfo file(address.toLocalFile());
  return file.suffix() == QLatin1String("html") && file.isFile() &&
         file.canonicalPath() == QDir(folder).canonicalPath();
}

parts::HelpBook ReadBook(const QString& folder) {
  parts::HelpBook book;
  for (const QString& name : QDir(folder).entryList({QStringLiteral("*.html")}, QDir::Files)) {
    const QUrl address = PageAddress(folder, name);
    QFile file(address.toLocalFile());
    if (!IsPage(folder, address) || !file.open(QIODevice::ReadOnly)) continue;
    book.AddPage(name.toStdString(), file.read(kLargestPage).toStdString());
  }
  return book;
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
  auto* panel = new HelpPanel(ReadBook(folder_));
  panel->on_open = [this](const parts::HelpPlace& place) { OpenAt(place); };
  auto* halves = new QSplitter;
  halves->setChildrenCollapsible(false);
  halves->addWidget(panel);
  halves->addWidget(browser_);
  halves->setStretchFactor(1, 1);
  halves->setSizes({kWindowSize.width() / 3, kWindowSize.width() * 2 / 3});
  window_->setCentralWidget(halves);
  AddBar(*panel);
}

void HtmlHelpViewer::AddBar(HelpPanel& panel) {
  QToolBar* bar = window_->addToolBar(QStringLiteral("Pages"));
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  QAction* all = bar->addAction(IconOf(QStringLiteral("index")), "&All Pages");
  QAction* back = bar->addAction(IconOf(QStringLiteral("back")), "&Back");
  back->setShortcut(QKeySequence::Back);
  back->setEnabled(false);
  const auto add_key = [this](const QKeySequence& key) {
    auto* action = new QAction(window_);
    action->setShortcut(key);
    window_->addAction(action);
    return action;
  };
  QObject::connect(all, &QAction::triggered, browser_,
                   [this] { Open(PageAddress(folder_, QStringLiteral("index.html"))); });
  QObject::connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
  QObject::connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  QObject::connect(add_key(QKeySequence::Find), &QAction::triggered, &panel,
                   &HelpPanel::BeginSearch);
  QObject::connect(add_key(Qt::Key_Escape), &QAction::triggered, window_, &QWidget::close);
}

void HtmlHelpViewer::Open(const QUrl& link) {
  const QUrl address = browser_->source().resolved(link);
  if (address.isLocalFile() && IsPage(folder_, address)) browser_->setSource(address);
}

void HtmlHelpViewer::OpenAt(const parts::HelpPlace& place) {
  Open(PageAddress(folder_, QString::fromStdString(place.file)));
  browser_->moveCursor(QTextCursor::Start);
  if (!place.phrase.empty()) browser_->find(QString::fromStdString(place.phrase));
}

}  // namespace tarnwell::desktop
