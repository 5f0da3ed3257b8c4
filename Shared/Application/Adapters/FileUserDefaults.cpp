// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/FileUserDefaults.h"

#include "Feedback/VireoLogger.h"
#include "Platform/PrivateFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <cstdio>
#include <new>

namespace lodestar
{

namespace
{

using Value = std::variant<bool, std::string>;
using Values = std::map<std::string, Value>;

// The file's format knows texts only, so booleans and texts stand in two groups.
const QLatin1String booleans("Booleans");
const QLatin1String strings("Strings");

/// Stands for the empty text, which cannot be a key in the format. No text's encoding is a lone percent sign.
const QLatin1String emptyText("%");

/// Percent-encodes the text, so that it comes back as it was: the format changes keys with slashes, gives commas and a
/// leading "@" of a value a meaning of its own, and cannot hold bytes that are not Unicode.
QString encoded(const std::string& text)
{
    return text.empty() ? QString(emptyText) : QString::fromLatin1(QByteArray::fromStdString(text).toPercentEncoding());
}

std::string decoded(const QString& text)
{
    return text == emptyText ? std::string() : QByteArray::fromPercentEncoding(text.toLatin1()).toStdString();
}

/// Calls the function with every key of the group. Skips empty keys: a damaged file may yield them, and we write none.
template <typename Function>
void forEachKey(QSettings& settings, QLatin1String group, const Function& function)
{
    settings.beginGroup(group);
    for (const QString& key : settings.childKeys()) {
        if (!key.isEmpty()) {
            function(decoded(key), settings.value(key));
        }
    }
    settings.endGroup();
}

Values read(const std::string& path)
{
    Values values;
    QSettings settings(QString::fromStdString(path), QSettings::IniFormat);
    forEachKey(settings, strings, [&](const std::string& key, const QVariant& value) {
        values.insert_or_assign(key, decoded(value.toString()));
    });
    forEachKey(settings, booleans,
               [&](const std::string& key, const QVariant& value) { values.insert_or_assign(key, value.toBool()); });
    return values;
}

/// One line of the file. The format itself encodes keys with percent signs too, so a key's percent signs are encoded
/// again.
std::string line(const std::string& key, const Value& value)
{
    const bool* const flag = std::get_if<bool>(&value);
    const std::string text =
        flag != nullptr ? (*flag ? "true" : "false") : encoded(std::get<std::string>(value)).toStdString();
    return encoded(key).replace(QLatin1Char('%'), QLatin1String("%25")).toStdString() + "=" + text + "\n";
}

/// The text of a file that `QSettings`, and so `read`, understands.
std::string fileText(const Values& values)
{
    std::string flags;
    std::string texts;
    for (const auto& [key, value] : values) {
        (std::holds_alternative<bool>(value) ? flags : texts) += line(key, value);
    }
    const auto group = [](QLatin1String name, const std::string& lines) {
        return lines.empty() ? std::string() : "[" + std::string(name.data()) + "]\n" + lines;
    };
    return group(booleans, flags) + group(strings, texts);
}

/// Replaces the file as a whole: it holds session keys, so the new file is private from its first byte. `QSettings`
/// must not write it: a process that is killed while writing leaves its lock behind, and the lock would hold up every
/// later process. The folder belongs to this process, so no lock is needed.
bool write(const std::string& path, const Values& values)
{
    const QString name = QString::fromStdString(path);
    const std::string folder = QFile::encodeName(QFileInfo(name).absolutePath()).toStdString();
    const std::string file = QFile::encodeName(name).toStdString();
    const std::string fresh = file + ".new";
    std::remove(fresh.c_str()); // left by a process that was killed
    if (!makePrivateFolder(folder) || !writePrivateFile(fresh, fileText(values))) {
        return false;
    }
    if (std::rename(fresh.c_str(), file.c_str()) != 0) {
        std::remove(fresh.c_str());
        return false;
    }
    syncFolder(folder);
    return true;
}

} // namespace

FileUserDefaults::FileUserDefaults(const std::string& path) : UserDefaults(read(path)), m_path(path) {}

FileUserDefaults::~FileUserDefaults()
{
    m_queue.sync([this] { synchronize(); }); // after the last write that is queued
}

void FileUserDefaults::didChange()
{
    ++m_generation;
    if (!m_writeQueued.exchange(true)) {
        m_queue.async([this] { synchronize(); });
    }
}

bool FileUserDefaults::synchronize()
{
    const std::lock_guard writing(m_writeMutex);
    m_writeQueued = false;
    const std::uint64_t copied = m_generation;
    if (copied == m_writtenGeneration) {
        return true;
    }
    bool written = false;
    try {
        written = write(m_path, values());
    } catch (const std::bad_alloc&) {
        // Qt allocates its texts outside the memory reserve. As with a full disk, the next change or the end tries
        // again.
    }
    if (written) {
        m_writtenGeneration = copied;
    } else if (!m_failing) {
        LODESTAR_LOG("Shared/Application/Adapters/FileUserDefaults", "synchronize",
                     "{} could not be written. The next change tries again.", m_path);
    }
    m_failing = !written;
    return written;
}

} // namespace lodestar
