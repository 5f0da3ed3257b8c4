// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/FileSaver.h"

#include "Kit/Core/ErrorText.h"
#include "Kit/Core/FileChoice.h"
#include "Kit/Core/LineText.h"
#include "Kit/Core/Toasts.h"
#include "Kit/Core/WindowDialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickWindow>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <initializer_list>
#include <memory>
#include <utility>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::FileSaver)
};

constexpr qsizetype longestFileName = 120;
constexpr qsizetype longestSaid = 60;

std::function<QString(const QString&)>& answer()
{
    static std::function<QString(const QString&)> given;
    return given;
}

/// `why` is marked for translation where it is written.
Error fileFailure(const char* why)
{
    return Error{.domain = "FileSaver", .code = 1, .localizedDescription = why, .failureReason = {}, .underlying = {}};
}

/// The reason in plain words where there are such; else the system's own.
Error writeFailure(const QSaveFile& file)
{
    const QFileInfo info(file.fileName());
    if (info.isDir()) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "this is the name of a folder."));
    }
    if (info.exists() && !info.isFile()) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "this is the name of a device."));
    }
    const QFileInfo folder(info.absolutePath());
    if (!folder.isDir()) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "the folder does not exist."));
    }
    // The text keeps the system's number; the error's kind does not.
    const auto isOf = [&file](std::initializer_list<int> codes) {
        return std::ranges::any_of(codes, [&](int code) { return file.errorString() == qt_error_string(code); });
    };
    if (isOf({ENOSPC, EDQUOT})) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "the disk is full."));
    }
    if (isOf({EACCES, EPERM, EROFS}) || (info.exists() && !info.isWritable())) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "you may not write there."));
    }
    if (isOf({EFBIG})) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "the file is too large for the disk."));
    }
    if (isOf({ENAMETOOLONG})) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "the name is too long."));
    }
    return fileFailure((file.errorString() + QLatin1Char('.')).toUtf8().constData());
}

/// A full disk takes a part without an error; why it takes no more is told for the rest.
bool writeAll(QSaveFile& file, const QByteArray& bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const qint64 more = file.write(bytes.constData() + written, bytes.size() - written);
        if (more <= 0) {
            return false;
        }
        written += more;
    }
    return true;
}

/// A name that stays in its folder, shows in it, and fits.
QString fileName(const QString& suggested)
{
    QString name = oneLine(suggested);
    name.replace(QLatin1Char('/'), QLatin1Char('-'));
    while (name.startsWith(QLatin1Char('.'))) {
        name.remove(0, 1);
    }
    if (name.size() > longestFileName) {
        const QString ending = QFileInfo(name).suffix().left(8);
        name = shortened(name, longestFileName - ending.size() - 1) + QLatin1Char('.') + ending;
    }
    return name;
}

/// Where the system has no dialogue, Qt shows one of its own within the window, which never asks before a file is
/// replaced.
bool isQtsOwn(const QObject& dialog)
{
    return std::ranges::any_of(dialog.findChildren<QObject*>(),
                               [](const QObject* part) { return part->inherits("QQuickPlatformFileDialog"); });
}

/// Qt's own dialogue puts its folder before a name that was typed, even before a whole path, and leaves out the scheme.
QString pathOf(const QUrl& url)
{
    if (!url.scheme().isEmpty()) {
        return url.toLocalFile();
    }
    const QString path = url.path();
    return path.mid(path.lastIndexOf(QLatin1String("//")) + 1);
}

/// Qt's own dialogue writes the chosen file in the colour for text on the highlight, over a ground that is nearly
/// white.
void darkenHighlightedText(QQuickWindow& window)
{
    QQmlProperty(&window, QStringLiteral("palette.highlightedText"))
        .write(QQmlProperty(&window, QStringLiteral("palette.text")).read());
}

using Chosen = std::function<void(const QString& path, bool replaceAsked)>;

/// Shows the dialogue. `chosen` gets the path and whether the dialogue asks by itself before a file is replaced.
/// Returns false where no dialogue can be shown.
bool openDialogue(const QString& title, std::unique_ptr<FileChoice> choice, Chosen chosen)
{
    QQuickWindow* const window = WindowDialogs::window();
    QQmlEngine* const engine = window != nullptr ? WindowDialogs::engineOf(*window) : nullptr;
    static QPointer<QObject> shown;
    if (engine == nullptr || shown) {
        return shown;
    }
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    choice->folder = QUrl::fromLocalFile(QFileInfo(documents).isDir() ? documents : QDir::homePath());
    QQmlComponent component(engine, QUrl(QStringLiteral("qrc:/Lodestar/Kit/FilePicker.qml")));
    shown = component.isReady() ? component.createWithInitialProperties(
                                      {{QStringLiteral("choice"), QVariant::fromValue(choice.get())},
                                       {QStringLiteral("title"), title},
                                       {QStringLiteral("parentWindow"), QVariant::fromValue<QWindow*>(window)}})
                                : nullptr;
    if (!shown) {
        qWarning("%s", qUtf8Printable(component.errorString()));
        return false;
    }
    shown->setParent(window);
    choice->chosen = [dialog = shown, chosen = std::move(chosen)](const QUrl& url) {
        const bool asks = !isQtsOwn(*dialog);
        const QString path = pathOf(url);
        shown = nullptr;
        dialog->deleteLater();
        if (!url.isEmpty()) {
            chosen(path, asks);
        }
    };
    choice.release()->setParent(shown);
    darkenHighlightedText(*window);
    QMetaObject::invokeMethod(shown, "open");
    return true;
}

void tellNotSaved(const Error& error)
{
    //: %1 a reason, such as "the disk is full."
    WindowDialogs::shared().tell(Words::tr("Could not be saved: %1").arg(errorText(error)));
}

/// What is saved, and what is done then.
struct Saving {
    std::function<QByteArray()> bytes;
    std::function<void()> saved;
};

void saveAs(const QString& path, const Saving& saving)
{
    if (path.isEmpty()) {
        tellNotSaved(fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "this place is not on this device.")));
    } else if (const Result<void> written = FileSaver::writeWhole(path, saving.bytes()); written) {
        //: %1 a file's name
        Toasts::shared().show(
            Words::tr("Saved as %1").arg(isolated(shortened(QFileInfo(path).fileName(), longestSaid))));
        if (saving.saved) {
            saving.saved();
        }
    } else {
        tellNotSaved(written.error());
    }
}

} // namespace

void FileSaver::save(const QString& suggestedName, std::function<QByteArray()> bytes, std::function<void()> saved)
{
    const Saving saving{std::move(bytes), std::move(saved)};
    const QString name = fileName(suggestedName);
    if (answer()) {
        if (const QString path = answer()(name); !path.isEmpty()) {
            saveAs(path, saving);
        }
        return;
    }
    auto choice = std::make_unique<FileChoice>();
    choice->saves = true;
    choice->name = name;
    choice->filter = QStringLiteral("*.") + QFileInfo(name).suffix();
    const bool shown =
        openDialogue(Words::tr("Save as File"), std::move(choice), [saving](const QString& path, bool replaceAsked) {
            if (replaceAsked || !QFileInfo(path).isFile()) {
                saveAs(path, saving);
                return;
            }
            WindowDialogs::shared().ask(
                //: %1 a file's name
                Words::tr("There is already a file named %1.").arg(isolated(QFileInfo(path).fileName())), {},
                {.title = Words::tr("Replace"), .destructive = true}, [path, saving] { saveAs(path, saving); });
        });
    if (!shown) {
        tellNotSaved(fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "this system shows no dialogue for files.")));
    }
}

Result<void> FileSaver::writeWhole(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        return writeFailure(file);
    }
    // What is left in a buffer is written by `commit`, which does not notice when the disk takes none of it.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, bytes) && file.commit()) {
        return {};
    }
    return writeFailure(file);
}

Result<QByteArray> FileSaver::readWhole(const QString& path, std::size_t limit)
{
    QFile file(path);
    const QFileInfo info(path);
    if (!info.exists()) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "There is no such file."));
    }
    // A pipe would wait, a device might never end.
    if (!info.isFile()) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "This is not a file."));
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "This file cannot be read."));
    }
    QByteArray bytes = file.read(static_cast<qint64>(limit) + 1);
    if (static_cast<std::size_t>(bytes.size()) > limit) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "This file is too large."));
    }
    if (file.error() != QFileDevice::NoError) {
        return fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "This file cannot be read."));
    }
    return bytes;
}

void FileSaver::answerWith(std::function<QString(const QString& suggestedName)> given)
{
    answer() = std::move(given);
}

void FileSaver::open(const QString& title, const QString& filter, std::size_t limit,
                     const std::function<void(Result<QByteArray> bytes, const QString& name)>& opened)
{
    const auto read = [limit, opened](const QString& path) {
        opened(readWhole(path, limit), QFileInfo(path).fileName());
    };
    if (answer()) {
        if (const QString path = answer()(title); !path.isEmpty()) {
            read(path);
        }
        return;
    }
    auto choice = std::make_unique<FileChoice>();
    choice->filter = filter;
    if (!openDialogue(title, std::move(choice), [read](const QString& path, bool /*asks*/) { read(path); })) {
        opened(fileFailure(QT_TRANSLATE_NOOP("ErrorWords", "This system shows no dialogue for files.")), {});
    }
}

} // namespace lodestar
