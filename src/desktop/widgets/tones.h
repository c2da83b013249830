// The colours that the look is painted with, in four sets: for a light desktop, for a dark one, and
// the two for who needs strong contrast.

#pragma once

#include <QColor>
#include <QString>

namespace tarnwell::desktop {

enum class ToneSet { kLight, kDark, kBlack, kWhite };
inline constexpr ToneSet kToneSets[] = {ToneSet::kLight, ToneSet::kDark, ToneSet::kBlack,
                                        ToneSet::kWhite};

enum class Tone {
  kInk,          // letters
  kFaint,        // letters of what can't be used at present
  kGround,       // behind all that has no colour of its own: "Default"
  kCard,         // a panel with a title
  kField,        // what a person types in or presses
  kFieldOff,     // the same where it can't be used
  kFieldHover,   // under the pointer
  kFieldDown,    // pressed
  kStripe,       // every other row
  kEdge,         // around a field
  kEdgeOff,      // around what can't be used
  kEdgeHover,    // under the pointer
  kLine,         // between cells and parts
  kAccent,       // the frame that shows the focus, links, small drawings
  kMark,         // behind what is selected
  kOnMark,       // letters on it
  kMarkHover,    // the main button under the pointer
  kMarkDown,     // the same, pressed
  kMarkFocus,    // the focus on it
  kMarkOff,      // the main button where it can't be used
  kOnMarkOff,    // letters on it
  kChosen,       // a small button that stays down
  kSelected,     // a main button that stays down
  kOnSelected,   // letters on it
  kInHand,       // the row in hand
  kHead,         // headings of columns
  kTrack,        // of a scroll bar
  kHandle,       // of a scroll bar
  kHandleHover,  // under the pointer
  kChrome,       // menu bar and status bar
  kMenuHover,    // the entry under the pointer
  kOnMenuHover,  // letters on it
  kTip,          // a tool tip
  kProgress,     // how far a bar has come
  kVisited,      // a link that was followed
  kAlarm,        // small drawings of what ends or warns, and the ring around today
  kDesk,         // behind sheets of paper
};
inline constexpr int kTones = static_cast<int>(Tone::kDesk) + 1;

QColor ColorOf(ToneSet set, Tone tone);

// The set that the program is painted with, and the colour that a tone has in it.
ToneSet CurrentTones();
void SetCurrentTones(ToneSet set);
QColor ColorOf(Tone tone);

// The style sheet of all widgets in a set's colours.
QString StyleSheetOf(ToneSet set);

}  // namespace tarnwell::desktop
