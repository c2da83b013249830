// Documents to stored bytes. docs/formats/rich-text.md describes what is written.

#pragma once

#include <string>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// The RTF of a document, in ASCII but for the opaque parts. Reading it gives the same document,
// fonts and colours that its tables lacked apart. What the document keeps beyond its model stands
// where it stood.
std::string WriteRichText(const RichDocument& document);

// What a document was read from, kept while it is edited.
struct StoredForm {
  std::string bytes;
  std::string rewritten;  // the RTF of the document that they give
};

// `read` is the document that the bytes give.
StoredForm StoredFormOf(std::string bytes, const RichDocument& read);

// What a save writes: the bytes the document was read from if it is the document that they give,
// else its RTF. So a document that nobody changed, or whose changes were taken back, is saved byte
// for byte; a changed one loses nothing that a view doesn't show.
std::string SaveRichText(const RichDocument& document, const StoredForm& read_from);

}  // namespace tarnwell::richtext
