#include "walk/soundness.h"

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QStackedWidget>

#include "desktop/form_dialog.h"
#include "desktop/widgets/text.h"

namespace tarnwell::testing {
namespace {

using desktop::FromCore;

std::string NameOf(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  return std::string(widget.metaObject()->className()) + " " + widget.objectName().toStdString() +
         (parent ? " in " + parent->objectName().toStdString() : std::string());
}

std::vector<std::string> ChromeFaults(desktop::MainWindow& window, desktop::FormPage& page) {
  std::vector<std::string> faults;
  forms::Form& form = page.form();
  const QString mark = form.unsaved() ? QStringLiteral("* ") : QString();
  if (page.window()->windowTitle() != mark + FromCore(form.caption())) {
    faults.push_back("the title isn't that of " + form.name());
  }
  if (page.window() != &window) return faults;
  if (static_cast<QStackedWidget*>(window.centralWidget())->currentWidget() != &page) {
    faults.push_back("another page lies over " + form.name());
  }
  QList<QAction*> menus;
  for (const auto& menu : page.menus()) menus << menu->menuAction();
  if (window.menuBar()->actions() != menus) faults.push_back("the menus aren't " + form.name());
  if (window.menuBar()->isEnabled() != form.menus().enabled()) {
    faults.push_back("the menu bar is dead or alive against the will of " + form.name());
  }
  return faults;
}

}  // namespace

std::vector<std::string> StackFaults(desktop::MainWindow& window, forms::Navigator& navigator) {
  if (navigator.ended()) return {};
  if (!navigator.top()) return {"no form is loaded"};
  std::vector<std::string> faults;
  desktop::FormPage* page = window.TopPage();
  if (!page) return {"no page for " + navigator.top()->name()};
  if (!page->isVisible()) faults.push_back(navigator.top()->name() + " can't be seen");
  for (std::string& fault : ChromeFaults(window, *page)) faults.push_back(std::move(fault));
  for (const std::string& name : navigator.Names()) {
    const forms::Form* form = navigator.Find(name);
    if (form && !window.PageOf(*form)) faults.push_back("no page for " + name);
  }
  for (QWidget* dialog : QApplication::topLevelWidgets()) {
    auto* left = dynamic_cast<desktop::FormDialog*>(dialog);
    if (left && left->isVisible() && left != page->window()) {
      faults.push_back("a dialogue is left over");
    }
  }
  QWidget* focus = QApplication::focusWidget();
  if (focus && focus->window() == page->window() && (!focus->isVisible() || !focus->isEnabled())) {
    faults.push_back("the keys go to " + NameOf(*focus) + ", which can't be used");
  }
  return faults;
}

}  // namespace tarnwell::testing
