#include "desktop/desktop.h"

#include <QAbstractEventDispatcher>
#include <QApplication>

#include "desktop/services/dictionary_folders.h"
#include "desktop/views/registry.h"

namespace tarnwell::desktop {

Desktop::Desktop(const Folders& folders, const Outside& outside)
    : folder_(storage::RealFileSystem(), folders.user.toStdString(),
              folders.supplied.toStdString()),
      help_(folders.supplied.isEmpty() ? QString() : folders.supplied + QStringLiteral("/help")),
      picture_store_([this](std::string_view name) {
        return QByteArray::fromStdString(folder_.ReadWhole(name).value_or(std::string()));
      }),
      folders_(folders.user),
      speller_(DictionaryFolders(folders)),
      thesaurus_(ThesaurusFolders(folders), speller_),
      modem_(outside.ports),
      launcher_(folders.user, outside.open),
      volumes_(outside.disks),
      window_([this](forms::Form& form) { return LookOf(form, picture_store_); }, help_),
      program_({folder_, clock_, dialogs_, loop_, window_, help_, clipboard_, pages_, folders_,
                pictures_, speller_, thesaurus_, modem_, launcher_, volumes_}) {
  window_.Follow(program_.navigator());
  // The program has done what it was asked, and waits.
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   &window_, [this] { folder_.CloseNote(); });
}

void Desktop::Start() {
  program_.Start();
  const auto keep = [this] { program_.KeepDrafts(); };
  QObject::connect(&keeping_, &QTimer::timeout, &window_, keep);
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &window_, keep);
  keeping_.start(program::Drafts::kEvery);
}

}  // namespace tarnwell::desktop
