// The names under which forms are shown. Program start-up maps them to their classes.

#pragma once

namespace tarnwell::forms::form_names {

inline constexpr const char* kStartfrm = "Startfrm";
inline constexpr const char* kSplash1 = "Splash1";
inline constexpr const char* kAbout1 = "About1";
inline constexpr const char* kWorkArea1 = "WorkArea1";
inline constexpr const char* kInfoAdv = "InfoAdv";
inline constexpr const char* kToolsandInfo1 = "ToolsandInfo1";
inline constexpr const char* kZcalandar1 = "Zcalandar1";
inline constexpr const char* kCalendar = "Calendar";
inline constexpr const char* kBudget1a = "Budget1a";
inline constexpr const char* kSickLeave1 = "SICKLEAVE1";
inline constexpr const char* kVacation1 = "Vacation1";
inline constexpr const char* kContactEntry = "ADDBKVIEW1";
inline constexpr const char* kEmployeeEntry = "FView";
inline constexpr const char* kContactDisplay = "ADDBKDISPLAY";
inline constexpr const char* kEmployeeDisplay = "FDisplay1";
inline constexpr const char* kContactPictures = "ADDBKDISPLAY2";
inline constexpr const char* kEmployeePictures = "ADDBKDISPLAY3";
inline constexpr const char* kPhotoView = "PhotoVIEW1";
inline constexpr const char* kAutoMaint = "AutoMaint";
inline constexpr const char* kBackup1 = "Backup1";
inline constexpr const char* kVSSpell1 = "VSSpell1";
inline constexpr const char* kVSThesaurus1 = "VSThesaurus1";

}  // namespace tarnwell::forms::form_names
