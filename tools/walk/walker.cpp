#include "walk/walker.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QWheelEvent>
#include <QWindow>
#include <array>
#include <filesystem>
#include <utility>

#include "desktop/form_dialog.h"
#include "desktop/services/nested_loop.h"
#include "desktop/widgets/text.h"
#include "forms/choice.h"
#include "forms/text_field.h"
#include "walk/soundness.h"

namespace tarnwell::testing {
namespace {

constexpr int kStepsToTell = 25;

// Where a click could lead out of the program's folder.
const QStringList kLeftAlone{QStringLiteral("Drive1"), QStringLiteral("Dir1")};

constexpr std::array kKeys{Qt::Key_Tab,       Qt::Key_Backtab,  Qt::Key_Escape, Qt::Key_Return,
                           Qt::Key_Enter,     Qt::Key_Space,    Qt::Key_Up,     Qt::Key_Down,
                           Qt::Key_Left,      Qt::Key_Right,    Qt::Key_PageUp, Qt::Key_PageDown,
                           Qt::Key_Home,      Qt::Key_End,      Qt::Key_Delete, Qt::Key_Insert,
                           Qt::Key_F1,        Qt::Key_F2,       Qt::Key_F4,     Qt::Key_F10,
                           Qt::Key_Alt,       Qt::Key_Menu,     Qt::Key_F5,     Qt::Key_F12,
                           Qt::Key_Backspace, Qt::Key_Asterisk, Qt::Key_Minus};

QString Describe(const QWidget& widget) {
  const QString kind = QString::fromLatin1(widget.metaObject()->className());
  const QString name =
      widget.objectName().isEmpty() ? widget.accessibleName() : widget.objectName();
  return kind + QLatin1Char(' ') + name;
}

// How many loops wait for an answer: the program's own, and those of Qt's dialogues and menus.
int LoopDepth() { return desktop::NestedLoop::depth() + QThread::currentThread()->loopLevel(); }

}  // namespace

Walker::Walker(WalkPlan plan) : plan_(std::move(plan)), random_(plan_.seed) {
  next_step_.setSingleShot(true);
  next_step_.callOnTimeout([this] { Step(); });
}

WalkReport Walker::Walk() {
  while (report_.steps < plan_.steps && report_.faults.isEmpty()) Run();
  return report_;
}

// One run of the program, to its end or to the end of the walk.
void Walker::Run() {
  desktop::Desktop desktop(plan_.folders, desktop::Outside::None());
  desktop_ = &desktop;
  leaving_ = false;
  // The splash screen waits a while; once is enough to walk over it.
  const bool splash = report_.starts++ == 0;
  if (splash) next_step_.start(0);
  desktop.program().variables().SplashShown = splash ? 0 : 99;
  desktop.Start();
  next_step_.start(0);
  while (!desktop.ended()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  next_step_.stop();
  desktop_ = nullptr;
}

// The next step is ordered first: this one may open a box and come back only when that is closed.
// While it is made nothing follows but in a loop that it began.
void Walker::Step() {
  if (!desktop_ || desktop_->ended()) return;
  next_step_.start(0);
  if (gesture_depth_ == LoopDepth()) return;
  if (leaving_) return Leave();
  Look();
  if (report_.steps >= plan_.steps || !report_.faults.isEmpty()) {
    leaving_ = true;
    return;
  }
  ++report_.steps;
  patience_.Renew();
  if (const forms::Form* top = desktop_->navigator().top()) ++report_.visits[top->name()];
  const int outer = std::exchange(gesture_depth_, LoopDepth());
  Gesture();
  gesture_depth_ = outer;
}

// Out of everything that waits for an answer, the innermost first.
void Walker::Leave() {
  if (QWidget* popup = QApplication::activePopupWidget()) {
    popup->close();
  } else if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
    box->buttons().constLast()->click();
  } else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
             dialog && !dynamic_cast<desktop::FormDialog*>(dialog)) {
    dialog->reject();
  } else if (const forms::Form* top = desktop_->navigator().top(); !top || !top->busy()) {
    desktop_->navigator().EndProgram();
  }
}

void Walker::Note(const QString& what) {
  const forms::Form* top = desktop_->navigator().top();
  const QString line = QStringLiteral("%1 %2: %3")
                           .arg(report_.steps)
                           .arg(top ? desktop::FromCore(top->name()) : QString(), what);
  last_steps_ << line;
  if (last_steps_.size() > kStepsToTell) last_steps_.removeFirst();
  QFile log(plan_.log);
  if (!plan_.log.isEmpty() && log.open(QIODevice::Append)) log.write(line.toUtf8() + '\n');
}

void Walker::Fault(const QString& what) {
  report_.faults << what + QStringLiteral("\nafter\n  ") + last_steps_.join(QStringLiteral("\n  "));
}

void Walker::Look() {
  for (const std::string& fault : StackFaults(desktop_->window(), desktop_->navigator())) {
    Fault(QString::fromStdString(fault));
  }
  QWidget* modal = QApplication::activeModalWidget();
  if (auto* files = qobject_cast<QFileDialog*>(modal)) return files->reject();
  if (!qobject_cast<QMessageBox*>(modal)) {
    stamp_before_box_ = FolderStamp();
  } else if (modal != last_box_) {
    LookAtBox(*modal);
  }
  last_box_ = modal;
}

void Walker::LookAtBox(QWidget& widget) {
  auto& box = static_cast<QMessageBox&>(widget);
  Note(QStringLiteral("the box \"%1\": \"%2\"").arg(box.windowTitle(), box.text()));
  if (box.windowTitle().isEmpty() || box.text().isEmpty()) Fault(QStringLiteral("an empty box"));
  if (box.buttons().isEmpty()) Fault(QStringLiteral("a box without a button"));
  const bool says_saved = box.text().contains(QStringLiteral("been saved"), Qt::CaseInsensitive) &&
                          !box.text().contains(QLatin1Char('?'));
  if (says_saved && FolderStamp() == stamp_before_box_) {
    Fault(QStringLiteral("a box says that something was saved, but no file was written"));
  }
}

// Changes with each write to the folder, of the same bytes too.
std::size_t Walker::FolderStamp() const {
  std::size_t stamp = 0;
  std::error_code error;
  for (const auto& entry :
       std::filesystem::directory_iterator(plan_.folders.user.toStdString(), error)) {
    const auto written = entry.last_write_time(error).time_since_epoch().count();
    stamp += std::hash<std::string>()(entry.path().string() + std::to_string(written));
  }
  return stamp;
}

int Walker::Random(int below) {
  return static_cast<int>(random_() % static_cast<unsigned>(std::max(below, 1)));
}

void Walker::Gesture() {
  const int kind = Random(100);
  if (kind < 45) return Click();
  if (kind < 80) return PressKey();
  if (kind < 90) return Wheel();
  if (kind < 98) return TypeText();
  CloseWindow();
}

// The window that takes part at present: an open menu, a box, else the window of the form on top.
QWidget* Walker::Room() const {
  QWidget* popup = QApplication::activePopupWidget();
  return popup ? popup : Window();
}

// Keys for an open menu go through it: the menu may end at the first of them.
QWidget* Walker::Window() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (auto* page = desktop_->window().TopPage()) return page->window();
  return &desktop_->window();
}

// One that a person could point at, and the window itself now and then.
QWidget* Walker::RandomWidget() {
  QWidget* room = Room();
  std::vector<QWidget*> seen{room};
  for (QWidget* widget : room->findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->window() == room && !widget->visibleRegion().isEmpty() &&
        !kLeftAlone.contains(widget->objectName())) {
      seen.push_back(widget);
    }
  }
  // Twice, as most of what is seen are labels and frames.
  for (int tries = 0; tries < 2; ++tries) {
    QWidget* chosen = seen[static_cast<std::size_t>(Random(static_cast<int>(seen.size())))];
    if (tries == 1 || chosen->focusPolicy() != Qt::NoFocus) return chosen;
  }
  return room;
}

// In the window's own coordinates, on a part of the widget that isn't covered.
QPoint Walker::RandomPlace(QWidget& widget, QWidget& window) {
  const QRect seen = widget.visibleRegion().boundingRect();
  const QPoint place(seen.left() + Random(seen.width()), seen.top() + Random(seen.height()));
  return widget.mapTo(&window, place);
}

void Walker::Click() {
  const QPointer<QWidget> widget = RandomWidget();
  QWidget* window = widget->window();
  if (!window->windowHandle()) return;
  const QPoint place = RandomPlace(*widget, *window);
  const Qt::MouseButton button = Random(10) == 0 ? Qt::RightButton : Qt::LeftButton;
  const bool twice = Random(10) == 0;
  const bool shift = Random(12) == 0;
  Note(QStringLiteral("%1 %2 %3 at %4,%5")
           .arg(twice ? "double click" : "click", button == Qt::RightButton ? "right" : "left",
                Describe(*widget))
           .arg(place.x())
           .arg(place.y()));
  const Qt::KeyboardModifiers modifiers = shift ? Qt::ShiftModifier : Qt::NoModifier;
  if (twice) {
    QTest::mouseDClick(window->windowHandle(), button, modifiers, place);
  } else {
    QTest::mouseClick(window->windowHandle(), button, modifiers, place);
  }
}

// What the fields, choices and marks of the form on top hold.
std::vector<std::string> Walker::Content() {
  std::vector<std::string> content;
  const forms::Form* top = desktop_->navigator().top();
  if (!top) return content;
  for (forms::Control* control : top->AllControls()) {
    if (auto* field = dynamic_cast<forms::TextField*>(control)) {
      content.push_back(control->name() + "=" + field->text());
    } else if (auto* combo = dynamic_cast<forms::ComboBox*>(control)) {
      content.push_back(control->name() + "=" + std::to_string(combo->selected()));
    } else if (auto* option = dynamic_cast<forms::Option*>(control)) {
      content.push_back(control->name() + (option->chosen() ? "=1" : "=0"));
    } else if (auto* box = dynamic_cast<forms::CheckBox*>(control)) {
      content.push_back(control->name() + (box->checked() ? "=1" : "=0"));
    }
  }
  return content;
}

void Walker::Wheel() {
  QWidget* widget = RandomWidget();
  QWidget* window = widget->window();
  if (!window->windowHandle()) return;
  const QPoint place = RandomPlace(*widget, *window);
  const bool up = Random(2) == 0;
  const bool zoom = Random(8) == 0;
  Note(QStringLiteral("wheel over ") + Describe(*widget));
  const auto before = Content();
  QWheelEvent wheel(place, window->mapToGlobal(place), {}, QPoint(0, up ? 120 : -120), Qt::NoButton,
                    zoom ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&wheel);
  QCoreApplication::sendEvent(window->windowHandle(), &wheel);
  if (desktop_ && Content() != before) Fault(QStringLiteral("the wheel changed a choice"));
}

void Walker::PressKey() {
  QWindow* window = Window()->windowHandle();
  if (!window) return;
  const int kind = Random(10);
  int key = kKeys[static_cast<std::size_t>(Random(static_cast<int>(kKeys.size())))];
  Qt::KeyboardModifiers modifiers;
  if (kind < 4) {
    key = Qt::Key_A + Random(26);
    modifiers = kind == 3 ? Qt::ControlModifier : Qt::AltModifier;
  } else if (kind == 4) {
    modifiers = Random(2) == 0 ? Qt::ShiftModifier : Qt::ControlModifier;
  }
  Note(QStringLiteral("key ") + QKeySequence(static_cast<int>(modifiers) | key).toString());
  QTest::keyClick(window, static_cast<Qt::Key>(key), modifiers);
}

void Walker::TypeText() {
  const QStringList texts{QStringLiteral("Dentist"),
                          QStringLiteral("9:30"),
                          QStringLiteral("0"),
                          QStringLiteral("99"),
                          QStringLiteral("i recieve teh"),
                          QStringLiteral("12/31/2026"),
                          QString::fromUtf8("Zürich \xE2\x82\xAC")};
  const QString& text = texts[Random(static_cast<int>(texts.size()))];
  Note(QStringLiteral("type ") + text);
  for (const QChar letter : text) {
    QWindow* window = desktop_ && !desktop_->ended() ? Window()->windowHandle() : nullptr;
    if (!window) return;
    QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, QString(letter), Qt::NoModifier);
  }
}

void Walker::CloseWindow() {
  QWidget* room = Room();
  Note(QStringLiteral("close ") + Describe(*room));
  room->close();
}

}  // namespace tarnwell::testing
