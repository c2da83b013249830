#include "desktop/views/entry_screen_view.h"

#include "desktop/views/picture_panel_view.h"
#include "desktop/views/print_view.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "record_book/entry_screen.h"

namespace tarnwell::desktop {
namespace {

using record_book::EntryScreen;

constexpr int kPictureSide = 150;  // pixels
constexpr int kLettersOfList = 26;
constexpr int kLettersOfScreen = 190;

QWidget* CommentsView(EntryScreen& form) {
  QWidget* comments = Widget(*form.comments);
  comments->setMinimumHeight(3 * comments->fontMetrics().lineSpacing());
  return comments;
}

// The entries of one group, from `first` to the one before `end`; `label` is the next label.
QWidget* GroupView(EntryScreen& form, std::size_t group, int first, int end, std::size_t& label) {
  const auto& fields = form.style().fields;
  std::vector<LabelledField> rows;
  for (int entry = first; entry < end; ++entry) {
    const auto place = static_cast<std::size_t>(entry);
    const bool has_label = !fields[place].label.empty();
    rows.push_back({has_label ? Widget(*form.labels[label++]) : nullptr,
                    place < form.fields.size() ? Widget(*form.fields[place]) : CommentsView(form)});
  }
  return Widget(*form.groups[group], Fields(rows));
}

QWidget* PictureView(EntryScreen& form, PictureStore& pictures) {
  QWidget* picture = Widget(form.picture, pictures);
  picture->setFixedSize(kPictureSide, kPictureSide);
  return Widget(
      form.picture_panel,
      Row({picture,
           Grow(Column({AtStart(Widget(form.link)),
                        Widget(form.print_picture,
                               Column({Widget(form.large), Widget(form.small)}, kTightSpace)),
                        Wrapped(Widget(form.picture_note)), Spring()}))}));
}

// The first group and the picture on the left, the others beside them.
QWidget* EntriesView(EntryScreen& form, PictureStore& pictures) {
  const auto& groups = form.style().groups;
  std::size_t label = 0;
  QWidget* left = Column({});
  QWidget* right = Column({});
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const int end = i + 1 < groups.size() ? groups[i + 1].first : form.style().book->entries;
    Append(i == 0 ? left : right, GroupView(form, i, groups[i].first, end, label));
  }
  Append(left, PictureView(form, pictures));
  Append(left, Spring());
  Append(right, Spring());
  return Row({Grow(left), Grow(right)});
}

}  // namespace

QWidget* EntryListView(EntryScreen& form) {
  return Widget(form.list_panel, AtMost(Column({Widget(form.search_label),
                                                Row({Grow(Widget(form.search)), Widget(form.view)}),
                                                Grow(Widget(form.names)), Widget(form.count)},
                                               kTightSpace),
                                        kLettersOfList));
}

QWidget* View(EntryScreen& form, PictureStore& pictures) {
  QWidget* screen =
      Widget(form.screen,
             Column({Grow(Row({EntryListView(form), Grow(Scrolled(EntriesView(form, pictures)))})),
                     Flow({Primary(Widget(form.save)), Widget(form.change),
                           WithIcon("print", Widget(form.print_file)), Widget(form.remove),
                           Widget(form.mode), WithIcon("exit", Widget(form.exit))},
                          kTightSpace)}));
  return Padded(AtMost(Column({Grow(screen), Grow(PicturePanelView(form.pictures, pictures)),
                               Grow(PrintView(form.print))},
                              0),
                       kLettersOfScreen),
                kSpace);
}

}  // namespace tarnwell::desktop
