#include "vehicles/information_pane.h"

#include <algorithm>

#include "parts/picture_panel.h"
#include "storage/sequential_file.h"
#include "text/letters.h"
#include "vehicles/cell_values.h"
#include "vehicles/vehicle_slots.h"

namespace tarnwell::vehicles {
namespace {

constexpr std::size_t kLongestField = 60;  // characters that can be typed
constexpr int kPictureWidth = 480;         // pixels
constexpr int kPictureHeight = 360;

// Nothing where the list doesn't have it.
void SelectText(forms::ComboBox& list, const std::string& text) {
  const auto item = std::ranges::find(list.items(), text);
  list.Select(item == list.items().end() ? forms::ComboBox::kNone
                                         : static_cast<int>(item - list.items().begin()));
}

}  // namespace

InformationPane::InformationPane(forms::Container& parent, forms::Panel& head, Tracker& tracker)
    : years(head, "Combo6", "Years"),
      makes(head, "Combo7", "Makes"),
      models(head, "Combo8", "Models"),
      panel(parent, "SSPanel2"),
      tracker_(tracker) {
  for (std::size_t i = 0; i <= kLastField; ++i) AddField(i < kFirstGeneral ? head : panel, i);
  constexpr const char* kGroups[] = {"General Information", "Insurance Information",
                                     "Maintenance Information"};
  for (std::size_t i = 0; i < groups.size(); ++i) {
    groups[i] = std::make_unique<forms::Label>(panel, "Label42(" + std::to_string(i) + ")",
                                               kGroups[i], forms::LabelRole::kHeading);
  }
  years.on_pick = [this] { Fill(kYear, years.text()); };
  makes.on_pick = [this] { PickMake(); };
  models.on_pick = [this] { Fill(kModel, models.text()); };
  fields[kOdometer]->on_leave = fields[kRegistrationMonth]->on_leave = [this] { on_leave(); };
  remove_picture.on_click = [this] {
    ShowPicture({});
    tracker_.on_change();
  };
  picture.SetSpokenName("Picture of the vehicle");
  ShowPicture({});
}

void InformationPane::AddField(forms::Container& parent, std::size_t index) {
  const std::string place = "(" + std::to_string(index) + ")";
  captions[index] =
      std::make_unique<forms::Label>(parent, "Label40" + place, kFieldCaptions[index]);
  fields[index] = std::make_unique<forms::TextField>(
      parent, "Text1" + place,
      forms::TextFieldStyle{.max_length = index == 0 ? kLongestVehicleName : kLongestField,
                            .spoken_name = kFieldCaptions[index]});
  fields[index]->on_change = [this, &field = *fields[index]] { Typed(field); };
}

void InformationPane::Typed(forms::TextField& field) {
  if (const std::string kept = storage::WithoutQuotes(field.text()); kept != field.text()) {
    field.SetText(kept);
    field.PlaceCaret(kept.size());
  }
  tracker_.on_change();
}

void InformationPane::Fill(Field index, const std::string& text) {
  fields[index]->SetText(text);
  tracker_.on_change();
}

void InformationPane::PickMake() {
  models.SetItems(ModelsOf(known_, makes.text()));
  fields[kModel]->SetText({});
  Fill(kMake, makes.text());
}

void InformationPane::FillLists(text::Date today) {
  if (known_.empty()) known_ = ReadMakes(tracker_.context.folder);
  std::vector<std::string> names;
  for (const Make& make : known_) names.push_back(make.name);
  makes.SetItems(std::move(names));
  years.SetItems(YearsOffered(today));
}

void InformationPane::OfferMakes(text::Date today) {
  FillLists(today);
  makes.Select(0);
  models.SetItems(ModelsOf(known_, makes.text()));
  SelectText(years, FirstYear(today));
}

void InformationPane::OfferMakesBeside(text::Date today) {
  FillLists(today);
  models.SetItems(ModelsOf(known_, fields[kMake]->text()));
  SelectText(years, fields[kYear]->text());
  SelectText(makes, fields[kMake]->text());
  SelectText(models, fields[kModel]->text());
}

void InformationPane::Show(const VehicleSheet& sheet) {
  for (std::size_t i = kYear; i <= kLastField; ++i) fields[i]->SetText(sheet.fields[i]);
  ShowPicture(sheet.picture);
}

void InformationPane::Store(VehicleSheet& sheet) const {
  for (std::size_t i = kYear; i <= kLastField; ++i) sheet.fields[i] = fields[i]->text();
  sheet.picture = picture_path_;
}

void InformationPane::FormatOdometer() {
  fields[kOdometer]->SetText(WholeText(fields[kOdometer]->text()));
}

void InformationPane::ShowPicture(const std::string& path) {
  picture_path_ = path;
  remove_picture.SetEnabled(!path.empty());
  const parts::ShownPicture shown =
      parts::LoadShown(tracker_.context, text::Trim(path), kPictureWidth, kPictureHeight);
  picture.SetContent(shown.picture.png);
  picture_note.SetCaption(shown.note);
}

}  // namespace tarnwell::vehicles
