#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "proofing/vsspell1.h"
#include "proofing/vsthesaurus1.h"

namespace tarnwell::desktop {
namespace {

// A word and the two ends of its sentence fit, whatever they are.
constexpr int kLettersOfText = 88;
constexpr int kLines = 24;

QWidget* InDialogueSize(QWidget* content) {
  const QFontMetrics text = content->fontMetrics();
  return AtLeast({kLettersOfText * text.averageCharWidth(), kLines * text.height()}, content);
}

}  // namespace

QWidget* View(proofing::VSSpell1& form, PictureStore&) {
  QWidget* sentence =
      Row({Widget(form.before), Widget(form.word), Widget(form.after), Spring()}, 0);
  QWidget* answers = Column({Primary(Widget(form.change)), Widget(form.change_all),
                             Widget(form.ignore), Widget(form.ignore_all), Widget(form.add),
                             Spring(), Widget(form.help), Widget(form.cancel)});
  return InDialogueSize(Padded(Column({
      Widget(form.word_heading),
      Card(sentence),
      Grow(Row({Grow(Column({Widget(form.change_heading), Widget(form.change_to),
                             Widget(form.suggestions_heading), Grow(Widget(form.suggestions))})),
                answers},
               kWideSpace)),
  })));
}

QWidget* View(proofing::VSThesaurus1& form, PictureStore&) {
  QWidget* commands = Column({Primary(Widget(form.replace)), Widget(form.look_up),
                              Widget(form.previous), Spring(), Widget(form.cancel)});
  QWidget* lists =
      Row({Grow(Column({Widget(form.meanings_heading), Grow(Widget(form.meanings))})),
           Grow(Column({Widget(form.synonyms_heading), Grow(Widget(form.synonyms))}))});
  return InDialogueSize(Padded(Column({
      Row({Widget(form.word_heading), Widget(form.word), Spring(), Widget(form.note)}),
      Grow(
          Row({Grow(Column({Grow(lists), Widget(form.replace_heading), Widget(form.replace_with)})),
               commands},
              kWideSpace)),
  })));
}

}  // namespace tarnwell::desktop
