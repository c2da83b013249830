#include "tour/journey.h"

#include "tour/traveller.h"

namespace tarnwell::testing {
namespace {

const QString kTime = QStringLiteral("9:30 AM");
const QString kAgreementDate = QStringLiteral("March 9, 2026");
const QString kAppointment = QStringLiteral("Dentist");
const QString kMistypedAppointment = QStringLiteral("Denttist");

void WriteToDoItem(Traveller& person) {
  person.Click("Command2");
  person.ExpectTop("WorkArea1");
  person.Click("SSCommand19(2)");  // nothing to add yet: to the names
  person.Type(QStringLiteral("Pay rent"));
  person.Click("SSCommand19(2)");
  person.Press(Qt::Key_Right);
  person.TakePicture("to-do-list");
  person.Answer(QStringLiteral("File Save Command"), QMessageBox::Ok,
                [&] { person.Click("SSCommand19(5)"); });
  person.Click("SSCommand19(4)");
  person.TakePicture("to-do-print");
  person.Click("SSCommand80(2)");
}

void WriteAgreement(Traveller& person) {
  person.Click("SSCommand11(2)");
  person.TakePicture("company-data");
  person.Click("SSCommand14(5)");
  person.Click("SSCommand2");
  person.Click("SSCommand29");
  person.TakePicture("agreement-with-its-first-mark");
  person.Type(kAgreementDate);
  person.Answer(
      QStringLiteral("File Save Command"), QMessageBox::Ok, [&] { person.Click("SSCommand6"); },
      "agreement-saved");
  person.Click("SSCommand5");
  person.TakePicture("agreement-print");
  person.Click("SSCommand80(2)");
}

void LookAtOtherDocuments(Traveller& person) {
  person.Click("SSOption3");
  person.TakePicture("disclaimer");
  person.Click("SSCommand11(4)");
  person.TakePicture("policies");
  person.Answer(
      QStringLiteral("Disaster Recovery Plan Information"), QMessageBox::Ok,
      [&] { person.Click("SSCommand11(8)"); }, "recovery-plan-information");
  person.TakePicture("recovery-plan");
  person.Click("SSCommand4(1)");
  person.TakePicture("employee-data");
  person.ChooseFromMenu("mOPAllB");
  person.TakePicture("print-all");
  person.Click("SSCommand80(2)");
}

void WriteReport(Traveller& person) {
  const QString begin = QStringLiteral("Select New Report - Insert Template");
  person.Click("SSCommand11(11)");
  person.Answer(begin, QMessageBox::Ok, [&] { person.Click("SSCommand25"); });
  person.Type(QStringLiteral("Ann Lee / 03/09/2026"));
  person.Answer(QStringLiteral("Save File Action"), QMessageBox::Ok,
                [&] { person.Click("SSCommand6"); });
  person.TakePicture("evaluation");
  const QString question =
      QStringLiteral("Make Archive Copy of Policies, Rish Analysis, Incident Reports");
  person.AnswerAll(
      {{question, QMessageBox::Yes}, {QStringLiteral("Archive File Save"), QMessageBox::Ok}},
      [&] { person.ChooseFromMenu("mOArchive"); }, "archive-question");
  person.ChooseFromMenu("mOArchiveV");
  person.ExpectText("Label6", QStringLiteral("There is 1 Entry - Archive Documents"));
  person.TakePicture("archive");
  person.Click("SSCommand7");
}

void TrackLeave(Traveller& person) {
  person.Click("SSCommand11(15)");
  person.ExpectTop("Vacation1");
  person.Type(QStringLiteral("Ann Lee"));
  for (int i = 0; i < 3; ++i) {
    person.Press(Qt::Key_Tab);
    person.Type(QStringLiteral("1.5"));
  }
  person.Press(Qt::Key_Return);
  person.ChooseFromMenu("mOS");
  person.TakePicture("vacation");
  person.Click("Command2");
  person.TakePicture("vacation-print");
  person.Click("SSCommand80(2)");
  person.Click("Command3");
  person.ExpectTop("WorkArea1");
}

void KeepBudget(Traveller& person) {
  person.Click("SSCommand11(5)");
  person.ExpectTop("Budget1a");
  person.Type(QStringLiteral("Rent"));
  for (const char* amount : {"1200", "1200", "1310.50"}) {
    person.Press(Qt::Key_Tab);
    person.Type(QLatin1String(amount));
  }
  person.Press(Qt::Key_Return);
  person.FillIn(QStringLiteral("Total Income"), QStringLiteral("8000"),
                [&] { person.Click("Label5(11)"); });
  person.ChooseFromMenu("mOS");
  person.TakePicture("budget");
  person.Click("Command8");
  person.TakePicture("budget-totals");
  person.Click("SSOption1(1)");
  person.TakePicture("budget-pie");
  person.ChooseFromMenu("mOPrt");
  person.TakePicture("budget-totals-print");
  person.Click("SSCommand80(2)");
  person.Click("Command9");
  person.Click("Command3");
  person.ExpectTop("WorkArea1");
}

void KeepVehicle(Traveller& person) {
  person.Click("SSCommand11(6)");
  person.ExpectTop("AutoMaint");
  person.Click("Command7");
  person.Type(QStringLiteral("Van 2"));
  person.Click("Text1(2)");
  person.Type(QStringLiteral("Ford"));
  person.Click("Text1(4)");
  person.Type(QStringLiteral("12500"));
  person.TakePicture("vehicle-new");
  person.Click("Command11");
  person.TakePicture("vehicle-schedule");
  person.Answer(QStringLiteral("Create New File"), QMessageBox::Yes,
                [&] { person.Click("Command13"); });
  person.Click("Command5");
  person.TakePicture("vehicle-repairs");
  person.Click("Command15");
  person.TakePicture("vehicle-fuel");
  person.ChooseFromMenu("mOGas");
  person.TakePicture("vehicle-calculator");
  person.Click("Command20");
  person.Click("Command9");
  person.TakePicture("vehicle-print");
  person.Click("SSCommand80(2)");
  person.Click("Command1");
  person.ExpectTop("WorkArea1");
}

void FillInWorksheet(Traveller& person) {
  person.Click("SSCommand4(0)");
  person.Click("SSCommand11(7)");
  person.ChooseFromMenu("mORATitle");
  person.Type(QStringLiteral("Fire Safety"));
  person.TakePicture("worksheet-titles");
  person.Click("SSCommand23(0)");
  person.Click("SSCommand12(1)");
  person.Click("SSCommand2");
  person.Answer(QStringLiteral("File Save Command"), QMessageBox::Ok,
                [&] { person.Click("SSCommand6"); });
  person.TakePicture("worksheet");
  person.Click("SSOption2");
  person.Click("SSCommand13(7)");
  person.TakePicture("rule");
}

void LookAtEmployees(Traveller& person) {
  person.Click("SSCommand4(1)");
  person.Click("SSCommand11(13)");
  person.ExpectTop("FDisplay1");
  person.TakePicture("employee-display");
  person.Click("Command1");
}

void LookAtContacts(Traveller& person) {
  person.Click("SSCommand11(3)");
  person.ExpectTop("ADDBKDISPLAY");
  person.Click("Option3D1(1)");
  person.TakePicture("contact-display");
  person.Answer(QStringLiteral("Print Pictures Restraint"), QMessageBox::Ok,
                [&] { person.Click("Option3D1(13)"); });
  person.ExpectTop("ADDBKDISPLAY2");
  person.TakePicture("contact-pictures");
  person.Click("SSCommand3");
  person.TakePicture("contact-pictures-print");
  person.Click("SSCommand80(2)");
  person.Click("SSCommand5");
  person.ExpectTop("ADDBKDISPLAY");
  person.Click("Command1");
  person.ExpectTop("ToolsandInfo1");
}

void LookAtWebSites(Traveller& person) {
  person.Click("SSCommand4(2)");
  person.ExpectTop("InfoAdv");
  person.TakePicture("getting-started");
  person.Click("SSCommand11(1)");
  person.TakePicture("federal-web-sites");
  person.Click("SSCommand11(2)");
  person.Click("SSOption1(4)");
  person.ExpectText("Label5(0)", QStringLiteral("https://business.ca.gov/"));
  person.TakePicture("state-web-sites");
}

void GoToPlanner(Traveller& person) {
  person.Click("SSCommand4(3)");
  person.ExpectTop("ToolsandInfo1");
  person.TakePicture("tools-and-program-info");
  person.Click("SSCommand11(4)");
  person.Click("SSCommand2(1)");
  person.TakePicture("incident-report-print");
  person.Click("SSCommand80(2)");
  person.Meet(
      "Backup1", [&] { person.ChooseFromMenu("mUB"); },
      [&] {
        person.TakePicture("backup");
        person.Click("SSCommand1");
      });
  person.Click("SSCommand11(5)");
  person.ExpectTop("Zcalandar1");
}

void CorrectAppointment(Traveller& person) {
  const auto answer = [&] {
    person.TakePicture("spelling");
    person.Click("Command1");
  };
  const auto check = [&] {
    person.Meet(
        "VSSpell1", [&] { person.Click("Command8"); }, answer);
  };
  person.Answer(QStringLiteral("Spelling Check"), QMessageBox::Ok, check);
}

void WriteAppointment(Traveller& person) {
  person.TakePicture("planner-empty");
  person.Click("Text1(0)");
  person.Type(kTime);
  person.Press(Qt::Key_Return);
  person.Type(kMistypedAppointment);
  CorrectAppointment(person);
  person.ExpectText("Text2(0)", kAppointment);
  person.TakePicture("planner-filled");
  person.Answer(
      QStringLiteral("Save File Command"), QMessageBox::Ok, [&] { person.Click("Command1"); },
      "planner-saved");
}

void LookAtCalendarOptions(Traveller& person) {
  person.ChooseFromMenu("mOCal");
  person.TakePicture("calendar-options");
  person.Click("Command9");
}

void LookAtRecurrence(Traveller& person) {
  person.Click("Option2(0)");
  person.ExpectText("Label14", QStringLiteral(" Appointment: 9:30 AM Dentist "));
  person.TakePicture("recurrence");
  person.Click("SSCommand3");
}

void LookAtMonth(Traveller& person) {
  person.Click("Command4");
  person.TakePicture("month");
  person.ChooseFromMenu("mUExport");
  person.ExpectText("Text100", QStringLiteral("Daily Planner.xls"));
  person.TakePicture("export");
  person.Click("SSCommand100(1)");
  person.Click("Command6");
  person.TakePicture("month-print");
  person.Click("SSCommand80(2)");
  person.Click("Command5");
}

void LookAtPrint(Traveller& person) {
  person.Click("Command7");
  person.TakePicture("print");
  person.Click("Option83(1)");
  person.Click("Check83");
  person.Click("SSOption82(1)");
  person.TakePicture("print-two-columns");
  person.Click("SSCommand1");
  person.TakePicture("print-enlarged");
  person.Click("SSCommand2");
  person.TakePicture("print-whole-page");
  person.Click("SSCommand80(2)");
}

void KeepContact(Traveller& person) {
  person.Click("SSCommand11(2)");
  person.ExpectTop("ADDBKVIEW1");
  person.Type(QStringLiteral("Acme Tools"));
  person.TakePicture("contact-entry");
  person.Click("Command1(5)");
  person.Click("Command4");
  person.Type(QStringLiteral("acme"));
  person.Press(Qt::Key_Return);
  person.TakePicture("contact-view");
  person.Click("SSCommand3");
  person.TakePicture("contact-picture");
  person.Click("SSCommand30(1)");
  person.ChooseFromMenu("mOW");
  person.TakePicture("contact-worksheet");
  person.Click("SSCommand80(2)");
  person.Click("Command1(0)");
  person.ExpectTop("ToolsandInfo1");
}

void MakeCalendar(Traveller& person) {
  person.Click("SSCommand11(6)");
  person.ExpectTop("Calendar");
  person.Click("Text1(0)");
  person.Type(kAppointment);
  person.TakePicture("calendar");
  person.Click("Command4");
  person.Click("SSCommand1");
  person.TakePicture("calendar-enlarged");
  person.Press(Qt::Key_Escape);
  person.ExpectTop("ToolsandInfo1");
}

void FirstDay(Traveller& person, desktop::Desktop& desktop) {
  person.Use(desktop);
  person.TakePictureSoon("splash");
  desktop.Start();
  person.ExpectTop("Startfrm");
  person.TakePicture("start");
  WriteToDoItem(person);
  WriteAgreement(person);
  LookAtOtherDocuments(person);
  WriteReport(person);
  TrackLeave(person);
  FillInWorksheet(person);
  KeepBudget(person);
  KeepVehicle(person);
  LookAtEmployees(person);
  LookAtWebSites(person);
  GoToPlanner(person);
  WriteAppointment(person);
  LookAtCalendarOptions(person);
  LookAtRecurrence(person);
  LookAtMonth(person);
  LookAtPrint(person);
  person.Press(Qt::Key_Escape);
  person.ExpectTop("ToolsandInfo1");
  KeepContact(person);
  LookAtContacts(person);
  MakeCalendar(person);
  person.Answer(
      QStringLiteral("Exit"), QMessageBox::Yes, [&] { person.Click("SSCommand4(4)"); }, "exit");
}

void SecondDay(Traveller& person, desktop::Desktop& desktop) {
  person.Use(desktop);
  desktop.Start();
  person.ExpectTop("Startfrm");
  person.TakePicture("reminder");
  person.Click("Command3");
  person.ExpectTop("Zcalandar1");
  person.ExpectText("Text1(0)", kTime);
  person.ExpectText("Text2(0)", kAppointment);
  person.TakePicture("planner-of-the-reminder");
  person.Click("Command2");
  person.ExpectTop("Startfrm");
  person.Press(Qt::Key_Escape);
}

}  // namespace

QStringList TravelJourney(const JourneyPlan& plan) {
  Traveller person(plan.pictures);
  QStringList left_running;
  for (auto* day : {FirstDay, SecondDay}) {
    desktop::Desktop desktop(plan.folders, desktop::Outside::None());
    day(person, desktop);
    if (!desktop.ended()) left_running << QStringLiteral("the program is still running");
  }
  return person.notes() + left_running;
}

}  // namespace tarnwell::testing
