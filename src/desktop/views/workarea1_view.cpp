#include "desktop/views/format_bar_view.h"
#include "desktop/views/grid_background_view.h"
#include "desktop/views/main_screen.h"
#include "desktop/views/print_view.h"
#include "desktop/views/todo_view.h"
#include "desktop/views/views.h"
#include "desktop/views/worksheets_view.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "workarea/workarea1.h"

namespace tarnwell::desktop {
namespace {

constexpr int kLettersOfNote = 90;
constexpr int kLettersOfNames = 32;

QWidget* Areas(workarea::AreaButtonColumn& areas) {
  QWidget* column = Column({}, kTightSpace);
  for (const auto& button : areas.buttons) Append(column, Listed(Widget(*button)));
  Append(column, Spring());
  return Widget(areas.panel, column);
}

QWidget* DocumentButtons(workarea::DocumentsPane& documents) {
  QWidget* rows = Column({}, 0);
  for (const auto& group : documents.groups) {
    QWidget* column = Column({}, kHairSpace);
    for (const auto& button : group->buttons) Append(column, Listed(Widget(*button)));
    Append(column, Spring());
    Append(rows, Widget(group->panel, column));
  }
  return rows;
}

QWidget* Names(workarea::NamesPanel& names) {
  return AtMost(
      Widget(names.panel,
             Column({Wrapped(Widget(names.title)), Widget(names.list_heading), Widget(names.list),
                     Widget(names.name), Widget(names.prompt), Listed(Widget(names.select)),
                     Listed(Widget(names.new_report)), Listed(Widget(names.new_blank)),
                     Listed(Widget(names.remove)), Spring()})),
      kLettersOfNames);
}

// Beside a document every line of text counts: its title and its tools are smaller than elsewhere.
QWidget* Compact(QWidget* button) {
  SetMark(button, "compact", true);
  return button;
}

QWidget* Views(forms::OptionGroup& views) {
  return Flow({Widget(views.option(0)), Widget(views.option(1)), Widget(views.option(2))},
              kTightSpace);
}

QWidget* Alignment(workarea::TextTools& tools) {
  forms::OptionGroup& group = tools.alignment;
  QWidget* options =
      Row({Widget(group.option(0)), Widget(group.option(1)), Widget(group.option(2))}, kTightSpace);
  return Inline(Widget(tools.alignment_frame, options));
}

QWidget* Document(workarea::DocumentView& view, workarea::WorksheetsPane& worksheets) {
  return Widget(
      view.panel,
      Column(
          {
              Row({Grow(InSize(TextSize::kStrong, Wrapped(Widget(view.heading)))),
                   Widget(view.status_label), Widget(view.status),
                   Compact(Widget(worksheets.terms))}),
              Inline(Widget(view.actions, Views(view.views))),
              Inline(Widget(worksheets.references.frame, Views(worksheets.references.views))),
              FormatBarView(view.format),
              FindBarView(view.find),
              Grow(Widget(view.text)),
              Flow({Primary(Compact(Widget(view.save))), Compact(Widget(view.tools.find_mark)),
                    Compact(Widget(view.insert_template)), Compact(Widget(view.tools.font)),
                    Compact(Widget(view.tools.spelling)), Compact(Widget(view.tools.thesaurus)),
                    Alignment(view.tools), Compact(Widget(view.print_options)),
                    Compact(Widget(view.exit))},
                   kTightSpace),
          },
          kTightSpace));
}

QWidget* Printing(workarea::DocumentPrinting& printing) {
  return PrintView(printing.print, {Widget(printing.first), Widget(printing.texts[0]),
                                    Widget(printing.texts[1]), Widget(printing.texts[2])});
}

}  // namespace

QWidget* View(workarea::WorkArea1& form, PictureStore& pictures) {
  QWidget* areas = Widget(
      form.areas,
      Narrowable(
          Scrolled(Row({Areas(form.area_buttons), DocumentButtons(form.documents),
                        Names(form.names), WorksheetButtons(form.worksheets)},
                       kTightSpace)),
          Column({Document(form.document, form.worksheets), ToDoView(form.to_do, pictures)}, 0)));
  QWidget* all =
      Widget(form.printing.all_panel,
             Column({Wrapped(Widget(form.printing.all_note)), Widget(form.printing.all_progress)}));
  return MainScreenView(
      form.main_buttons,
      Column(
          {Row({InSize(TextSize::kHeading, Widget(form.area_title)), Spring(), Widget(form.date)}),
           Grow(areas), AtTop(AtMost(all, kLettersOfNote)),
           Grow(TitlesView(form.worksheets.titles)), Grow(Printing(form.printing)),
           Grow(AtMost(ExportView(form.to_do.exporting), kLettersOfPanel)),
           AtTop(AtMost(GridBackgroundView(form.to_do.background, pictures), kLettersOfPanel))}));
}

}  // namespace tarnwell::desktop
