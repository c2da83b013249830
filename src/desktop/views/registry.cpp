#include "desktop/views/registry.h"

#include <algorithm>
#include <iterator>

#include "backup/backup1.h"
#include "budget/budget1a.h"
#include "desktop/views/views.h"
#include "forms/form_names.h"
#include "images/photoview1.h"
#include "leave/leave_sheet.h"
#include "planner/calendar.h"
#include "planner/zcalandar1.h"
#include "proofing/vsspell1.h"
#include "proofing/vsthesaurus1.h"
#include "record_book/display_screen.h"
#include "record_book/entry_screen.h"
#include "record_book/picture_pages.h"
#include "reference/infoadv.h"
#include "reference/toolsandinfo1.h"
#include "shell/about1.h"
#include "shell/splash1.h"
#include "shell/startfrm.h"
#include "vehicles/automaint.h"
#include "workarea/workarea1.h"

namespace tarnwell::desktop {
namespace {

template <typename FormClass>
QWidget* Make(forms::Form& form, PictureStore& pictures) {
  return View(static_cast<FormClass&>(form), pictures);
}

struct Entry {
  const char* name;
  QWidget* (*make)(forms::Form&, PictureStore&);
  bool frameless = false;
};

constexpr Entry kViews[] = {
    {forms::form_names::kStartfrm, Make<shell::Startfrm>},
    {forms::form_names::kSplash1, Make<shell::Splash1>, true},
    {forms::form_names::kAbout1, Make<shell::About1>},
    {forms::form_names::kWorkArea1, Make<workarea::WorkArea1>},
    {forms::form_names::kInfoAdv, Make<reference::InfoAdv>},
    {forms::form_names::kToolsandInfo1, Make<reference::ToolsandInfo1>},
    {forms::form_names::kZcalandar1, Make<planner::Zcalandar1>},
    {forms::form_names::kCalendar, Make<planner::Calendar>},
    {forms::form_names::kBudget1a, Make<budget::Budget1a>},
    {forms::form_names::kSickLeave1, Make<leave::LeaveSheet>},
    {forms::form_names::kVacation1, Make<leave::LeaveSheet>},
    {forms::form_names::kContactEntry, Make<record_book::EntryScreen>},
    {forms::form_names::kEmployeeEntry, Make<record_book::EntryScreen>},
    {forms::form_names::kContactDisplay, Make<record_book::DisplayScreen>},
    {forms::form_names::kEmployeeDisplay, Make<record_book::DisplayScreen>},
    {forms::form_names::kContactPictures, Make<record_book::PicturePages>},
    {forms::form_names::kEmployeePictures, Make<record_book::PicturePages>},
    {forms::form_names::kPhotoView, Make<images::PhotoVIEW1>},
    {forms::form_names::kAutoMaint, Make<vehicles::AutoMaint>},
    {forms::form_names::kBackup1, Make<backup::Backup1>},
    {forms::form_names::kVSSpell1, Make<proofing::VSSpell1>},
    {forms::form_names::kVSThesaurus1, Make<proofing::VSThesaurus1>},
};

}  // namespace

FormLook LookOf(forms::Form& form, PictureStore& pictures) {
  const auto* entry = std::ranges::find(kViews, form.name(), &Entry::name);
  if (entry == std::end(kViews)) return {};
  return {entry->make(form, pictures), entry->frameless};
}

}  // namespace tarnwell::desktop
