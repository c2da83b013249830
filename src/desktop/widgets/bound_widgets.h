// The bound widget of each kind of control. The caller places what it gets in a layout; the
// widget's object name is the control's fixed name. Widget and control may go in either order.

#pragma once

#include <QWidget>
#include <functional>

#include "forms/chart.h"
#include "forms/choice.h"
#include "forms/command.h"
#include "forms/date_picker.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/menu.h"
#include "forms/page_preview.h"
#include "forms/panel.h"
#include "forms/picture_view.h"
#include "forms/progress_bar.h"
#include "forms/rich_text_box.h"
#include "forms/text_box.h"
#include "forms/text_field.h"
#include "forms/typed_combo.h"
#include "forms/words_field.h"

namespace tarnwell::desktop {

class PictureStore;

QWidget* Widget(forms::Command& command);
QWidget* Widget(forms::TextField& field);
QWidget* Widget(forms::WordsField& field);
QWidget* Widget(forms::TextBox& box);
QWidget* Widget(forms::Label& label);
QWidget* Widget(forms::Picture& picture, PictureStore& pictures);
// The wheel and "+" make it larger, dragging moves it.
QWidget* Widget(forms::PictureView& picture);
QWidget* Widget(forms::Option& option);
QWidget* Widget(forms::CheckBox& box);
QWidget* Widget(forms::ComboBox& combo);
QWidget* Widget(forms::TypedCombo& combo);
QWidget* Widget(forms::ListBox& box);
QWidget* Widget(forms::Grid& grid, PictureStore& pictures);
QWidget* Widget(forms::PagePreview& preview);
QWidget* Widget(forms::DatePicker& picker);
QWidget* Widget(forms::ProgressBar& bar);
// As large as its place, its letters in the widget's font.
QWidget* Widget(forms::Chart& chart);
// A plain text is pasted as rich text where the clipboard has it; Ctrl and the wheel zoom.
QWidget* Widget(forms::RichTextBox& box);
// A panel around `content`. With a caption it is a card with a title, else a plain area.
QWidget* Widget(forms::Panel& panel, QWidget* content);
// A panel with its title before the content instead of above it.
QWidget* Inline(QWidget* panel);

// `content` is there as long as `shown` holds, which is asked again with each change of the
// control.
QWidget* ShownWhile(forms::Control& control, std::function<bool()> shown, QWidget* content);

// Makes every timer of the form tick as long as `owner` lives.
void RunTimers(forms::Form& form, QObject* owner);

// The command that a person most likely wants; painted in the accent colour.
QWidget* Primary(QWidget* button);
// One of a list of commands under each other.
QWidget* Listed(QWidget* button);
// A command with a small picture before its word, by the icon's name ("save").
QWidget* WithIcon(const char* icon, QWidget* button);
// Likewise for a command without a caption.
QWidget* IconOnly(const char* icon, QWidget* button);
// Likewise for one that stays down while it is selected.
QWidget* Toggle(const char* icon, QWidget* button);
// Lower than elsewhere, where the content needs the room.
QWidget* Low(QWidget* widget);
// A command below which a menu drops down.
QWidget* WithMenu(QWidget* button, forms::MenuItem& menu);
// A label that breaks its lines at the width it is given.
QWidget* Wrapped(QWidget* label);
// A label whose text is a caption: the marks of mnemonics in it aren't shown.
QWidget* Captioned(QWidget* label);
// Of a grid the row of headings alone.
QWidget* HeadingsOnly(QWidget* grid);

}  // namespace tarnwell::desktop
