// Texts and pictures from elsewhere name files. None of them may be opened.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <QClipboard>
#include <QDesktopServices>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <array>

#include "desktop/sample_form.h"
#include "desktop/services/html_help_viewer.h"
#include "desktop/services/page_output.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/rich_text_mime.h"
#include "desktop/widgets/rich_text_view.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

// A folder of files, each of which is noticed when it is opened.
class Trap {
 public:
  Trap() {
    folder.Write("page.css", "p { color: red }");
    folder.Write("page.html", "<p>outside</p>");
    folder.Write("picture.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
    inotify_add_watch(notes_, folder.path().c_str(), IN_OPEN);
  }
  ~Trap() { close(notes_); }

  QString File(const char* name) const {
    return QString::fromStdString(folder.path() + "/" + name);
  }
  QString Address(const char* name) const { return QStringLiteral("file://") + File(name); }

  // Whether one was opened since the last time.
  bool WasSprung() {
    std::array<char, 4096> notes{};
    return read(notes_, notes.data(), notes.size()) > 0;
  }

  testing::TemporaryFolder folder;

 private:
  int notes_ = inotify_init1(IN_NONBLOCK);
};

// A drawing that names the file as a picture of its own.
QByteArray DrawingOf(const QString& file) {
  return QStringLiteral(
             "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\" "
             "xmlns:xlink=\"http://www.w3.org/1999/xlink\"><image width=\"9\" "
             "height=\"9\" xlink:href=\"%1\"/></svg>")
      .arg(file)
      .toUtf8();
}

// What another program offers as a picture. Qt reads it by its content when it is asked for one.
class ForeignPicture : public QMimeData {
 public:
  explicit ForeignPicture(QByteArray file) : file_(std::move(file)) {}
  QStringList formats() const override {
    return {QStringLiteral("image/png"), QStringLiteral("application/x-qt-image")};
  }
  bool hasFormat(const QString& format) const override { return formats().contains(format); }

 protected:
  QVariant retrieveData(const QString& format, QMetaType) const override {
    if (format == QLatin1String("image/png")) return file_;
    return format == formats().back() ? QImage::fromData(file_) : QVariant();
  }

 private:
  QByteArray file_;
};

class OutsideFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    QFile(trap_.File("page.css")).open(QIODevice::ReadOnly);
    ASSERT_TRUE(trap_.WasSprung());
    page_->resize(500, 300);
    page_->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(page_.get()));
  }
  void Show(const richtext::RichDocument& document) {
    box_.SetDocument(document);
    QCoreApplication::processEvents();
    page_->grab();
  }

  Trap trap_;
  testing::SampleWorld world_;
  testing::SampleForm& form_ = world_.Show();
  forms::RichTextBox box_{form_, "RichTextBox1", {.spoken_name = "Document"}};
  std::unique_ptr<QWidget> page_{Column({Widget(box_)})};
};

TEST_F(OutsideFiles, APasteOpensNone) {
  const QString css = trap_.Address("page.css");
  const QString picture = trap_.Address("picture.svg");
  const QString drawing = QStringLiteral("data:image/png;base64,") +
                          QString::fromLatin1(DrawingOf(trap_.File("picture.svg")).toBase64());
  const QString pages[] = {
      QStringLiteral("<link rel=\"stylesheet\" type=\"text/css\" href=\"%1\"/><p>x").arg(css),
      QStringLiteral("<style>@import url(%1);</style><p>x").arg(css),
      QStringLiteral("<style>@import \"%1\";</style><p>x").arg(trap_.File("page.css")),
      QStringLiteral("<body background=\"%1\"><p>x").arg(picture),
      QStringLiteral("<table background=\"%1\"><tr><td>x</table>").arg(picture),
      QStringLiteral("<p style=\"background-image:url(%1)\">x").arg(picture),
      QStringLiteral("<p style=\"background:url(%1)\">x").arg(trap_.File("picture.svg")),
      QStringLiteral("<p style=\"background:url(%1)\">x").arg(drawing),
      QStringLiteral("<ul style=\"list-style-image:url(%1)\"><li>x</ul>").arg(picture),
      QStringLiteral("<p>x<img src=\"%1\">").arg(picture),
      QStringLiteral("<p>x<img src=\"%1\" width=9 height=9>").arg(trap_.File("picture.svg")),
      QStringLiteral("<p>x<img src=\"%1\">").arg(drawing),
  };
  for (const QString& page : pages) {
    auto mime = std::make_unique<QMimeData>();
    mime->setHtml(page);
    const auto fragment = FromMime(*mime);
    ASSERT_TRUE(fragment.has_value());
    EXPECT_EQ(richtext::PlainText(*fragment), "x");
    Show(*fragment);
    EXPECT_FALSE(trap_.WasSprung()) << page.toStdString();
  }
}

TEST_F(OutsideFiles, ADrawingThatCallsItselfAPictureOpensNone) {
  const QByteArray drawing = DrawingOf(trap_.File("picture.svg"));
  for (const char* const size : {"", "\\picwgoal900\\pichgoal900"}) {
    for (const char* const kind : {"\\pngblip", "\\jpegblip"}) {
      const auto document =
          richtext::ReadRichText("{\\rtf1\\pard x{\\pict" + std::string(kind) + size + " " +
                                 drawing.toHex().toStdString() + "}\\par}");
      ASSERT_FALSE(std::get<richtext::Paragraph>(document.blocks.front()).runs.empty());
      Show(document);
      EXPECT_FALSE(trap_.WasSprung()) << kind << size;
    }
  }
  forms::Document sheet;
  sheet.pages.push_back(
      {forms::PlacedImage{0, 0, 900, 900, std::make_shared<std::string>(drawing.toStdString())}});
  EXPECT_FALSE(ImageOf(sheet, 0).isNull());
  EXPECT_FALSE(trap_.WasSprung());
  EXPECT_EQ(FromMime(ForeignPicture(drawing)), std::nullopt);
  EXPECT_FALSE(trap_.WasSprung());
}

TEST_F(OutsideFiles, AForeignPictureIsTakenAsItIs) {
  QByteArray file;
  QBuffer buffer(&file);
  buffer.open(QIODevice::WriteOnly);
  QImage(3, 2, QImage::Format_RGB32).save(&buffer, "PNG");
  const auto document = FromMime(ForeignPicture(file));
  ASSERT_TRUE(document.has_value());
  const auto& runs = std::get<richtext::Paragraph>(document->blocks.front()).runs;
  EXPECT_EQ(std::get<richtext::Picture>(runs.front().content).bytes, file.toStdString());
}

TEST_F(OutsideFiles, TheHelpOpensItsOwnPagesOnly) {
  testing::TemporaryFolder pages;
  const QStringList outside{
      trap_.Address("page.html"),
      trap_.File("page.html"),
      QStringLiteral("../%1/page.html").arg(QDir(trap_.File(".")).absolutePath().section('/', -1)),
      QStringLiteral("http://localhost/page.html"),
      QStringLiteral("linked.html"),
      QStringLiteral("notes.txt")};
  QString page = QStringLiteral("<link type=\"text/css\" href=\"%1\"/><img src=\"%2\">")
                     .arg(trap_.Address("page.css"), trap_.Address("picture.svg"));
  for (const QString& link : outside)
    page += QStringLiteral("<p><a href=\"%1\">outside</a>").arg(link);
  pages.Write("1.html", (page + "<p><a href=\"2.html#here\">other</a>").toStdString());
  pages.Write("2.html", "<p>second page");
  pages.Write("notes.txt", "text");
  QFile::link(trap_.File("page.html"), QString::fromStdString(pages.path() + "/linked.html"));
  HtmlHelpViewer viewer(QString::fromStdString(pages.path()));
  viewer.Show(1);
  QTextBrowser* browser = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* const found = window->findChild<QTextBrowser*>()) browser = found;
  }
  ASSERT_NE(browser, nullptr);
  const auto follow = [browser](QTextBlock block) {
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + 2);
    QTest::mouseClick(browser->viewport(), Qt::LeftButton, {},
                      browser->cursorRect(cursor).center());
  };
  ASSERT_TRUE(QTest::qWaitForWindowExposed(browser->window()));
  const QUrl first = browser->source();
  for (QTextBlock block = browser->document()->begin(); block.isValid(); block = block.next()) {
    if (block.text() == QLatin1String("outside")) follow(block);
    ASSERT_EQ(browser->source(), first) << block.text().toStdString();
  }
  EXPECT_FALSE(trap_.WasSprung());
  follow(browser->document()->lastBlock());
  EXPECT_EQ(browser->source().fileName(), QStringLiteral("2.html"));
  EXPECT_EQ(browser->toPlainText(), QStringLiteral("second page"));
}

}  // namespace
}  // namespace tarnwell::desktop
