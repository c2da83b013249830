#include "program/program.h"

#include "backup/backup1.h"
#include "backup/interrupted_restore.h"
#include "budget/budget1a.h"
#include "contacts/addbkdisplay.h"
#include "contacts/addbkdisplay2.h"
#include "contacts/addbkview1.h"
#include "employees/addbkdisplay3.h"
#include "employees/fdisplay1.h"
#include "employees/fview.h"
#include "forms/form_names.h"
#include "images/photoview1.h"
#include "leave/leave_sheet.h"
#include "planner/calendar.h"
#include "planner/zcalandar1.h"
#include "proofing/vsspell1.h"
#include "proofing/vsthesaurus1.h"
#include "reference/infoadv.h"
#include "reference/toolsandinfo1.h"
#include "shell/about1.h"
#include "shell/splash1.h"
#include "shell/startfrm.h"
#include "vehicles/automaint.h"
#include "workarea/workarea1.h"

namespace tarnwell::program {
namespace {

template <typename FormClass>
std::unique_ptr<forms::Form> Make(forms::Context& context) {
  return std::make_unique<FormClass>(context);
}

void RegisterForms(forms::Navigator& navigator) {
  using namespace forms::form_names;
  navigator.Register(kStartfrm, Make<shell::Startfrm>);
  navigator.Register(kSplash1, Make<shell::Splash1>);
  navigator.Register(kAbout1, Make<shell::About1>);
  navigator.Register(kWorkArea1, Make<workarea::WorkArea1>);
  navigator.Register(kInfoAdv, Make<reference::InfoAdv>);
  navigator.Register(kToolsandInfo1, Make<reference::ToolsandInfo1>);
  navigator.Register(kZcalandar1, Make<planner::Zcalandar1>);
  navigator.Register(kCalendar, Make<planner::Calendar>);
  navigator.Register(kBudget1a, Make<budget::Budget1a>);
  navigator.Register(kSickLeave1, Make<leave::SICKLEAVE1>);
  navigator.Register(kVacation1, Make<leave::Vacation1>);
  navigator.Register(kContactEntry, Make<contacts::ADDBKVIEW1>);
  navigator.Register(kEmployeeEntry, Make<employees::FView>);
  navigator.Register(kContactDisplay, Make<contacts::ADDBKDISPLAY>);
  navigator.Register(kEmployeeDisplay, Make<employees::FDisplay1>);
  navigator.Register(kContactPictures, Make<contacts::ADDBKDISPLAY2>);
  navigator.Register(kEmployeePictures, Make<employees::ADDBKDISPLAY3>);
  navigator.Register(kPhotoView, Make<images::PhotoVIEW1>);
  navigator.Register(kAutoMaint, Make<vehicles::AutoMaint>);
  navigator.Register(kBackup1, Make<backup::Backup1>);
  navigator.Register(kVSSpell1, Make<proofing::VSSpell1>);
  navigator.Register(kVSThesaurus1, Make<proofing::VSThesaurus1>);
}

}  // namespace

Program::Program(const forms::Services& services) : context_{services, variables_, navigator_} {
  navigator_.SetContext(context_);
  RegisterForms(navigator_);
}

Program::~Program() {
  if (navigator_.ended()) drafts_.Forget();
}

void Program::Start() {
  context_.folder.Recover();
  if (!backup::SettleInterruptedRestore(context_)) return navigator_.EndProgram();
  navigator_.Show(forms::form_names::kStartfrm);
  if (!navigator_.ended()) drafts_.Offer();
}

}  // namespace tarnwell::program
