#include "desktop/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QWindow>
#include <algorithm>

#include "desktop/form_dialog.h"
#include "desktop/services/nested_loop.h"
#include "desktop/widgets/grid_view.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

// While a handler waits, what it holds can't be freed; try again after a while.
constexpr std::chrono::milliseconds kSweepAgain{50};
// How long a window manager may take to maximise a new window.
constexpr std::chrono::milliseconds kManagersTime{150};

const QString kStatus = QStringLiteral("Status");

int ToPixels(int twips) { return (twips + forms::kTwipsPerPixel - 1) / forms::kTwipsPerPixel; }

QSize ToPixels(forms::Size size) { return {ToPixels(size.width), ToPixels(size.height)}; }

forms::Size ToTwips(QSize size) {
  return {size.width() * forms::kTwipsPerPixel, size.height() * forms::kTwipsPerPixel};
}

FormDialog* DialogOf(FormPage& page) { return dynamic_cast<FormDialog*>(page.window()); }

}  // namespace

MainWindow::MainWindow(MakeLook make_look, forms::HelpViewer& help)
    : make_look_(std::move(make_look)),
      help_(help),
      stack_(new QStackedWidget),
      status_(new QLabel) {
  setCentralWidget(stack_);
  status_->setTextFormat(Qt::PlainText);
  status_->setAccessibleDescription(kStatus);
  status_->setContentsMargins(kSpace, 0, kSpace, 0);
  statusBar()->addWidget(status_, 1);
  sweep_.setInterval(kSweepAgain);
  sweep_.callOnTimeout([this] { FreeRetired(); });
  size_announcement_.setSingleShot(true);
  size_announcement_.callOnTimeout([this] { AnnounceSize(); });
  meet_frame_.setSingleShot(true);
  meet_frame_.callOnTimeout([this] { MeetFrame(); });
  FollowSurroundings();
}

MainWindow::~MainWindow() = default;

void MainWindow::Follow(forms::Navigator& navigator) {
  navigator_ = &navigator;
  navigator.SetObserver(this);
}

void MainWindow::ComeForward() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

FormPage* MainWindow::PageOf(const forms::Form& form) const {
  const auto found =
      std::ranges::find_if(pages_, [&](FormPage* page) { return &page->form() == &form; });
  return found == pages_.end() ? nullptr : *found;
}

FormPage* MainWindow::TopPage() const {
  if (!navigator_ || navigator_->ended() || !navigator_->top()) return nullptr;
  return PageOf(*navigator_->top());
}

void MainWindow::FormLoaded(forms::Form& form, bool modal) {
  const FormLook look = make_look_(form);
  auto* page = new FormPage(form, look.view);
  page->on_changed = [this, page] {
    if (navigator_->top() == &page->form()) ShowChrome(*page);
  };
  pages_.push_back(page);
  if (modal) {
    new FormDialog(this, page, look.frameless,
                   [this, &form] { navigator_->Close(form, forms::UnloadCause::kCloseBox); });
  } else {
    stack_->addWidget(page);
  }
}

void MainWindow::FormRaised(forms::Form& form) {
  FormPage* page = PageOf(form);
  if (!page) return;
  if (FormDialog* dialog = DialogOf(*page)) {
    ShowChrome(*page);
    dialog->ShowOver(*this);
  } else {
    stack_->setCurrentWidget(page);
    ShowChrome(*page);
    if (!isVisible()) show();
  }
  page->TakeFocus();
}

void MainWindow::FormUnloaded(forms::Form& form) {
  FormPage* page = PageOf(form);
  if (!page) return;
  std::erase(pages_, page);
  if (FormDialog* dialog = DialogOf(*page)) {
    dialog->hide();
    retired_.emplace_back(dialog);
  } else {
    stack_->removeWidget(page);
    page->hide();
    retired_.emplace_back(page);
  }
  sweep_.start(0);
}

void MainWindow::FreeRetired() {
  sweep_.setInterval(kSweepAgain);
  if (NestedLoop::Any()) return;
  sweep_.stop();
  retired_.clear();
  if (navigator_) navigator_->FreeUnloaded();
}

void MainWindow::ProgramEnded() {
  SetHourglass(false);
  for (FormPage* page : pages_) {
    if (FormDialog* dialog = DialogOf(*page)) dialog->hide();
  }
  hide();
  QCoreApplication::quit();
}

void MainWindow::ShowChrome(FormPage& page) {
  if (FormDialog* dialog = DialogOf(page)) {
    return dialog->setWindowTitle(FromCore(page.form().caption()));
  }
  const QString mark = page.form().unsaved() ? QStringLiteral("* ") : QString();
  setWindowTitle(mark + FromCore(page.form().caption()));
  status_->setText(FromCore(page.form().status()));
  // A name of its own would be read in the place of the text.
  status_->setAccessibleName(status_->text().isEmpty() ? kStatus : status_->text());
  QList<QAction*> actions;
  for (const auto& menu : page.menus()) actions << menu->menuAction();
  if (menuBar()->actions() != actions) {
    menuBar()->clear();
    menuBar()->addActions(actions);
  }
  menuBar()->setEnabled(page.form().menus().enabled());
  menuBar()->setVisible(page.form().menus().visible());
}

void MainWindow::CloseTop() {
  if (navigator_ && !navigator_->ended() && navigator_->top()) {
    navigator_->Close(*navigator_->top(), forms::UnloadCause::kCloseBox);
  }
}

// The form decides whether the window goes; what it shows next comes through the navigator.
void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (EndEditUnderKeys()) CloseTop();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  size_announcement_.start(0);
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  size_announcement_.start(0);
  meet_frame_.start(kManagersTime);
}

// Keys that nothing took: the focus is on the menu bar or on nothing, or the page had no use for
// them. Never sent back to the page, from which they may have come.
void MainWindow::keyPressEvent(QKeyEvent* event) {
  auto* page = static_cast<FormPage*>(stack_->currentWidget());
  if (!page || !page->TakeKey(*event)) QMainWindow::keyPressEvent(event);
}

// Later than the event, so that a form never meets its own change of the size inside a handler.
void MainWindow::AnnounceSize() {
  if (isMinimized() || !navigator_ || navigator_->ended() || !navigator_->top()) return;
  navigator_->top()->Resized();
}

forms::Size MainWindow::screen() {
  const QScreen& monitor = *QMainWindow::screen();
  return ToTwips((QSizeF(monitor.size()) * monitor.devicePixelRatio()).toSize());
}

forms::Size MainWindow::room() { return ToTwips(QMainWindow::screen()->availableSize()); }

// Forms count the frame and the title bar in. What they have just asked for is the size, before the
// frame is known that it takes.
forms::Size MainWindow::size() {
  return ToTwips(isMaximized() || wanted_size_.isEmpty() ? frameSize() : wanted_size_);
}

void MainWindow::SetSize(forms::Size size) {
  wanted_size_ = ToPixels(size).boundedTo(QMainWindow::screen()->availableSize());
  resize(wanted_size_ - Frame());
  meet_frame_.start(kManagersTime);
}

void MainWindow::SetMinimumSize(forms::Size size) {
  least_size_ = ToPixels(size).boundedTo(QMainWindow::screen()->availableSize());
  setMinimumSize(least_size_ - Frame());
}

// Of the window that isn't maximised; a maximised one may have another frame.
QSize MainWindow::Frame() const {
  return isMaximized() ? frame_ : frameSize() - QMainWindow::size();
}

void MainWindow::SetMaximized(bool maximized) {
  if (maximized == isMaximized()) return;
  frame_ = Frame();
  const QSize normal = normalGeometry().size();
  setWindowState(maximized ? windowState() | Qt::WindowMaximized
                           : windowState() & ~Qt::WindowMaximized);
  // A window manager takes its time, but the size that forms read is the new one at once.
  if (!maximized && normal.isValid()) resize(normal.expandedTo(minimumSize()));
}

void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  meet_frame_.start(kManagersTime);
}

// The frame is known only now, some time after the window came or was maximised or restored.
void MainWindow::MeetFrame() {
  if (!isVisible()) return;
  if (!least_size_.isEmpty()) setMinimumSize(least_size_ - Frame());
  if (isMaximized()) {
    FillScreenUnmanaged();
  } else if (!wanted_size_.isEmpty()) {
    resize(wanted_size_ - Frame());
  }
  wanted_size_ = QSize();
}

// Where no window manager answers, a maximised window has to find its size itself. Past the widget,
// which would take the size for the end of being maximised; a manager would take it so too.
void MainWindow::FillScreenUnmanaged() {
  const QRect available = QMainWindow::screen()->availableGeometry();
  const bool has_frame = frameSize() != QMainWindow::size();
  if (!has_frame && geometry() != available) windowHandle()->setGeometry(available);
}

void MainWindow::CenterOnScreen() {
  QRect place = frameGeometry();
  place.moveCenter(QMainWindow::screen()->availableGeometry().center());
  move(place.topLeft());
}

void MainWindow::SetHourglass(bool on) {
  if (on == hourglass_) return;
  hourglass_ = on;
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void MainWindow::Beep() { QApplication::beep(); }

}  // namespace tarnwell::desktop
