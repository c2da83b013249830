#include "desktop/completeness.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionFrame>
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

// What a screen reader gets, by the way that it goes.
std::vector<std::string> SpokenFaults(const forms::Control& control, QWidget& widget) {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
  if (!spoken) return {"unknown to a screen reader"};
  std::vector<std::string> faults;
  if (spoken->text(QAccessible::Name).isEmpty() && !MayBeNameless(control)) {
    faults.emplace_back("nameless");
  }
  if (widget.focusPolicy() == Qt::NoFocus) return faults;
  if (spoken->text(QAccessible::Description).isEmpty()) faults.emplace_back("undescribed");
  const QAccessible::Role role = spoken->role();
  if (role == QAccessible::NoRole || role == QAccessible::Client) faults.emplace_back("of no kind");
  const auto* clickable = dynamic_cast<const forms::Clickable*>(&control);
  if (!clickable || !clickable->on_click || !widget.isEnabled()) return faults;
  QAccessibleActionInterface* actions = spoken->actionInterface();
  const bool is_pressed =
      actions && actions->actionNames().contains(QAccessibleActionInterface::pressAction());
  const bool is_toggled =
      actions && actions->actionNames().contains(QAccessibleActionInterface::toggleAction());
  if (!is_pressed && !is_toggled) faults.emplace_back("not to be pressed");
  return faults;
}

bool LineFits(const QLineEdit& line) {
  QStyleOptionFrame option;
  option.initFrom(&line);
  const QRect inside = line.style()->subElementRect(QStyle::SE_LineEditContents, &option, &line);
  // The cursor stands behind the last letter.
  return line.fontMetrics().horizontalAdvance(line.text()) < inside.width() &&
         line.height() >= line.sizeHint().height();
}

bool HeadingsFit(const QHeaderView& header) {
  for (int i = 0; i < header.count(); ++i) {
    if (!header.isSectionHidden(i) && header.sectionSize(i) < header.sectionSizeHint(i)) {
      return false;
    }
  }
  return header.height() >= header.sizeHint().height();
}

bool Holds(QSize place, QSize content) { return place.expandedTo(content) == place; }

bool TextFits(QWidget& widget) {
  if (auto* label = qobject_cast<QLabel*>(&widget)) {
    if (label->text().isEmpty()) return true;
    if (!label->wordWrap()) return Holds(label->size(), label->sizeHint());
    return label->heightForWidth(label->width()) <= label->height() &&
           label->width() >= label->minimumSizeHint().width();
  }
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
    return qobject_cast<QComboBox*>(line->parentWidget()) || LineFits(*line);
  }
  if (auto* header = qobject_cast<QHeaderView*>(&widget)) {
    return header->orientation() == Qt::Vertical || HeadingsFit(*header);
  }
  if (auto* bar = qobject_cast<QProgressBar*>(&widget)) {
    return Holds(bar->size(), bar->fontMetrics().size(Qt::TextSingleLine, bar->text()));
  }
  if (qobject_cast<QAbstractButton*>(&widget) || qobject_cast<QComboBox*>(&widget) ||
      qobject_cast<QMenuBar*>(&widget) || dynamic_cast<desktop::MonthCalendar*>(&widget)) {
    return Holds(widget.size(), widget.minimumSizeHint().expandedTo(widget.sizeHint()));
  }
  return true;
}

// The scroll area whose contents `widget` is, or nullptr.
QScrollArea* ScrollerOf(QWidget& widget) {
  QWidget* viewport = widget.parentWidget();
  auto* area = viewport ? qobject_cast<QScrollArea*>(viewport->parentWidget()) : nullptr;
  return area && area->widget() == &widget ? area : nullptr;
}

bool SticksOut(QWidget& widget, QWidget& page) {
  QRect place(QPoint(), widget.size());
  for (QWidget* inner = &widget; inner != &page; inner = inner->parentWidget()) {
    if (ScrollerOf(*inner)) return false;
    place.translate(inner->pos());
    if (!inner->parentWidget()->rect().contains(place)) return true;
  }
  return false;
}

// Where the widget shows a text on the page, without what lies outside a scroll area's view; empty
// for what only holds other widgets.
QRect SeenPlace(QWidget& widget, QWidget& page) {
  const auto* label = qobject_cast<QLabel*>(&widget);
  const bool shows_text = widget.focusPolicy() != Qt::NoFocus ||
                          qobject_cast<QProgressBar*>(&widget) ||
                          (label && !label->text().isEmpty());
  if (!shows_text) return {};
  QRect place(QPoint(), widget.size());
  for (QWidget* inner = &widget; inner != &page; inner = inner->parentWidget()) {
    place.translate(inner->pos());
    if (ScrollerOf(*inner)) place &= inner->parentWidget()->rect();
  }
  return place;
}

std::string Describe(QWidget& widget) {
  QString text = widget.accessibleName();
  if (auto* label = qobject_cast<QLabel*>(&widget)) text = label->text();
  // A part of a widget is called after it.
  QWidget* named = &widget;
  while (named->parentWidget() &&
         (named->objectName().isEmpty() || named->objectName().startsWith(QLatin1String("qt_")))) {
    named = named->parentWidget();
  }
  return (named->objectName() + " \"" + text + "\"").toStdString();
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
    if (!widget || !control->visible()) continue;
    for (const std::string& fault : SpokenFaults(*control, *widget)) {
      faults.push_back(fault + ": " + control->name());
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

std::vector<std::string> OverlapFaults(const std::vector<QWidget*>& widgets, QWidget& page) {
  std::vector<std::pair<QWidget*, QRect>> seen;
  std::vector<std::string> faults;
  for (QWidget* widget : widgets) {
    const QRect place = SeenPlace(*widget, page);
    if (place.isEmpty()) continue;
    for (const auto& [other, its_place] : seen) {
      if (!place.intersects(its_place) || other->isAncestorOf(widget)) continue;
      faults.push_back("over each other: " + Describe(*other) + " and " + Describe(*widget));
    }
    seen.emplace_back(widget, place);
  }
  return faults;
}

std::vector<std::string> CutOffFaults(QWidget& page) {
  std::vector<std::string> faults;
  std::vector<QWidget*> seen;
  for (QWidget* widget : page.findChildren<QWidget*>()) {
    // A combo box's own list isn't part of the page.
    if (!widget->isVisibleTo(&page) || widget->window() != page.window()) continue;
    seen.push_back(widget);
    if (!TextFits(*widget)) {
      const QSize wanted = widget->sizeHint();
      faults.push_back("cut off: " + Describe(*widget) + ", " + Text(widget->size()) + " of " +
                       Text(wanted));
    }
    if (SticksOut(*widget, page)) faults.push_back("sticks out: " + Describe(*widget));
  }
  const auto overlaps = OverlapFaults(seen, page);
  faults.insert(faults.end(), overlaps.begin(), overlaps.end());
  return faults;
}

std::vector<std::string> ScrollFaults(QWidget& page) {
  const auto* area = page.findChild<QScrollArea*>();
  std::vector<std::string> faults;
  if (!area) return faults;
  const QSize needed = area->widget()->size();
  const std::string sizes = ": " + Text(needed) + " in " + Text(area->size());
  if (area->horizontalScrollBar()->isVisible()) faults.push_back("scrolls sideways" + sizes);
  if (area->verticalScrollBar()->isVisible()) faults.push_back("scrolls" + sizes);
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
