#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "vehicles/entry_rules.h"
#include "vehicles/makes.h"
#include "vehicles/vehicle_sheet.h"

namespace tarnwell::vehicles {

// What is known of a vehicle. Its year, make, model and odometer stand in `head`, which stays in
// sight beside every pane.
class InformationPane {
 public:
  InformationPane(forms::Container& parent, forms::Panel& head, Tracker& tracker);

  std::array<std::unique_ptr<forms::Label>, kLastField + 1> captions;  // none for the first
  std::array<std::unique_ptr<forms::TextField>, kLastField + 1> fields;
  // Lists beside the first fields; what is picked is copied there.
  forms::ComboBox years;
  forms::ComboBox makes;
  forms::ComboBox models;
  forms::Panel panel;
  std::array<std::unique_ptr<forms::Label>, 3> groups;
  forms::Picture picture{panel, "Image1", {}};
  forms::Label picture_note{panel, "Label41", {}, forms::LabelRole::kNote};
  forms::Command choose_picture{panel, "Command25", "Select Pict&ure"};
  forms::Command remove_picture{panel, "Command26", "Re&move Picture"};

  void Show(const VehicleSheet& sheet);
  // Into the sheet.
  void Store(VehicleSheet& sheet) const;
  // The lists, with today's year and the first make shown.
  void OfferMakes(text::Date today);
  // The lists, with what stands in the fields.
  void OfferMakesBeside(text::Date today);
  // "12,000".
  void FormatOdometer();
  forms::TextField& field(Field index) { return *fields[index]; }
  const std::string& picture_path() const { return picture_path_; }
  // Shows the picture at that path, or why it can't be shown.
  void ShowPicture(const std::string& path);

  // A person has left the odometer or the registration month.
  std::function<void()> on_leave;

 private:
  void AddField(forms::Container& parent, std::size_t index);
  void FillLists(text::Date today);
  void PickMake();
  void Fill(Field index, const std::string& text);
  void Typed(forms::TextField& field);

  Tracker& tracker_;
  std::vector<Make> known_;
  std::string picture_path_;
};

}  // namespace tarnwell::vehicles
