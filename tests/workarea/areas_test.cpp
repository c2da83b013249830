#include "workarea/areas.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "storage/file_names.h"

namespace tarnwell::workarea {
namespace {

TEST(Areas, EveryDocumentThatHasAButtonHasASuppliedTemplate) {
  int documents = 0;
  for (const DocumentGroup& group : DocumentGroups()) {
    for (const DocumentButton& button : group.documents) {
      if (!button.form.empty()) continue;
      ++documents;
      const std::string file = storage::file_names::DocumentTemplate(group.base + button.index);
      EXPECT_TRUE(std::filesystem::exists(TARNWELL_SOURCE_DIR "/data/" + file))
          << button.caption << " " << file;
    }
  }
  EXPECT_EQ(documents, 38);
}

}  // namespace
}  // namespace tarnwell::workarea
