#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "forms/color.h"
#include "forms/page.h"
#include "settings/grid_backgrounds.h"
#include "storage/tagged_value.h"

namespace tarnwell::forms {

// The small block that all screens share. It lasts for the run.
struct ProgramVariables {
  std::int16_t SmallerScreen = 0;  // 9 smaller-screen display, 0 full screen
  std::int16_t MainArea = 0;       // index of the main button last chosen, 0 to 4
  std::int16_t HubArea = 0;        // area that the hub opens when it comes on top; 0 for none
  std::int16_t SplashShown = 0;    // 99 once the splash screen was shown
  std::int16_t BackupMode = 0;     // the set that the backup utility works on, odd for a restore
  std::int16_t RestoreMarker = 0;  // 99 for a restore
  int BackupYear = 0;              // of the sets that are a year's
  storage::TaggedValue StartBackColor;
  std::int16_t FormHeight = 0;  // the work area's client, in twips, cut to 32767
  std::int16_t FormWidth = 0;
  double Answer = 0;           // code of the last message box: 1 OK, 2 Cancel, 6 Yes, 7 No
  std::string DateStyle;       // "OTHER" selects day-first captions; nothing sets it
  std::string CompanyLine;     // put behind captions and heads when not empty; nothing sets it
  std::string PanelColorNew;   // the panel colour saved last, as it is stored; empty for none
  std::string PanelColorLast;  // the one that was last saved for all functions

  // The grid backgrounds that hold for the run.
  std::map<settings::GridBackground, settings::StoredColor> GridBackgrounds;

  // The print settings, which all screens share.
  std::string PrintFontName = "Times New Roman";
  double PrintFontSize = 10;  // points
  bool PrintFontBold = false;
  bool PrintFontItalic = false;
  bool PrintFontUnderline = false;
  bool PrintFontStrike = false;
  Color PrintFontColor = kBlack;
  std::optional<PageSetup> DocumentSetup;  // chosen in place of the documents' own paper
  std::int16_t NoAsOfDate = 0;             // 1 leaves the "As of" line out
  std::int16_t GridLinesOnPrint = 0;       // 1 prints the grid lines on each page

  Font PrintFont() const {
    return {PrintFontName,      PrintFontSize,   PrintFontBold, PrintFontItalic,
            PrintFontUnderline, PrintFontStrike, PrintFontColor};
  }
  void SetPrintFont(const Font& font) {
    PrintFontName = font.name;
    PrintFontSize = font.size;
    PrintFontBold = font.bold;
    PrintFontItalic = font.italic;
    PrintFontUnderline = font.underline;
    PrintFontStrike = font.strike;
    PrintFontColor = font.color;
  }

  // What is missing on this computer was told already.
  bool no_dictionary_told = false;
  bool no_thesaurus_told = false;

  bool day_first() const { return DateStyle == "OTHER"; }
};

}  // namespace tarnwell::forms
