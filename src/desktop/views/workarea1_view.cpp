#include "desktop/views/main_screen.h"
#include "desktop/views/print_view.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "workarea/workarea1.h"

namespace tarnwell::desktop {
namespace {

constexpr int kLettersOfNote = 90;

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

QWidget* Options(forms::OptionGroup& group) {
  QWidget* row = Row({});
  for (int i = 0; i < group.size(); ++i) Append(row, Widget(group.option(i)));
  Append(row, Spring());
  return row;
}

QWidget* Document(workarea::DocumentView& view) {
  return Widget(
      view.panel,
      Column({
          Row({Grow(Widget(view.heading)), Widget(view.status_label), Widget(view.status)}),
          Widget(view.actions, Options(view.views)),
          Grow(Widget(view.text)),
          Row({WithIcon("next-mark", Widget(view.tools.find_mark)), Widget(view.insert_template),
               Spring(), WithIcon("spelling", Widget(view.tools.spelling)),
               WithIcon("thesaurus", Widget(view.tools.thesaurus))},
              kTightSpace),
          Row({Primary(Widget(view.save)), Widget(view.tools.font),
               Widget(view.tools.alignment_frame, Options(view.tools.alignment)), Spring(),
               WithIcon("print", Widget(view.print_options)), Widget(view.exit)},
              kTightSpace),
      }));
}

QWidget* Printing(workarea::DocumentPrinting& printing, PictureStore& pictures) {
  return PrintView(
      printing.print, pictures,
      {Widget(printing.texts[0]), Widget(printing.texts[1]), Widget(printing.texts[2])});
}

}  // namespace

QWidget* View(workarea::WorkArea1& form, PictureStore& pictures) {
  QWidget* areas =
      Widget(form.areas, Row({Areas(form.area_buttons), DocumentButtons(form.documents),
                              Grow(Document(form.document))}));
  QWidget* all =
      Widget(form.printing.all_panel,
             Column({Wrapped(Widget(form.printing.all_note)), Widget(form.printing.all_progress)}));
  return MainScreenView(
      form.main_buttons,
      Column({Row({Widget(form.area_title), Spring(), Widget(form.date)}), Grow(areas),
              AtTop(AtMost(all, kLettersOfNote)), Grow(Printing(form.printing, pictures))}));
}

}  // namespace tarnwell::desktop
