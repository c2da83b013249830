// The makes of vehicles and their models, which are supplied: a list to choose from, which limits
// nothing.

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "storage/program_folder.h"
#include "text/date.h"

namespace tarnwell::vehicles {

struct Make {
  std::string name;
  std::vector<std::string> models;
};

// From Makes.Dat: a make on each line that doesn't begin with a blank, and its models on the lines
// behind it that do. Empty where there is no such file.
std::vector<Make> ReadMakes(storage::ProgramFolder& folder);

// Empty for a make that isn't among them.
std::vector<std::string> ModelsOf(std::span<const Make> makes, std::string_view name);

// The years to choose from, the next one first.
std::vector<std::string> YearsOffered(text::Date today);
// The year that is shown first: today's two last digits, which from 90 on are those of 19xx.
std::string FirstYear(text::Date today);

}  // namespace tarnwell::vehicles
