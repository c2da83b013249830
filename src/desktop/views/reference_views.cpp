#include "desktop/views/main_screen.h"
#include "desktop/views/print_view.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "reference/infoadv.h"
#include "reference/toolsandinfo1.h"

namespace tarnwell::desktop {
namespace {

constexpr int kStateColumns = 4;
constexpr int kLettersOfCopyAndPaste = 34;
constexpr int kLettersOfSide = 42;
constexpr int kWholeShare = 100;

QWidget* Sites(reference::SiteButtons& sites) {
  QWidget* rows = Column({}, kTightSpace);
  for (std::size_t i = 0; i < sites.size(); ++i) {
    Append(rows,
           Row({Grow(Listed(Widget(sites.button(i)))), Grow(Wrapped(Widget(sites.address(i))))}));
  }
  return rows;
}

// In columns from left to right, the order of the alphabet downwards.
QWidget* States(forms::OptionGroup& state) {
  QWidget* columns = Row({}, kWideSpace);
  const int rows = (state.size() + kStateColumns - 1) / kStateColumns;
  for (int first = 0; first < state.size(); first += rows) {
    QWidget* column = Column({}, 0);
    for (int i = first; i < first + rows && i < state.size(); ++i) {
      Append(column, Widget(state.option(i)));
    }
    Append(column, Spring());
    Append(columns, column);
  }
  Append(columns, Spring());
  return columns;
}

QWidget* CopyAndPaste(reference::InfoAdv& form) {
  return AtMost(Column({Widget(form.copy_and_paste,
                               Column({Wrapped(Widget(form.copy_note)), Widget(form.address),
                                       Widget(form.display), Widget(form.clear)})),
                        Wrapped(Widget(form.note)), Spring()}),
                kLettersOfCopyAndPaste);
}

QWidget* ToolsSide(reference::ToolsandInfo1& form) {
  QWidget* buttons =
      Widget(form.side, Column({Listed(WithIcon("advisor", Widget(form.disclaimer))),
                                Listed(WithIcon("advisor", Widget(form.program_information))),
                                Listed(WithIcon("people", Widget(form.contacts))),
                                Listed(WithIcon("table", Widget(form.contact_display))),
                                Listed(WithIcon("template", Widget(form.incident_report))),
                                Listed(WithIcon("planner", Widget(form.planner))),
                                Listed(WithIcon("month", Widget(form.calendar)))},
                               kHairSpace));
  QWidget* links = Column({InSize(TextSize::kStrong, Wrapped(Widget(form.link_heading))),
                           Wrapped(Widget(form.link_note)), Wrapped(Widget(form.link_trouble))},
                          0);
  for (std::size_t i = 0; i < form.links.size(); ++i) {
    Append(links, InSize(TextSize::kNote, Wrapped(Widget(form.links[i]))));
  }
  return AtMost(Column({buttons, Widget(form.link_panel, links), Spring()}), kLettersOfSide);
}

}  // namespace

QWidget* View(reference::InfoAdv& form, PictureStore&) {
  QWidget* side =
      Widget(form.side, Row({Widget(form.sides[0]), Widget(form.sides[1]), Widget(form.sides[2])}));
  QWidget* shown = Column(
      {Wrapped(Widget(form.trouble)), Grow(Widget(form.text_panel, Widget(form.text))),
       AtTop(Widget(form.federal, Sites(form.federal_sites))),
       AtTop(Widget(form.states, Column({States(form.state),
                                         Widget(form.state_panel, Sites(form.state_sites))})))});
  return MainScreenView(
      form.main_buttons,
      Column({Row({InSize(TextSize::kHeading, Widget(form.title)), Spring(), side}),
              Grow(Row({Grow(shown), CopyAndPaste(form)}, kWideSpace))}));
}

QWidget* View(reference::ToolsandInfo1& form, PictureStore&) {
  const int share = form.text_share();
  QWidget* text =
      Widget(form.text_panel,
             Column({Wrapped(Widget(form.text_trouble)), Grow(Widget(form.text), share),
                     Grow(Column({Row({Widget(form.copy),
                                       WithIcon("print", Widget(form.print_options)), Spring()}),
                                  Spring()}),
                          kWholeShare - share)}));
  QWidget* screen =
      Widget(form.screen, Column({InSize(TextSize::kHeading, Widget(form.title)),
                                  Grow(Row({ToolsSide(form), Grow(text)}, kWideSpace))}));
  return MainScreenView(form.main_buttons, Column({Grow(screen), Grow(PrintView(form.print))}, 0));
}

}  // namespace tarnwell::desktop
