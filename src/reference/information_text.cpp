#include "reference/information_text.h"

#include "forms/disk_trouble.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"

namespace tarnwell::reference {

std::string ShowInformationText(storage::ProgramFolder& folder, std::string_view file,
                                forms::RichTextBox& box) {
  box.SetLocked(true);
  box.Clear();
  const std::string the_text = "The text " + std::string(file);
  const storage::ReadResult read = folder.Read(file);
  if (read.is_missing()) return the_text + " is missing.";
  if (read.is_unreadable()) {
    return the_text + " can't be read: " + std::string(forms::ReasonOf(read.fault)) + ".";
  }
  box.SetDocument(richtext::ReadRichText(read.content));
  if (box.document().is_part) return the_text + " is too long to be shown whole.";
  if (richtext::HoldsNothing(box.document())) return the_text + " is empty.";
  return {};
}

}  // namespace tarnwell::reference
