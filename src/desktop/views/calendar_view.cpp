#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "planner/calendar.h"

namespace tarnwell::desktop {
namespace {

constexpr QSize kLeastLines{250, 0};

QWidget* Choice(forms::Panel& frame, forms::OptionGroup& group) {
  return Inline(Widget(frame, Row({Widget(group.option(0)), Widget(group.option(1)), Spring()})));
}

// The page scrolls before what is offered gets cut.
QWidget* Selection(planner::Calendar& form) {
  QWidget* imports = Widget(form.imports);
  imports->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  return Column({Widget(form.picker), Widget(form.import_label), imports, Spring()});
}

QWidget* Day(planner::Calendar& form) {
  QWidget* column = Column({Wrapped(Widget(form.day_caption))}, kTightSpace);
  for (std::size_t i = 0; i < form.lines.size(); ++i) Append(column, Widget(form.lines[i]));
  Append(column, Flow({Primary(Widget(form.enter_and_save)), WithIcon("save", Widget(form.save)),
                       Widget(form.font), WithIcon("print", Widget(form.print)),
                       WithIcon("exit", Widget(form.exit))},
                      kTightSpace));
  Append(column, Choice(form.numbers_frame, form.numbers));
  Append(column, Choice(form.sort_frame, form.sort_time));
  Append(column, Spring());
  return AtLeast(kLeastLines, column);
}

// It makes room for an enlarged sheet.
QWidget* Beside(forms::PagePreview& sheet, QWidget* content) {
  return ShownWhile(
      sheet, [&sheet] { return sheet.zoom() != forms::Zoom::kEnlarged; }, content);
}

}  // namespace

QWidget* View(planner::Calendar& form, PictureStore&) {
  QWidget* guide_lines =
      Beside(form.preview, Widget(form.display_frame, Flow({Widget(form.guide_lines.option(0)),
                                                            Widget(form.guide_lines.option(1))})));
  QWidget* sheet = Column({Grow(Widget(form.preview)), guide_lines,
                           Row({Widget(form.zoom), Widget(form.auto_size), Spring()})});
  return Padded(Widget(form.page, Row({Beside(form.preview, Selection(form)),
                                       Grow(Beside(form.preview, Day(form)), 2), Grow(sheet, 3)},
                                      kWideSpace)),
                kSpace);
}

}  // namespace tarnwell::desktop
