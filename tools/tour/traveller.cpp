#include "tour/traveller.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "desktop/widgets/text.h"

namespace tarnwell::testing {
namespace {

constexpr int kMomentMs = 60;
constexpr int kSplashIsUpMs = 1500;
constexpr int kLookForBoxMs = 30;

QString TextOf(QWidget* widget) {
  if (auto* line = qobject_cast<QLineEdit*>(widget)) return line->text();
  if (auto* label = qobject_cast<QLabel*>(widget)) return label->text();
  return {};
}

}  // namespace

Traveller::Traveller(QString pictures) : pictures_(std::move(pictures)) {
  watch_.callOnTimeout([this] { DismissUnexpectedBox(); });
  watch_.start(kLookForBoxMs);
}

// Nobody else would answer it, and the journey would never end.
void Traveller::DismissUnexpectedBox() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (!box || expects_box_) return;
  Note(QStringLiteral("nobody expected the box ") + box->windowTitle());
  box->buttons().constFirst()->click();
}

QWidget* Traveller::Find(const char* control) {
  forms::Form* top = desktop_->navigator().top();
  desktop::FormPage* page = top ? desktop_->window().PageOf(*top) : nullptr;
  auto* widget = page ? page->findChild<QWidget*>(QLatin1String(control)) : nullptr;
  if (!widget || !widget->isVisible()) {
    Note(QStringLiteral("%1 isn't to be seen").arg(QLatin1String(control)));
    return nullptr;
  }
  return widget;
}

void Traveller::ExpectTop(const char* form) {
  QTest::qWait(kMomentMs);
  const forms::Form* top = desktop_->navigator().top();
  const QString name = top ? desktop::FromCore(top->name()) : QString();
  if (name != QLatin1String(form)) {
    Note(QStringLiteral("%1 is on top instead of %2").arg(name, QLatin1String(form)));
  }
}

void Traveller::ExpectText(const char* control, const QString& text) {
  QWidget* widget = Find(control);
  if (widget && TextOf(widget) != text) {
    Note(QStringLiteral("%1 shows \"%2\" instead of \"%3\"")
             .arg(QLatin1String(control), TextOf(widget), text));
  }
}

void Traveller::Click(const char* control) {
  if (QWidget* widget = Find(control)) QTest::mouseClick(widget, Qt::LeftButton);
}

void Traveller::Type(const QString& text) {
  for (const QChar letter : text) {
    // The first letter in a cell opens its editor, which takes the others.
    QWidget* focus = desktop_->window().focusWidget();
    if (!focus) return Note(QStringLiteral("nothing takes the keys"));
    QTest::keyClicks(focus, letter);
  }
}

void Traveller::Press(Qt::Key key) {
  QWidget* focus = desktop_->window().focusWidget();
  QTest::keyClick(focus ? focus : &desktop_->window(), key);
}

void Traveller::ChooseFromMenu(const char* name) {
  if (const forms::Form* top = desktop_->navigator().top()) {
    for (const auto& menu : desktop_->window().PageOf(*top)->menus()) {
      if (auto* action = menu->findChild<QAction*>(QLatin1String(name))) return action->trigger();
    }
  }
  Note(QStringLiteral("no menu entry %1").arg(QLatin1String(name)));
}

void Traveller::Answer(const QString& title, QMessageBox::StandardButton button,
                       const std::function<void()>& act, const char* picture) {
  AnswerAll({{title, button}}, act, picture);
}

void Traveller::AnswerAll(const std::vector<Box>& boxes, const std::function<void()>& act,
                          const char* picture) {
  std::size_t answered = 0;
  QTimer look;
  look.callOnTimeout([&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || answered == boxes.size()) return;
    const Box& expected = boxes[answered++];
    if (box->windowTitle() != expected.title) Note(QStringLiteral("the box ") + box->windowTitle());
    if (picture && answered == 1) TakePicture(picture);
    expects_box_ = answered < boxes.size();
    QTest::mouseClick(box->button(expected.button), Qt::LeftButton);
  });
  look.start(kLookForBoxMs);
  expects_box_ = true;
  act();
  expects_box_ = false;
  for (; answered < boxes.size(); ++answered) {
    Note(QStringLiteral("no box ") + boxes[answered].title);
  }
}

void Traveller::FillIn(const QString& title, const QString& text,
                       const std::function<void()>& act) {
  bool filled = false;
  QTimer look;
  look.callOnTimeout([&] {
    QWidget* box = QApplication::activeModalWidget();
    auto* line = box ? box->findChild<QLineEdit*>() : nullptr;
    if (!line || filled || box->windowTitle() != title) return;
    filled = true;
    QTest::keyClicks(line, text);
    QTest::keyClick(line, Qt::Key_Return);
  });
  look.start(kLookForBoxMs);
  act();
  if (!filled) Note(QStringLiteral("no line ") + title);
}

void Traveller::Meet(const char* form, const std::function<void()>& act,
                     const std::function<void()>& in_form) {
  bool met = false;
  QTimer look;
  look.callOnTimeout([&] {
    const forms::Form* top = desktop_->navigator().top();
    if (met || !top || top->name() != form) return;
    met = true;
    in_form();
  });
  look.start(kLookForBoxMs);
  act();
  if (!met) Note(QStringLiteral("no form ") + QLatin1String(form));
}

// Windows lie on the screen as they would for a person, on any platform that Qt draws on.
void Traveller::TakePicture(const char* name) {
  if (pictures_.isEmpty()) return;
  QTest::qWait(kMomentMs);
  QImage picture(QGuiApplication::primaryScreen()->size(), QImage::Format_RGB32);
  picture.fill(QColor(0x30, 0x34, 0x38));
  QPainter painter(&picture);
  QWidgetList windows{&desktop_->window()};
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (qobject_cast<QDialog*>(widget)) windows << widget;
  }
  for (QWidget* window : windows) {
    if (window->isVisible()) painter.drawPixmap(window->geometry().topLeft(), window->grab());
  }
  const QString file = QStringLiteral("%1-%2.png")
                           .arg(++pictures_taken_, 2, 10, QLatin1Char('0'))
                           .arg(QLatin1String(name));
  if (!picture.save(QDir(pictures_).filePath(file))) Note("can't save " + file);
}

void Traveller::TakePictureSoon(const char* name) {
  QTimer::singleShot(kSplashIsUpMs, &desktop_->window(), [this, name] { TakePicture(name); });
}

}  // namespace tarnwell::testing
