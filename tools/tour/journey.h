// A day with the program, driven by keys and clicks in its real window.

#pragma once

#include <QString>
#include <QStringList>

#include "desktop/services/folders.h"

namespace tarnwell::testing {

struct JourneyPlan {
  desktop::Folders folders;
  QString pictures;  // a folder; each screen is saved there as "NN-name.png"
};

// Two starts of the program: the first writes an appointment into today's first row, the second is
// reminded of it. What went otherwise, in words; empty when all went well.
QStringList TravelJourney(const JourneyPlan& plan);

}  // namespace tarnwell::testing
