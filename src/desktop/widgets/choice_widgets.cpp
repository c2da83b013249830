#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QRadioButton>
#include <QWheelEvent>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/drop_down.h"
#include "desktop/widgets/item_model.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr std::size_t kMostMeasured = 500;  // entries
constexpr int kLettersOfLong = 30;          // room for the chosen one of a longer list

// Picks only what a person meant. The wheel over a closed list scrolls the screen, not the choice,
// and keys change it only for a person who went into it, by a click or with Tab.
class DropDown : public QComboBox {
 public:
  DropDown() {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(kMostShown);
  }

  void showPopup() override {
    entered_ = true;
    QComboBox::showPopup();
  }

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

  void focusInEvent(QFocusEvent* event) override {
    const Qt::FocusReason reason = event->reason();
    if (!Binding::Showing() &&
        (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
         reason == Qt::MouseFocusReason || reason == Qt::ShortcutFocusReason)) {
      entered_ = true;
    }
    QComboBox::focusInEvent(event);
  }

  void focusOutEvent(QFocusEvent* event) override {
    // Another window, the menu bar and the open list only borrow the keys.
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
        reason != Qt::MenuBarFocusReason && !view()->isVisible()) {
      entered_ = false;
    }
    QComboBox::focusOutEvent(event);
  }

  void keyPressEvent(QKeyEvent* event) override {
    const bool opens = event->key() == Qt::Key_Space || event->key() == Qt::Key_F4 ||
                       (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier);
    if (entered_ || opens) return QComboBox::keyPressEvent(event);
    event->ignore();
  }

 private:
  bool entered_ = false;
};

// A choice whose focus is seen however it got it; the style shows it after Tab alone.
template <typename Button>
class FramedChoice : public Button {
 public:
  using Button::Button;

 protected:
  void paintEvent(QPaintEvent* event) override {
    Button::paintEvent(event);
    if (!Button::hasFocus()) return;
    QPainter painter(this);
    painter.setPen(Button::palette().color(QPalette::Link));
    painter.drawRect(Button::rect().adjusted(0, 0, -1, -1));
  }
};

}  // namespace

void FitWidth(QComboBox* box, std::size_t items) {
  const bool is_long = items > kMostMeasured;
  box->setSizeAdjustPolicy(is_long ? QComboBox::AdjustToMinimumContentsLengthWithIcon
                                   : QComboBox::AdjustToContents);
  box->setMinimumContentsLength(is_long ? kLettersOfLong : 0);
}

bool ShowItems(QComboBox* box, const std::vector<std::string>& items) {
  QStringList wanted;
  for (const std::string& item : items) wanted << FromCore(item);
  QStringList shown;
  for (int i = 0; i < box->count(); ++i) shown << box->itemText(i);
  if (wanted == shown) return false;
  box->clear();
  box->addItems(wanted);
  return true;
}

// The group of the controls decides what is chosen, wherever its options lie; Qt's own exclusive
// groups, which go by parent widget, stay off.
QWidget* Widget(forms::Option& option) {
  auto* button = new FramedChoice<QRadioButton>(FromCore(option.caption()));
  button->setAutoExclusive(false);
  auto* binding = new Binding(button, option, [button, &option] {
    button->setChecked(option.chosen());
    NameForScreenReader(button, option, option.caption());
  });
  QObject::connect(button, &QRadioButton::clicked, binding,
                   binding->Forward([&option](bool) { option.Click(); }));
  return button;
}

QWidget* Widget(forms::CheckBox& box) {
  auto* button = new FramedChoice<QCheckBox>;
  auto* binding = new Binding(button, box, [button, &box] {
    button->setText(FromCore(box.caption()));
    button->setChecked(box.checked());
    NameForScreenReader(button, box, box.caption());
  });
  QObject::connect(button, &QCheckBox::clicked, binding,
                   binding->Forward([&box](bool checked) { box.Check(checked); }));
  return button;
}

QWidget* Widget(forms::ComboBox& combo) {
  auto* box = new DropDown;
  box->setMaxVisibleItems(16);
  auto* model = new ItemModel(combo, box);
  FitWidth(box, combo.items().size());
  box->setModel(model);
  if (auto* list = qobject_cast<QListView*>(box->view())) list->setUniformItemSizes(true);
  auto* binding = new Binding(box, combo, [box, model, &combo] {
    if (combo.change() == forms::ListChange::kItems) FitWidth(box, combo.items().size());
    model->Follow();
    box->setCurrentIndex(combo.selected());
  });
  QObject::connect(box, &QComboBox::activated, binding,
                   binding->Forward([&combo](int index) { combo.Pick(index); }));
  return box;
}

}  // namespace tarnwell::desktop
