#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <functional>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/page_fonts.h"
#include "desktop/widgets/spoken_role.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr int kFocusFrame = 2;  // pixels

class TextLabel : public QLabel {
 public:
  bool is_caption = false;
  bool is_link = false;
  std::function<void()> on_click;

  void SetColor(const QColor& color) {
    color_ = color;
    ShowColor();
  }

  // The keyboard reaches a label that can be clicked.
  void SetClickable() {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    SetSpokenRole(this, is_link ? QAccessible::Link : QAccessible::PushButton, true);
    setMargin(kFocusFrame);
  }

 protected:
  // Around it lies another ground.
  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange) {
      ShowColor();
    }
  }

  void enterEvent(QEnterEvent* event) override {
    QLabel::enterEvent(event);
    ShowLink(true);
  }

  void leaveEvent(QEvent* event) override {
    QLabel::leaveEvent(event);
    ShowLink(hasFocus());
  }

  void focusInEvent(QFocusEvent* event) override {
    QLabel::focusInEvent(event);
    ShowLink(true);
  }

  void focusOutEvent(QFocusEvent* event) override {
    QLabel::focusOutEvent(event);
    ShowLink(underMouse());
  }

  void paintEvent(QPaintEvent* event) override {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Link), kFocusFrame));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }

  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    const bool clicks = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!on_click || !clicks) return QLabel::keyPressEvent(event);
    on_click();
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && on_click) on_click();
  }

 private:
  void ShowColor() {
    if (!color_.isValid()) return;
    const QColor letters = Readable(color_, palette().color(QPalette::Window));
    if (letters == palette().color(QPalette::WindowText)) return;
    QPalette colors;
    colors.setColor(QPalette::WindowText, letters);
    setPalette(colors);
  }

  void ShowLink(bool shown) {
    if (!is_link) return;
    QFont letters = font();
    letters.setUnderline(shown);
    setFont(letters);
    QPalette colors;
    if (shown) colors.setColor(QPalette::WindowText, palette().color(QPalette::Link));
    setPalette(colors);
  }

  QColor color_;  // where it has one of its own
};

QFont FontOf(forms::LabelRole role) {
  switch (role) {
    case forms::LabelRole::kTitle:
      return ScaledFont(TextSize::kTitle);
    case forms::LabelRole::kHeading:
      return ScaledFont(TextSize::kHeading);
    case forms::LabelRole::kNote:
      return ScaledFont(TextSize::kNote);
    case forms::LabelRole::kText:
    case forms::LabelRole::kLink:
      break;
  }
  return ScaledFont(TextSize::kText);
}

// A sample of a large font mustn't push everything else off the screen.
QFont SampleFont(const forms::Font& font) {
  constexpr double kLargestSample = 24;  // points
  QFont sample = ScreenFont(font);
  sample.setPointSizeF(std::min(sample.pointSizeF(), kLargestSample));
  return sample;
}

// A user's name may be one word without end: it can be broken where it is very long.
QString WithBreaks(QString text) {
  constexpr int kLongestWord = 24;  // letters
  int letters = 0;
  for (int i = 0; i < text.size(); ++i) {
    letters = text[i].isSpace() ? 0 : letters + 1;
    if (letters <= kLongestWord) continue;
    text.insert(i++, QChar(0x200B));
    letters = 1;
  }
  return text;
}

}  // namespace

QWidget* Widget(forms::Label& label) {
  auto* widget = new TextLabel;
  widget->setTextFormat(Qt::PlainText);
  widget->setFont(FontOf(label.role()));
  widget->is_link = label.role() == forms::LabelRole::kLink;
  if (label.on_click) widget->SetClickable();
  auto* binding = new Binding(widget, label, [widget, &label] {
    const QString text = widget->is_caption ? Spoken(label.caption()) : FromCore(label.caption());
    widget->setText(widget->wordWrap() ? WithBreaks(text) : text);
    if (label.font()) widget->setFont(SampleFont(*label.font()));
    if (label.color()) widget->SetColor(ToQColor(*label.color()));
    if (!label.caption().empty()) widget->setAccessibleName(text);
  });
  if (label.on_click) widget->on_click = binding->Forward([&label] { label.Click(); });
  return widget;
}

QWidget* Wrapped(QWidget* label) {
  if (auto* text = qobject_cast<QLabel*>(label)) text->setWordWrap(true);
  return label;
}

QWidget* Captioned(QWidget* label) {
  if (auto* text = dynamic_cast<TextLabel*>(label)) {
    text->is_caption = true;
    text->setText(Spoken(ToCore(text->text())));
    text->setAccessibleName(text->text());
  }
  return label;
}

}  // namespace tarnwell::desktop
