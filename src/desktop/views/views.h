// One view for each form: the arrangement of its controls, nothing else.

#pragma once

#include <QWidget>

namespace tarnwell::shell {
class About1;
class Splash1;
class Startfrm;
}  // namespace tarnwell::shell
namespace tarnwell::workarea {
class WorkArea1;
}
namespace tarnwell::reference {
class InfoAdv;
class ToolsandInfo1;
}  // namespace tarnwell::reference
namespace tarnwell::backup {
class Backup1;
}
namespace tarnwell::budget {
class Budget1a;
}
namespace tarnwell::images {
class PhotoVIEW1;
}
namespace tarnwell::leave {
class LeaveSheet;
}
namespace tarnwell::record_book {
class DisplayScreen;
class EntryScreen;
class PicturePages;
}  // namespace tarnwell::record_book
namespace tarnwell::planner {
class Calendar;
class Zcalandar1;
}  // namespace tarnwell::planner
namespace tarnwell::vehicles {
class AutoMaint;
}
namespace tarnwell::proofing {
class VSSpell1;
class VSThesaurus1;
}  // namespace tarnwell::proofing

namespace tarnwell::desktop {

class PictureStore;

QWidget* View(shell::Startfrm& form, PictureStore& pictures);
QWidget* View(shell::Splash1& form, PictureStore& pictures);
QWidget* View(shell::About1& form, PictureStore& pictures);
QWidget* View(workarea::WorkArea1& form, PictureStore& pictures);
QWidget* View(reference::InfoAdv& form, PictureStore& pictures);
QWidget* View(reference::ToolsandInfo1& form, PictureStore& pictures);
QWidget* View(planner::Zcalandar1& form, PictureStore& pictures);
QWidget* View(planner::Calendar& form, PictureStore& pictures);
QWidget* View(budget::Budget1a& form, PictureStore& pictures);
QWidget* View(leave::LeaveSheet& form, PictureStore& pictures);
QWidget* View(record_book::EntryScreen& form, PictureStore& pictures);
QWidget* View(record_book::DisplayScreen& form, PictureStore& pictures);
QWidget* View(record_book::PicturePages& form, PictureStore& pictures);
QWidget* View(images::PhotoVIEW1& form, PictureStore& pictures);
QWidget* View(vehicles::AutoMaint& form, PictureStore& pictures);
QWidget* View(backup::Backup1& form, PictureStore& pictures);
QWidget* View(proofing::VSSpell1& form, PictureStore& pictures);
QWidget* View(proofing::VSThesaurus1& form, PictureStore& pictures);

}  // namespace tarnwell::desktop
