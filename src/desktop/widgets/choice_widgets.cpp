#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QWheelEvent>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

// Picks only what a person meant: the wheel over a list that merely lies under the pointer scrolls
// the screen, not the choice.
class DropDown : public QComboBox {
 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

void ShowItems(QComboBox* box, const forms::ComboBox& combo) {
  QStringList items;
  for (const std::string& item : combo.items()) items << FromCore(item);
  QStringList shown;
  for (int i = 0; i < box->count(); ++i) shown << box->itemText(i);
  if (items == shown) return;
  box->clear();
  box->addItems(items);
}

}  // namespace

// The group of the controls decides what is chosen, wherever its options lie; Qt's own exclusive
// groups, which go by parent widget, stay off.
QWidget* Widget(forms::Option& option) {
  auto* button = new QRadioButton(FromCore(option.caption()));
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
  auto* button = new QCheckBox(FromCore(box.caption()));
  auto* binding = new Binding(button, box, [button, &box] {
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
  box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  auto* binding = new Binding(box, combo, [box, &combo] {
    ShowItems(box, combo);
    box->setCurrentIndex(combo.selected());
  });
  QObject::connect(box, &QComboBox::activated, binding,
                   binding->Forward([&combo](int index) { combo.Pick(index); }));
  return box;
}

}  // namespace tarnwell::desktop
