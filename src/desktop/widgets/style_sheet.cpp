#include <algorithm>
#include <iterator>
#include <string_view>

#include "desktop/widgets/tones.h"

namespace tarnwell::desktop {
namespace {

// A tone stands in the sheet as "@" and its name. Widgets that a person types in or presses keep
// their own ground on every panel colour; everything else takes its text colour from the palette of
// the panel around it.
constexpr std::string_view kToneNames[] = {
    "ink",         "faint",         "ground",      "card",     "field",        "field-off",
    "field-hover", "field-down",    "stripe",      "edge",     "edge-off",     "edge-hover",
    "line",        "accent",        "mark",        "on-mark",  "mark-hover",   "mark-down",
    "mark-focus",  "mark-off",      "on-mark-off", "chosen",   "selected",     "on-selected",
    "in-hand",     "head",          "track",       "handle",   "handle-hover", "chrome",
    "menu-hover",  "on-menu-hover", "tip",         "progress", "visited",      "alarm",
    "desk",
};
static_assert(std::size(kToneNames) == kTones);

constexpr std::string_view kSheet = R"(
QPushButton {
  background: @field; color: @ink; border: 1px solid @edge; border-radius: 5px;
  padding: 5px 13px; min-height: 1.25em;
}
QPushButton:hover { background: @field-hover; border-color: @edge-hover; }
QPushButton:pressed { background: @field-down; }
QPushButton:focus { border: 2px solid @accent; padding: 4px 12px; }
QPushButton:disabled { background: @field-off; color: @faint; border-color: @edge-off; }
QPushButton[compact="true"] { padding: 3px 6px; }
QPushButton[compact="true"]:focus { padding: 2px 5px; }
QPushButton[compact="true"][selected="true"] { background: @chosen; border-color: @accent; }
QPushButton[listed="true"] { text-align: left; padding: 3px 8px; min-height: 1.2em; }
QPushButton[listed="true"]:focus { padding: 2px 7px; }
QPushButton[primary="true"] { background: @mark; color: @on-mark; border-color: @mark; }
QPushButton[primary="true"]:hover { background: @mark-hover; }
QPushButton[primary="true"]:pressed { background: @mark-down; }
QPushButton[primary="true"]:focus { border: 2px solid @mark-focus; }
QPushButton[primary="true"]:disabled {
  background: @mark-off; border-color: @mark-off; color: @on-mark-off;
}
QPushButton[selected="true"] { background: @selected; color: @on-selected; border-color: @selected; }
QPushButton[selected="true"]:focus { border: 2px solid @on-selected; }
QComboBox { color: @ink; combobox-popup: 0; }
QLineEdit, QComboBox {
  background: @field; border: 1px solid @edge; border-radius: 4px;
  padding: 3px 6px; min-height: 1.25em; selection-background-color: @mark;
  selection-color: @on-mark;
}
QLineEdit:focus, QComboBox:focus { border: 2px solid @accent; padding: 2px 5px; }
QPushButton[tool="true"] { padding: 2px 4px; min-height: 0; }
QPushButton[tool="true"]:focus { padding: 1px 3px; }
QLineEdit[tool="true"], QComboBox[tool="true"] { padding: 1px 4px; min-height: 1.1em; }
QLineEdit[tool="true"]:focus, QComboBox[tool="true"]:focus { padding: 0px 3px; }
QLineEdit:read-only { background: @field-off; }
QLineEdit[marked="true"] { background: @in-hand; }
QLineEdit:disabled, QComboBox:disabled { background: @field-off; border-color: @edge-off; }
QComboBox:disabled { color: @faint; }
QComboBox QLineEdit, QComboBox QLineEdit:focus, QComboBox QLineEdit:disabled {
  background: transparent; border: none; padding: 0; min-height: 0;
}
QPlainTextEdit {
  background: @field; color: @ink; border: 1px solid @edge; border-radius: 4px;
  selection-background-color: @mark; selection-color: @on-mark;
}
QPlainTextEdit:focus { border-color: @accent; }
QPlainTextEdit[marked="true"] { background: @in-hand; }
QPlainTextEdit:disabled, QPlainTextEdit:read-only { background: @field-off; }
QTableView, QListView {
  border: 1px solid @edge; gridline-color: @line; selection-background-color: @mark;
  selection-color: @on-mark;
}
QListView::item { padding: 2px 6px; }
QTableView:focus, QListView:focus { border-color: @accent; }
QHeaderView { background: @head; border: none; }
QHeaderView::section {
  background: @head; color: @ink; font-weight: 600; padding: 4px 3px; border: none;
  border-right: 1px solid @line; border-bottom: 1px solid @edge;
}
QScrollBar { background: @track; border: none; }
QScrollBar:vertical { width: 14px; }
QScrollBar:horizontal { height: 14px; }
QScrollBar::handle { background: @handle; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::handle:hover { background: @handle-hover; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox::down-arrow { image: url(:/icons/down@tint.svg); width: 12px; height: 12px; }
QComboBox QAbstractItemView {
  background: @field; color: @ink; selection-background-color: @mark;
  selection-color: @on-mark; border: 1px solid @edge;
}
QMenuBar {
  background: @chrome; color: @ink; border-bottom: 1px solid @line; padding: 1px 4px;
}
QMenuBar::item { padding: 4px 10px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected { background: @menu-hover; color: @on-menu-hover; }
QMenuBar::item:disabled { color: @faint; }
QMenu { background: @field; color: @ink; border: 1px solid @edge; padding: 4px; }
QMenu::item { padding: 5px 28px 5px 24px; border-radius: 4px; }
QMenu::item:selected { background: @menu-hover; color: @on-menu-hover; }
QMenu::item:disabled { color: @faint; }
QMenu::separator { height: 1px; background: @line; margin: 4px 8px; }
QStatusBar { background: @chrome; color: @ink; border-top: 1px solid @line; }
QStatusBar::item { border: none; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QMessageBox {
  background: @card;
  messagebox-information-icon: url(:/icons/information.svg);
  messagebox-warning-icon: url(:/icons/exclamation.svg);
  messagebox-question-icon: url(:/icons/question.svg);
  messagebox-critical-icon: url(:/icons/critical.svg);
}
QToolTip { background: @tip; color: @ink; border: 1px solid @edge; padding: 3px; }
QProgressBar {
  background: @field; color: @ink; border: 1px solid @edge; border-radius: 4px;
  text-align: center; min-height: 1.3em;
}
QProgressBar::chunk { background: @progress; border-radius: 3px; }
)";

// The style's own boxes are edged in a shade of the panel, which on a dark one is none.
constexpr std::string_view kDarkSheet = R"(
QCheckBox::indicator, QRadioButton::indicator {
  width: 14px; height: 14px; border: 1px solid @ink; background: @field;
}
QCheckBox::indicator { border-radius: 2px; }
QRadioButton::indicator { border-radius: 8px; }
QCheckBox::indicator:focus, QRadioButton::indicator:focus { border-color: @accent; }
QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { border-color: @faint; }
QCheckBox::indicator:checked { image: url(:/icons/check@tint.svg); }
QRadioButton::indicator:checked {
  background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5, stop: 0 @ink,
                              stop: 0.5 @ink, stop: 0.6 @field, stop: 1 @field);
}
)";

QString ValueOf(ToneSet set, std::string_view name) {
  const bool is_dark = set == ToneSet::kDark || set == ToneSet::kBlack;
  if (name == "tint") return is_dark ? QStringLiteral("-light") : QString();
  const auto* found = std::ranges::find(kToneNames, name);
  return ColorOf(set, static_cast<Tone>(found - kToneNames)).name();
}

}  // namespace

QString StyleSheetOf(ToneSet set) {
  std::string sheet(kSheet);
  if (set != ToneSet::kLight) sheet += kDarkSheet;
  QString filled;
  for (std::size_t at = 0; at < sheet.size();) {
    const std::size_t mark = std::min(sheet.find('@', at), sheet.size());
    filled += QString::fromStdString(sheet.substr(at, mark - at));
    if (mark == sheet.size()) break;
    at = std::min(sheet.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", mark + 1), sheet.size());
    filled += ValueOf(set, std::string_view(sheet).substr(mark + 1, at - mark - 1));
  }
  return filled;
}

}  // namespace tarnwell::desktop
