#pragma once

#include <QComboBox>
#include <cstddef>
#include <string>
#include <vector>

namespace tarnwell::desktop {

inline constexpr int kMostShown = 12;  // entries of an open list before it scrolls

// A long list isn't measured text by text.
void FitWidth(QComboBox* box, std::size_t items);

// True when the entries weren't these already; then none is chosen, and an editable box is empty.
bool ShowItems(QComboBox* box, const std::vector<std::string>& items);

}  // namespace tarnwell::desktop
