#include "desktop/views/worksheets_view.h"

#include <QGridLayout>

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

constexpr int kLettersOfRules = 44;
constexpr int kLettersOfTitle = 26;
constexpr int kColumnBehind = 3;  // takes the width that the titles don't need

}  // namespace

QWidget* WorksheetButtons(workarea::WorksheetsPane& worksheets) {
  QWidget* buttons = Column({}, kHairSpace);
  for (const auto& button : worksheets.buttons) Append(buttons, Listed(Widget(*button)));
  Append(buttons, Spring());
  QWidget* rows = Column({}, kHairSpace);
  for (const auto& row : worksheets.references.rows) {
    Append(rows, Widget(row->standard));
    Append(rows, Listed(Widget(row->button)));
  }
  Append(rows, Widget(worksheets.references.note));
  Append(rows, Spring());
  return Column({Widget(worksheets.panel, buttons),
                 AtMost(Widget(worksheets.references.panel, rows), kLettersOfRules)},
                0);
}

QWidget* TitlesView(workarea::TitlesPanel& titles) {
  QWidget* rows = Grid({{Widget(titles.number_heading), Widget(titles.current_heading),
                         Widget(titles.change_heading)}},
                       kColumnBehind);
  auto* grid = static_cast<QGridLayout*>(rows->layout());
  grid->setVerticalSpacing(kHairSpace);
  for (const auto& row : titles.rows) {
    const int line = grid->rowCount();
    grid->addWidget(Widget(row->label), line, 0);
    grid->addWidget(OfLetters(Widget(row->current), kLettersOfTitle), line, 1);
    grid->addWidget(OfLetters(Widget(row->change), kLettersOfTitle), line, 2);
  }
  return Widget(titles.panel,
                Column({Widget(titles.help), Grow(Scrolled(rows)),
                        Row({Primary(Widget(titles.save)), Spring(), Widget(titles.exit)})}));
}

}  // namespace tarnwell::desktop
