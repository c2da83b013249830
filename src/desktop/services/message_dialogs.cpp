#include "desktop/services/message_dialogs.h"

#include <QCloseEvent>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpacerItem>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "desktop/services/font_dialog.h"
#include "desktop/services/modal_question.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"
#include "forms/text_field.h"

namespace tarnwell::desktop {
namespace {

QMessageBox::Icon IconOf(forms::Icon icon) {
  switch (icon) {
    case forms::Icon::kNone:
      return QMessageBox::NoIcon;
    case forms::Icon::kInformation:
      return QMessageBox::Information;
    case forms::Icon::kExclamation:
      return QMessageBox::Warning;
    case forms::Icon::kQuestion:
      return QMessageBox::Question;
    case forms::Icon::kCritical:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

// A box of Yes and No has no third answer that would do nothing, so it stays until one of the two
// is pressed: neither Esc nor its close box may count as a No that drops what was written.
class Box : public QMessageBox {
 public:
  Box(QWidget* asker, bool stays) : QMessageBox(asker), stays_(stays) {
    // Not for the whole application: the help window beside the program stays usable.
    if (asker) setWindowModality(Qt::WindowModal);
    if (stays_) setWindowFlag(Qt::WindowCloseButtonHint, false);
  }

  void reject() override {
    if (!stays_) QMessageBox::reject();
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (stays_ && event->matches(QKeySequence::Cancel)) return;
    QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override {
    if (stays_) return event->ignore();
    QMessageBox::closeEvent(event);
  }

 private:
  bool stays_;
};

constexpr int kLongestLine = 80;  // letters

// A prompt, and below it one line to type in.
class LineBox : public QDialog {
 public:
  LineBox(QWidget* asker, const forms::InputBox& box) : QDialog(asker) {
    if (asker) setWindowModality(Qt::WindowModal);
    setWindowTitle(FromCore(box.title));
    auto* prompt = new QLabel(FromCore(box.prompt));
    prompt->setTextFormat(Qt::PlainText);
    prompt->setBuddy(line_);
    const int most = kLongestLine * prompt->fontMetrics().averageCharWidth();
    if (prompt->sizeHint().width() > most) {
      prompt->setWordWrap(true);
      prompt->setMinimumWidth(most);
    }
    // What stands there at first may be longer than what can be typed.
    line_->setMaxLength(static_cast<int>(std::max(box.max_length, box.text.size())));
    line_->setText(FromCore(box.text));
    line_->selectAll();
    line_->setAccessibleName(prompt->text());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    for (QWidget* part : {static_cast<QWidget*>(prompt), static_cast<QWidget*>(line_),
                          static_cast<QWidget*>(buttons)}) {
      column->addWidget(part);
    }
    line_->setFocus();
  }

  std::string text() const {
    return forms::TypedText(ToCore(line_->text()), static_cast<std::size_t>(line_->maxLength()));
  }

 private:
  QLineEdit* line_ = new QLineEdit;
};

// Gives the box room for its title, and for the lines of its text as they were broken, where these
// are of a usual length.
void Widen(QMessageBox& window) {
  constexpr int kTitleButtons = 180;  // pixels, and the icon in the title
  constexpr int kIconAndEdges = 110;
  auto* grid = qobject_cast<QGridLayout*>(window.layout());
  if (!grid) return;
  window.ensurePolished();
  const QFontMetrics letters = window.fontMetrics();
  const int title = letters.horizontalAdvance(window.windowTitle());
  const int lines = letters.size(0, window.text()).width();
  const bool is_usual = lines <= kLongestLine * letters.averageCharWidth();
  const int width = std::max(title + kTitleButtons, is_usual ? lines + kIconAndEdges : 0);
  grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

// In the order that a default button's number counts; the last one answers Esc and the close box
// where the box may be closed by them.
std::vector<QMessageBox::StandardButton> ButtonsOf(forms::Buttons buttons) {
  switch (buttons) {
    case forms::Buttons::kOk:
      return {QMessageBox::Ok};
    case forms::Buttons::kOkCancel:
      return {QMessageBox::Ok, QMessageBox::Cancel};
    case forms::Buttons::kYesNo:
      return {QMessageBox::Yes, QMessageBox::No};
    case forms::Buttons::kYesNoCancel:
      return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
  }
  return {QMessageBox::Ok};
}

forms::Answer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return forms::Answer::kYes;
    case QMessageBox::No:
      return forms::Answer::kNo;
    case QMessageBox::Cancel:
      return forms::Answer::kCancel;
    default:
      return forms::Answer::kOk;
  }
}

forms::ChosenPicture PictureFileOf(const QString& name) {
  // A pipe or a device would never end.
  if (!QFileInfo(name).isFile()) return {{}, storage::Fault::kNotPlain};
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) {
    const bool is_forbidden =
        file.error() == QFileDevice::PermissionsError || !QFileInfo(name).isReadable();
    return {{}, is_forbidden ? storage::Fault::kNotPermitted : storage::Fault::kBroken};
  }
  const QByteArray bytes = file.read(static_cast<qint64>(forms::kLargestPicture) + 1);
  if (file.error() != QFileDevice::NoError) return {{}, storage::Fault::kBroken};
  if (bytes.size() > static_cast<qsizetype>(forms::kLargestPicture)) {
    return {{}, storage::Fault::kTooLarge};
  }
  return {bytes.toStdString(), storage::Fault::kNone};
}

}  // namespace

forms::Answer MessageDialogs::Message(const forms::MessageBox& box) {
  const ModalQuestion question;
  Box window(question.asker(), box.buttons == forms::Buttons::kYesNo);
  window.setWindowTitle(FromCore(box.title));
  window.setTextFormat(Qt::PlainText);
  window.setText(FromCore(box.text));
  window.setIcon(IconOf(box.icon));
  const auto buttons = ButtonsOf(box.buttons);
  int number = 0;
  for (const auto button : buttons) {
    QPushButton* made = window.addButton(button);
    if (++number == box.default_button) window.setDefaultButton(made);
    window.setEscapeButton(made);
  }
  Widen(window);
  return AnswerOf(window.exec());
}

std::optional<std::string> MessageDialogs::Input(const forms::InputBox& box) {
  const ModalQuestion question;
  LineBox window(question.asker(), box);
  if (window.exec() != QDialog::Accepted) return std::nullopt;
  return window.text();
}

std::optional<forms::Color> MessageDialogs::ChooseColor(forms::Color start) {
  const ModalQuestion question;
  const QColor chosen = QColorDialog::getColor(ToQColor(start), question.asker());
  if (!chosen.isValid()) return std::nullopt;
  return FromQColor(chosen);
}

std::optional<forms::FontParts> MessageDialogs::ChooseFont(const forms::FontParts& start) {
  const ModalQuestion question;
  FontDialog dialog(start, question.asker());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.changes();
}

std::optional<forms::ChosenPicture> MessageDialogs::ChoosePicture() {
  const ModalQuestion question;
  const QString name = QFileDialog::getOpenFileName(
      question.asker(), QStringLiteral("Insert Picture"),
      QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
      QStringLiteral("Pictures (*.png *.jpg *.jpeg *.PNG *.JPG *.JPEG)"));
  if (name.isEmpty()) return std::nullopt;
  return PictureFileOf(name);
}

}  // namespace tarnwell::desktop
