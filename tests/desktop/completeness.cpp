#include "desktop/completeness.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <map>

#include "desktop/widgets/month_calendar.h"
#include "desktop/widgets/text.h"
#include "forms/label.h"
#include "forms/mnemonics.h"
#include "forms/panel.h"
#include "forms/timer.h"

namespace tarnwell::testing {
namespace {

using desktop::FromCore;

QWidget* WidgetOf(const forms::Control& control, QWidget& page) {
  return page.findChild<QWidget*>(FromCore(control.name()));
}

// A label has nothing to be called while it is empty, a panel without a title only groups.
bool MayBeNameless(const forms::Control& control) {
  const auto* label = dynamic_cast<const forms::Label*>(&control);
  const auto* panel = dynamic_cast<const forms::Panel*>(&control);
  return (label && label->caption().empty()) || (panel && panel->caption().empty());
}

bool TextFits(QWidget& widget) {
  if (auto* label = qobject_cast<QLabel*>(&widget)) {
    if (label->wordWrap()) return label->heightForWidth(label->width()) <= label->height();
    return label->text().isEmpty() || (label->width() >= label->sizeHint().width() &&
                                       label->height() >= label->sizeHint().height());
  }
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
    return line->fontMetrics().horizontalAdvance(line->text()) <= line->contentsRect().width() &&
           line->height() >= line->sizeHint().height();
  }
  if (qobject_cast<QAbstractButton*>(&widget) || qobject_cast<QComboBox*>(&widget) ||
      dynamic_cast<desktop::MonthCalendar*>(&widget)) {
    return widget.width() >= widget.sizeHint().width() &&
           widget.height() >= widget.sizeHint().height();
  }
  return true;
}

bool SticksOut(QWidget& widget, QWidget& page) {
  QRect place(QPoint(), widget.size());
  for (QWidget* inner = &widget; inner != &page; inner = inner->parentWidget()) {
    place.translate(inner->pos());
    if (!inner->parentWidget()->rect().contains(place)) return true;
  }
  return false;
}

std::string Describe(QWidget& widget) {
  QString text = widget.accessibleName();
  if (auto* label = qobject_cast<QLabel*>(&widget)) text = label->text();
  return (widget.objectName() + " \"" + text + "\"").toStdString();
}

}  // namespace

std::vector<std::string> PlacingFaults(forms::Form& form, QWidget& page) {
  std::vector<std::string> faults;
  for (forms::Control* control : form.AllControls()) {
    const auto found = page.findChildren<QObject*>(FromCore(control->name())).size();
    if (found == 0) faults.push_back("not placed: " + control->name());
    if (found > 1) faults.push_back("placed twice: " + control->name());
  }
  return faults;
}

std::vector<std::string> NamingFaults(forms::Form& form, QWidget& page) {
  std::vector<std::string> faults;
  for (forms::Control* control : form.AllControls()) {
    QWidget* widget = WidgetOf(*control, page);
    if (widget && control->visible() && widget->accessibleName().isEmpty() &&
        !MayBeNameless(*control)) {
      faults.push_back("nameless: " + control->name());
    }
  }
  return faults;
}

std::vector<std::string> MnemonicFaults(forms::Form& form) {
  std::map<const forms::Container*, std::map<char, std::string>> used;
  std::vector<std::string> faults;
  for (forms::Control* control : form.AllControls()) {
    const char mnemonic = forms::MnemonicOf(forms::CaptionOf(*control));
    if (mnemonic == 0 || !control->visible()) continue;
    const auto [first, is_new] = used[&control->parent()].emplace(mnemonic, control->name());
    if (!is_new) {
      faults.push_back(std::string("mnemonic ") + mnemonic + ": " + first->second + " and " +
                       control->name());
    }
  }
  return faults;
}

std::string Text(QSize size) {
  return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

std::vector<std::string> CutOffFaults(QWidget& page) {
  std::vector<std::string> faults;
  for (QWidget* widget : page.findChildren<QWidget*>()) {
    // A combo box's own list isn't part of the page.
    if (!widget->isVisibleTo(&page) || widget->window() != page.window()) continue;
    if (!TextFits(*widget)) {
      const QSize wanted = widget->sizeHint();
      faults.push_back("cut off: " + Describe(*widget) + ", " + Text(widget->size()) + " of " +
                       Text(wanted));
    }
    if (SticksOut(*widget, page)) faults.push_back("sticks out: " + Describe(*widget));
  }
  return faults;
}

std::vector<std::string> AllFaults(forms::Form& form, QWidget& page) {
  std::vector<std::string> all;
  for (const auto& faults : {PlacingFaults(form, page), NamingFaults(form, page),
                             MnemonicFaults(form), CutOffFaults(page)}) {
    all.insert(all.end(), faults.begin(), faults.end());
  }
  return all;
}

}  // namespace tarnwell::testing
