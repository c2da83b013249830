// A paragraph of a document as a block of Qt's text.

#include <QCryptographicHash>
#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "desktop/widgets/rich_text_pictures.h"
#include "desktop/widgets/rich_text_positions.h"
#include "desktop/widgets/rich_text_renderer.h"
#include "richtext/paragraphs.h"

namespace tarnwell::desktop {
namespace {

// Qt keeps a cell's own format, its spans and its fill too, in the format of the cell's first
// block.
void SetMark(QTextCharFormat mark, const QTextTable* table, QTextCursor& cursor) {
  const QTextTableCell cell = table != nullptr ? table->cellAt(cursor) : QTextTableCell();
  if (cell.isValid() && cell.firstPosition() == cursor.block().position()) {
    mark.clearBackground();
    const QMap<int, QVariant> all = cell.format().properties();
    for (auto it = all.begin(); it != all.end(); ++it) {
      const bool is_of_table = it.key() >= QTextFormat::TableCellRowSpan &&
                               it.key() <= QTextFormat::TableCellRightBorderBrush;
      if (is_of_table || it.key() == QTextFormat::BackgroundBrush)
        mark.setProperty(it.key(), it.value());
    }
    mark.setObjectType(QTextFormat::TableCellObject);
  }
  cursor.setBlockCharFormat(mark);
}

}  // namespace

void RichTextRenderer::Fill(const richtext::Paragraph& paragraph, const QTextTable* table,
                            QTextCursor& cursor) {
  cursor.movePosition(QTextCursor::StartOfBlock);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  QTextBlockFormat look = formats_->Of(paragraph);
  // A cell's own fill lies over what the view paints below the text.
  if (table != nullptr && look.hasProperty(kFrameProperty)) {
    const QColor fill = ShownFrame::Of(look).fill;
    if (fill.isValid()) look.setBackground(fill);
  }
  cursor.setBlockFormat(look);
  SetMark(formats_->Of(paragraph.mark), table, cursor);
  const std::vector<int> breaks = BreaksInWords(richtext::ShownText(paragraph));
  int begin = 0;
  int notes = 0;
  for (const richtext::Run& run : paragraph.runs) {
    if (std::holds_alternative<richtext::Opaque>(run.content)) InsertSigns(run, notes, cursor);
    const int end = begin + static_cast<int>(richtext::ShownText(run).size());
    const auto first = std::ranges::lower_bound(breaks, begin);
    const auto last = std::ranges::lower_bound(first, breaks.end(), end);
    InsertRun(run, {first, last}, begin, cursor);
    begin = end;
  }
}

void RichTextRenderer::InsertRun(const richtext::Run& run, std::span<const int> breaks, int begin,
                                 QTextCursor& cursor) {
  if (const auto* const picture = std::get_if<richtext::Picture>(&run.content)) {
    return InsertPicture(*picture, cursor);
  }
  const auto* const text = std::get_if<std::string>(&run.content);
  if (text == nullptr) return;
  const QTextCharFormat format = formats_->Of(run.format);
  std::size_t done = 0;
  for (const int place : breaks) {
    const auto end = static_cast<std::size_t>(place - begin);
    InsertText(std::string_view(*text).substr(done, end - done), format, cursor);
    cursor.insertText(QString(QChar(0x200B)), format);
    done = end;
  }
  InsertText(std::string_view(*text).substr(done), format, cursor);
}

void RichTextRenderer::InsertText(std::string_view rest, const QTextCharFormat& format,
                                  QTextCursor& cursor) {
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\f'), rest.size());
    cursor.insertText(ShownInBlock(rest.substr(0, end)), format);
    rest.remove_prefix(end);
    if (rest.empty()) return;
    QTextCharFormat page_break = format;
    page_break.setProperty(kPageBreakProperty, true);
    cursor.insertText(QString(QChar::LineSeparator), page_break);
    rest.remove_prefix(1);
  }
}

void RichTextRenderer::InsertPicture(const richtext::Picture& picture, QTextCursor& cursor) {
  const QByteArray file(picture.bytes.data(), static_cast<qsizetype>(picture.bytes.size()));
  const richtext::Page& page = document_->page;
  const double widest = formats_->Pixels(page.width - page.left_margin - page.right_margin);
  const QTextImageFormat format = PictureFormat(picture, file, *formats_, widest);
  pictures_.insert(format.name(), {file, QSizeF(format.width(), format.height()).toSize()});
  cursor.insertImage(format);
}

void RichTextRenderer::InsertSigns(const richtext::Run& run, int& notes, QTextCursor& cursor) {
  const auto& opaque = std::get<richtext::Opaque>(run.content);
  int number = 0;
  for (richtext::KeptThing& thing : richtext::KeptThings(opaque, run.format.other)) {
    const QByteArray rtf = QByteArray::fromStdString(opaque.rtf);
    const QByteArray hash = QCryptographicHash::hash(rtf, QCryptographicHash::Sha1).toHex();
    const QString name = QStringLiteral("%1/%2").arg(QString::fromLatin1(hash)).arg(number++);
    QTextCharFormat format = formats_->Of(run.format);
    format.setObjectType(kKeptObject);
    format.setProperty(kKeptProperty, name);
    if (thing.kind == richtext::KeptKind::kNoteNumber) format.setProperty(kNoteProperty, notes++);
    if (thing.kind == richtext::KeptKind::kNestedTable) {
      format.setProperty(kKeptWidthProperty, std::max(1.0, cell_width_));
    }
    if (!kept_.contains(name)) kept_.insert(name, std::move(thing));
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
  }
}

const richtext::KeptThing* RichTextRenderer::KeptOf(const QString& name) const {
  const auto known = kept_.constFind(name);
  return known == kept_.constEnd() ? nullptr : &*known;
}

}  // namespace tarnwell::desktop
