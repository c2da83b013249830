// The supplied documents on paper.

#include <gtest/gtest.h>

#include "desktop/widgets/page_fonts.h"
#include "print/page_engine.h"
#include "print/rich_text.h"
#include "richtext/supplied_documents.h"

namespace tarnwell::desktop {
namespace {

forms::Document PagesOf(const std::string& file) {
  PageMetrics metrics;
  print::PageEngine engine(metrics);
  engine.Start({}, {});
  print::AddRichPages(engine, richtext::Supplied(file));
  return engine.document();
}

// A form that should fit a sheet spills over by one line, and nobody sees it on the screen.
TEST(SuppliedPages, EachDocumentTakesThePagesThatItWasWrittenFor) {
  const struct {
    const char* file;
    std::size_t pages;
  } cases[] = {
      {"EmployPolicy0.Fl1", 5},  {"EmployPolicy1.Fl1", 5},   {"EmployPolicy2.Fl1", 5},
      {"EmployPolicy4.Fl1", 5},  {"EmployPolicy5.Fl1", 8},   {"EmployPolicy6.Fl1", 2},
      {"EmployPolicy7.Fl1", 6},  {"EmployPolicy8.Fl1", 5},   {"EmployPolicy9.Fl1", 3},
      {"EmployPolicy10.Fl1", 5}, {"EmployPolicy11.Fl1", 6},  {"EmployPolicy12.Fl1", 2},
      {"EmployPolicy13.Fl1", 4}, {"EmployPolicy14.Fl1", 1},  {"EmployPolicy15.Fl1", 4},
      {"EmployPolicy16.Fl1", 4}, {"EmployPolicy17.Fl1", 5},  {"EmployPolicy18.Fl1", 1},
      {"EmployPolicy19.Fl1", 1}, {"EmployPolicy20.Fl1", 1},  {"EmployPolicy23.Fl1", 2},
      {"EmployPolicy24.Fl1", 2}, {"EmployPolicy25.Fl1", 17}, {"EmployPolicy26.Fl1", 2},
      {"EmployPolicy27.Fl1", 2}, {"EmployPolicy28.Fl1", 3},  {"EmployPolicy29.Fl1", 2},
      {"EmployPolicy30.Fl1", 4}, {"EmployPolicy31.Fl1", 2},  {"EmployPolicy32.Fl1", 2},
      {"EmployPolicy33.Fl1", 5}, {"EmployPolicy34.Fl1", 5},  {"EmployPolicy35.Fl1", 16},
      {"EmployPolicy36.Fl1", 4}, {"EmployPolicy37.Fl1", 5},  {"EmployPolicy38.Fl1", 5},
      {"EmployPolicy39.Fl1", 3}, {"EmployPolicy40.Fl1", 3},  {"EmployPolicy41.Fl1", 4},
      {"DRPln1.Fl1", 22},        {"EmployAction1.Fl2", 3},   {"Misc1.Fl1", 1},
      {"Misc2.Fl1", 2},          {"Misc8.Fl1", 3},           {"Misc57.Fl1", 3},
      {"SamplePol.Dat", 2},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(PagesOf(c.file).pages.size(), c.pages) << c.file;
  }
}

}  // namespace
}  // namespace tarnwell::desktop
