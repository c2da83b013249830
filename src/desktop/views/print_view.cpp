#include "desktop/views/print_view.h"

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

void AppendAll(QWidget* column, forms::OptionGroup& group) {
  for (int i = 0; i < group.size(); ++i) Append(column, Widget(group.option(i)));
}

QWidget* Settings(print::PrintPanel& panel) {
  return Grid({{Widget(panel.font_name_heading), Widget(panel.font_name)},
               {Widget(panel.font_size_heading), Widget(panel.font_size)},
               {Widget(panel.orientation_heading), Widget(panel.orientation)}},
              1);
}

QWidget* Options(print::PrintPanel& panel, std::initializer_list<QWidget*> own_options) {
  QWidget* range = Column({}, kTightSpace);
  AppendAll(range, panel.range);
  QWidget* display = Column({}, kTightSpace);
  AppendAll(display, panel.guide_lines);
  QWidget* options = Column({}, kTightSpace);
  if (panel.as_of) Append(options, Widget(*panel.as_of));
  if (panel.grid_lines) Append(options, Widget(*panel.grid_lines));
  AppendAll(options, panel.line_styles);
  for (QWidget* own : own_options) Append(options, own);
  return Column({
      Settings(panel),
      Widget(panel.sample),
      Widget(panel.range_frame, range),
      Widget(panel.options_frame, options),
      Widget(panel.display_frame, display),
      Spring(),
      Widget(panel.font),
      Widget(panel.page_setup),
      Widget(panel.copy_page),
  });
}

}  // namespace

QWidget* PrintView(print::PrintPanel& panel, std::initializer_list<QWidget*> own_options) {
  QWidget* commands = Row({Widget(panel.zoom)});
  if (panel.auto_size) Append(commands, Widget(*panel.auto_size));
  Append(commands, Grow(Widget(panel.progress)));
  Append(commands, Widget(panel.cancel));
  Append(commands, Spring());
  Append(commands, Primary(Widget(panel.print)));
  Append(commands, Widget(panel.close));
  // All that stands beside the preview makes room for an enlarged one.
  QWidget* beside = ShownWhile(
      panel.preview, [&panel] { return panel.preview.zoom() != forms::Zoom::kEnlarged; },
      ScrolledColumn(Options(panel, own_options)));
  return Widget(panel.panel, Column({
                                 Grow(Row({Grow(Widget(panel.preview)), beside}, kWideSpace)),
                                 commands,
                             }));
}

}  // namespace tarnwell::desktop
