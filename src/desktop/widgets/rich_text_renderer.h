// Shows a document as Qt's text. Each paragraph is a block, in the same order. Only Qt's blocks
// before a table at the beginning and between the parts of a long table have no paragraph, and
// only the paragraphs of cells that lie under a merged one have no block.

#pragma once

#include <QByteArray>
#include <QHash>
#include <QSize>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <span>
#include <string_view>
#include <vector>

#include "desktop/widgets/rich_text_formats.h"
#include "desktop/widgets/table_parts.h"
#include "richtext/change.h"
#include "richtext/kept_things.h"
#include "richtext/rich_document.h"
#include "richtext/table_grid.h"

namespace tarnwell::desktop {

class RichTextRenderer {
 public:
  explicit RichTextRenderer(QTextDocument& target) : target_(target) {}

  void RenderAll(const richtext::RichDocument& document, const RichTextFormats& formats);
  // The same in steps, for a long document that must not change meanwhile. `work` is about how many
  // paragraphs of one line a step shows; it ends behind a paragraph or a part of a table.
  void Start(const richtext::RichDocument& document, const RichTextFormats& formats);
  void RenderMore(const richtext::RichDocument& document, const RichTextFormats& formats,
                  std::size_t work);
  bool is_done() const { return is_done_; }
  // Shows what changed since the last rendering. The document is the one behind all changes. False
  // if it has to be rendered anew.
  bool Update(const richtext::RichDocument& document, const RichTextFormats& formats,
              const std::vector<richtext::ChangedSpan>& spans);

  // Invalid for a paragraph that isn't shown yet.
  QTextBlock BlockOf(int paragraph) const;
  // Of a block without a paragraph the next one.
  int ParagraphOf(const QTextBlock& block) const;
  bool IsFiller(const QTextBlock& block) const;
  // A picture that the text shows, by its name there: its file and its size in the text's pixels.
  struct ShownPicture {
    QByteArray file;
    QSize size;
  };
  ShownPicture PictureOf(const QString& name) const { return pictures_.value(name); }
  bool has_kept() const { return !kept_.isEmpty(); }
  const QHash<QString, richtext::KeptThing>& kept() const { return kept_; }
  // What a kKeptObject stands for; null if there is none of that name.
  const richtext::KeptThing* KeptOf(const QString& name) const;

 private:
  // A block of the document as it is shown.
  struct Shown {
    int paragraphs = 1;
    bool is_table = false;
  };
  // Blocks from `first` on: how many are shown and how many the document has in their place.
  struct Region {
    std::size_t first = 0;
    std::size_t before = 0;
    std::size_t after = 0;
  };

  // How far a rendering is.
  struct Progress {
    std::size_t next = 0;      // block to be rendered
    AdjacentTables tables;     // that stand there
    richtext::TableGrid grid;  // theirs
    std::size_t next_row = 0;  // of `tables`
    bool is_fresh = true;      // the block in hand waits for a paragraph
  };

  static Region Merged(const std::vector<richtext::ChangedSpan>& spans);
  // Both are false where that can't be done.
  bool UpdateInPlace(Region region);
  bool ReplaceBlocks(Region region, int first_paragraph, const std::vector<Shown>& now);
  void RenderBlocks(Progress& progress, std::size_t end, std::size_t work, QTextCursor& cursor);
  void UpdateParagraphs(const QTextBlock& first, std::size_t before,
                        const std::vector<const richtext::Paragraph*>& after);
  // With the paragraph that isn't stored.
  std::vector<Shown> ShownBlocks() const;
  const richtext::Paragraph& ParagraphAt(std::size_t block) const;

  // The next part of the tables that stand next; gives the work it was.
  std::size_t RenderPart(Progress& progress, QTextCursor& cursor);
  void InsertRows(const Progress& progress, std::size_t end, QTextCursor& cursor);
  void InsertCell(const richtext::Cell& cell, const QTextTable& table, QTextCursor cursor);
  // Makes the cursor's block show the paragraph. `table` is the one that it stands in, which Qt
  // itself doesn't know before an edit has ended.
  void Fill(const richtext::Paragraph& paragraph, const QTextTable* table, QTextCursor& cursor);
  // `breaks` are those of BreaksInWords from the run's text on, against its beginning.
  void InsertRun(const richtext::Run& run, std::span<const int> breaks, int begin,
                 QTextCursor& cursor);
  static void InsertText(std::string_view text, const QTextCharFormat& format, QTextCursor& cursor);
  void InsertPicture(const richtext::Picture& picture, QTextCursor& cursor);
  // `notes` counts the numbers of notes in the paragraph.
  void InsertSigns(const richtext::Run& run, int& notes, QTextCursor& cursor);
  int NumberOf(int paragraph) const;

  QTextDocument& target_;
  std::vector<Shown> shown_;
  std::vector<int> fillers_;  // see FillersIn
  std::vector<int> covered_;  // see CoveredIn
  Progress progress_;
  bool is_done_ = true;
  QHash<QString, ShownPicture> pictures_;
  QHash<QString, richtext::KeptThing> kept_;
  double cell_width_ = 0;  // pixels, of the cell in hand
  // During a rendering.
  const richtext::RichDocument* document_ = nullptr;
  const RichTextFormats* formats_ = nullptr;
};

}  // namespace tarnwell::desktop
