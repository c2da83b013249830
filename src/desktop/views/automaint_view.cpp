#include <QGridLayout>

#include "desktop/views/picture_panel_view.h"
#include "desktop/views/print_view.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "vehicles/automaint.h"

namespace tarnwell::desktop {
namespace {

constexpr int kLettersOfFile = 40;
constexpr int kLettersOfHead = 150;
constexpr int kLettersOfVehiclePanel = 120;
constexpr int kLettersOfCalculator = 90;
constexpr QSize kPictureSize(160, 100);

QWidget* Head(vehicles::AutoMaint& form) {
  vehicles::InformationPane& information = form.information;
  const auto caption = [&](std::size_t i) { return Widget(*information.captions[i]); };
  const auto field = [&](std::size_t i) { return Widget(*information.fields[i]); };
  return Widget(form.head,
                Column({Row({caption(0), Grow(AtMost(Widget(form.files), kLettersOfFile), 2),
                             Grow(AtMost(field(0), kLettersOfFile), 2), Spring(),
                             Widget(form.registration), Widget(form.today)}),
                        AtMost(Grid({{caption(vehicles::kYear), caption(vehicles::kMake),
                                      caption(vehicles::kModel), caption(vehicles::kOdometer)},
                                     {field(vehicles::kYear), field(vehicles::kMake),
                                      field(vehicles::kModel), field(vehicles::kOdometer)},
                                     {Widget(information.years), Widget(information.makes),
                                      Widget(information.models), Row({})}},
                                    2),
                               kLettersOfHead)},
                       kTightSpace));
}

// A group of fields, its captions in a column beside them.
QWidget* Group(vehicles::InformationPane& pane, std::size_t group, std::size_t first,
               std::size_t end) {
  auto* table = new QWidget;
  auto* rows = new QGridLayout(table);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setVerticalSpacing(kTightSpace);
  for (std::size_t i = first; i < end; ++i) {
    const int row = static_cast<int>(i - first);
    rows->addWidget(Widget(*pane.captions[i]), row, 0, Qt::AlignRight);
    rows->addWidget(Widget(*pane.fields[i]), row, 1);
  }
  rows->setColumnStretch(1, 1);
  return Column({Widget(*pane.groups[group]), table, Spring()}, kTightSpace);
}

QWidget* Information(vehicles::InformationPane& pane, PictureStore& pictures) {
  using vehicles::kFirstGeneral;
  using vehicles::kFirstInsurance;
  using vehicles::kFirstMaintenance;
  QWidget* insurance =
      Column({Group(pane, 1, kFirstInsurance, kFirstMaintenance),
              Grow(AtLeast(kPictureSize, Widget(pane.picture, pictures))),
              Wrapped(Widget(pane.picture_note)),
              Flow({Widget(pane.choose_picture), Widget(pane.remove_picture)}, kTightSpace)});
  return Widget(pane.panel,
                Row({Grow(Group(pane, 0, kFirstGeneral, kFirstInsurance)), Grow(insurance),
                     Grow(Group(pane, 2, kFirstMaintenance, vehicles::kLastField + 1))},
                    kWideSpace));
}

QWidget* Maintenance(vehicles::MaintenancePane& pane, PictureStore& pictures) {
  return Widget(
      pane.panel,
      Column({Row({Grow(Column({Widget(pane.intervals), Grow(Widget(pane.grid, pictures))},
                               kTightSpace)),
                   AtTop(Widget(pane.calendar))}),
              Wrapped(Widget(pane.note))}));
}

QWidget* History(vehicles::HistoryPane& pane, PictureStore& pictures) {
  return Widget(pane.panel, Column({Widget(pane.heading), Grow(Widget(pane.grid, pictures)),
                                    Row({Spring(), Widget(pane.sum_title), Widget(pane.sum)}),
                                    Flow({Widget(pane.maintenance), Widget(pane.repairs),
                                          Widget(pane.all), Widget(pane.remove)},
                                         kTightSpace)}));
}

QWidget* Fuel(vehicles::FuelPane& pane, PictureStore& pictures) {
  return Widget(
      pane.panel,
      Column({Widget(pane.title),
              Grow(Row({Grow(Widget(pane.grid, pictures)), AtTop(Widget(pane.calendar))})),
              Flow({Widget(pane.totals_title), Widget(pane.driven), Widget(pane.fuel),
                    Widget(pane.rate), Widget(pane.cost), Widget(pane.remove)})}));
}

QWidget* Calculator(vehicles::CalculatorPanel& panel) {
  return Widget(
      panel.panel,
      Card(Column(
          {Widget(panel.title),
           Grid({{Widget(panel.current_title), Widget(panel.current), Widget(panel.use_odometer)},
                 {Widget(panel.previous_title), Widget(panel.previous), Row({})},
                 {Widget(panel.driven_title), Widget(panel.driven), Row({})},
                 {Widget(panel.fuel_title), Widget(panel.fuel), Row({})},
                 {Widget(panel.rate_title), Widget(panel.rate), Row({})}},
                1),
           Row({Spring(), Widget(panel.close)})})));
}

QWidget* Print(vehicles::VehiclePrint& print) {
  return PrintView(
      print.panel,
      {Widget(print.information), Widget(print.maintenance), Widget(print.repairs),
       Widget(print.maintenance_history), Widget(print.all_history), Widget(print.fuel),
       Widget(print.picture), Widget(print.in_15_days), Widget(print.in_30_days),
       Widget(print.in_250), Widget(print.in_500), Widget(print.border), Widget(print.update)});
}

QWidget* Sheet(vehicles::AutoMaint& form, PictureStore& pictures) {
  QWidget* panes = Column(
      {Grow(Information(form.information, pictures)), Grow(Maintenance(form.maintenance, pictures)),
       Grow(Widget(form.repairs.panel, Widget(form.repairs.grid, pictures))),
       Grow(History(form.history, pictures)), Grow(Fuel(form.fuel, pictures))},
      0);
  return Widget(
      form.sheet,
      Column({Head(form),
              Flow({Widget(form.view_information), Widget(form.view_maintenance),
                    Widget(form.view_repairs), Widget(form.view_history), Widget(form.view_fuel)},
                   kTightSpace),
              Grow(panes),
              Flow({Primary(Widget(form.next_to_schedule)), Primary(Widget(form.next_to_repairs)),
                    Primary(Widget(form.finish)), Widget(form.create), Widget(form.view),
                    Widget(form.remove), WithIcon("save", Widget(form.save)),
                    WithIcon("print", Widget(form.print_options)),
                    WithIcon("exit", Widget(form.exit))},
                   kTightSpace)}));
}

}  // namespace

QWidget* View(vehicles::AutoMaint& form, PictureStore& pictures) {
  return Padded(
      Column({Grow(Sheet(form, pictures)),
              AtTop(AtMost(Calculator(form.calculator), kLettersOfCalculator)),
              Grow(AtMost(PicturePanelView(form.picture_choice, pictures), kLettersOfVehiclePanel)),
              AtTop(Widget(form.searching, Widget(form.progress))), Grow(Print(form.print))},
             0),
      kSpace);
}

}  // namespace tarnwell::desktop
