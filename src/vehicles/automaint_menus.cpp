#include <utility>

#include "parts/backup_menu.h"
#include "parts/help_menu.h"
#include "vehicles/automaint.h"

namespace tarnwell::vehicles {

void AutoMaint::BuildMenus() {
  const std::vector<forms::Control*> with_sheet{&sheet};
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  options.AddCommand("mOCr", "&Create New File", create);
  options.AddCommand("mOV", "&View Existing File", view);
  options.AddCommand("mODel", "&Delete Existing File", remove);
  // While a vehicle is created it finishes that, in the place of the hidden button.
  options
      .AddEntry("mOS", "&Save",
                {[this] {
                   if (HasVehicle()) Save();
                 },
                 with_sheet})
      .SetKey("Ctrl+S");
  options.AddSeparator();
  for (const auto& [name, words] : {std::pair{"mOGas", &kMileWords}, {"mOKm", &kKilometerWords}}) {
    options.AddEntry(name, "&" + std::string(words->calculator_title),
                     {[this] {
                        if (EndEdit()) calculator.Open();
                      },
                      with_sheet});
  }
  const auto add_unit = [&](const char* name, const char* caption, settings::DistanceUnit unit) {
    options.AddEntry(name, caption, {[this, unit] { SetUnit(unit); }, with_sheet}).SetCheckable();
  };
  add_unit("mOProgMiles", "Use &Miles", settings::DistanceUnit::kMiles);
  add_unit("mOProgKilo", "Use &Kilometers", settings::DistanceUnit::kKilometers);
  options.AddEntry("DisableDateChecker(0)", "Turn OFF Date Checker",
                   {[this] { SetDateChecker(false); }, with_sheet});
  options.AddEntry("DisableDateChecker(1)", "Turn ON Date Checker",
                   {[this] { SetDateChecker(true); }, with_sheet});
  options.AddSeparator();
  options.AddCommand("mOP", "&Print Options", print_options).SetKey("Ctrl+P");
  options.AddEntry("mOPW", "Print &Worksheet", {[this] { OpenWorksheet(); }, with_sheet});
  options.AddEntry("mOC", "Panel C&olor", [this] { colors_.Choose(parts::ColorTarget::kPanel); });
  options.AddSeparator();
  options.AddCommand("mOEx", "E&xit", exit);
  forms::MenuItem& edit = menus().AddSubmenu("mE", "&Edit");
  edit.AddEntry("mERemove", "&Remove Blank Action Rows",
                {[this] { maintenance.RemoveBlankRows(); }, {&maintenance.grid}});
  forms::MenuItem& views = menus().AddSubmenu("mV", "Vie&w");
  views.AddEntry("mVAll", "&View/Print All Action Required - All Vehicles",
                 {[this] { OpenAllDue(); }, with_sheet});
  forms::MenuItem& utilities = menus().AddSubmenu("mU", "&Utilities");
  parts::AddBackupEntries(
      utilities, context_,
      {.set = parts::kVehiclesSet,
       .backup = "&Backup Vehicle Maintenance Files to Disk",
       .restore = "&Restore Vehicle Maintenance Files from Disk",
       .settle = [this] { return Settle() && colors_.Leave(forms::Buttons::kYesNoCancel); },
       .reload = [this] { Load(); }});
  for (forms::MenuItem* menu : {&options, &edit, &views, &utilities}) menu->LiveWith(with_sheet);
  SetPopupMenu(options);
  parts::AddHelpMenu(*this, context_, {{"Company &Vehicle Maintenance Tracker", kHelpPage}});
}

}  // namespace tarnwell::vehicles
