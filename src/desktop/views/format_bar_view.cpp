#include "desktop/views/format_bar_view.h"

#include <QComboBox>

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

using parts::FormatCommand;

constexpr int kLettersOfFont = 13;
constexpr int kLettersOfSize = 3;
constexpr int kLettersOfWords = 18;

// However long the texts of its list are.
QWidget* ComboOf(int letters, QWidget* combo) {
  auto* box = qobject_cast<QComboBox*>(combo);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(letters);
  return combo;
}

}  // namespace

QWidget* FormatBarView(parts::FormatBar& bar) {
  const auto button = [&bar](const char* icon, FormatCommand command) {
    return Low(IconOnly(icon, Widget(bar[command])));
  };
  const auto toggle = [&bar](const char* icon, FormatCommand command) {
    return Low(Toggle(icon, Widget(bar[command])));
  };
  return Widget(bar.panel, Flow({button("undo", FormatCommand::kUndo),
                                 button("redo", FormatCommand::kRedo),
                                 ComboOf(kLettersOfFont, Low(Widget(bar.font))),
                                 ComboOf(kLettersOfSize, Low(Widget(bar.size))),
                                 toggle("bold", FormatCommand::kBold),
                                 toggle("italic", FormatCommand::kItalic),
                                 toggle("underline", FormatCommand::kUnderline),
                                 button("color", FormatCommand::kColor),
                                 toggle("highlight", FormatCommand::kHighlight),
                                 toggle("left", FormatCommand::kLeft),
                                 toggle("center", FormatCommand::kCenter),
                                 toggle("right", FormatCommand::kRight),
                                 toggle("justify", FormatCommand::kJustify),
                                 toggle("bullets", FormatCommand::kBullets),
                                 toggle("numbers", FormatCommand::kNumbers),
                                 button("outdent", FormatCommand::kOutdent),
                                 button("indent", FormatCommand::kIndent),
                                 WithMenu(button("table", FormatCommand::kTable), bar.tables.popup),
                                 button("picture", FormatCommand::kPicture),
                                 button("link", FormatCommand::kLink)},
                                kHairSpace));
}

QWidget* FindBarView(parts::FindBar& bar) {
  return Widget(
      bar.panel,
      Flow({Row({Widget(bar.find_label), OfLetters(Low(Widget(bar.find)), kLettersOfWords)}),
            Low(Widget(bar.previous)), Low(Widget(bar.next)), Widget(bar.whole_words),
            Widget(bar.match_capitals),
            Row({Widget(bar.replace_label), OfLetters(Low(Widget(bar.replace)), kLettersOfWords)}),
            Low(Widget(bar.replace_one)), Low(Widget(bar.replace_all)), Low(Widget(bar.close))},
           kTightSpace));
}

}  // namespace tarnwell::desktop
