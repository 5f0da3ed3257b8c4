// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/FileUserDefaults.h"

#include "Platform/PrivateFile.h"
#include "Platform/Queues/DispatchQueue.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <cstdint>
#include <cstdio>
#include <map>
#include <mutex>
#include <new>
#include <utility>
#include <variant>

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

Values read(const QString& path)
{
    Values values;
    QSettings settings(path, QSettings::IniFormat);
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
bool write(const QString& path, const Values& values)
{
    const std::string folder = QFile::encodeName(QFileInfo(path).absolutePath()).toStdString();
    const std::string file = QFile::encodeName(path).toStdString();
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

struct FileUserDefaults::State : std::enable_shared_from_this<State> {
    explicit State(const std::string& thePath) : path(QString::fromStdString(thePath)), values(read(path)) {}

    /// The values differ from the file from now on. Call with `mutex` held.
    void noteChange()
    {
        ++generation;
        if (!std::exchange(writeQueued, true)) {
            queue.async([self = shared_from_this()] { self->writePending(); });
        }
    }

    bool writePending()
    {
        const std::lock_guard writing(writeMutex);
        std::unique_lock lock(mutex);
        writeQueued = false;
        if (generation == writtenGeneration) {
            return true;
        }
        const std::uint64_t copied = generation;
        bool written = false;
        try {
            const Values copy = values;
            lock.unlock();
            written = write(path, copy);
        } catch (const std::bad_alloc&) {
            // Qt allocates its texts outside the memory reserve. As with a full disk, the next change or the end tries
            // again.
        }
        if (!lock.owns_lock()) {
            lock.lock();
        }
        if (written) {
            writtenGeneration = copied;
        }
        return written;
    }

    void set(const std::string& key, Value value)
    {
        const std::lock_guard lock(mutex);
        const auto [entry, isNew] = values.try_emplace(key, value);
        if (isNew || entry->second != value) {
            entry->second = std::move(value);
            noteChange();
        }
    }

    template <typename T>
    std::optional<T> get(const std::string& key) const
    {
        const std::lock_guard lock(mutex);
        const auto found = values.find(key);
        const T* const value = found != values.end() ? std::get_if<T>(&found->second) : nullptr;
        return value != nullptr ? std::optional<T>(*value) : std::nullopt;
    }

    const QString path;
    const DispatchQueue queue{"lodestar.user-defaults", DispatchQueue::Kind::Serial};
    std::mutex writeMutex; ///< one writer at a time; taken before `mutex`
    mutable std::mutex mutex;
    Values values;
    std::uint64_t generation = 0;
    std::uint64_t writtenGeneration = 0;
    bool writeQueued = false;
};

FileUserDefaults::FileUserDefaults(const std::string& path) : m_state(std::make_shared<State>(path)) {}

FileUserDefaults::~FileUserDefaults()
{
    m_state->writePending();
}

bool FileUserDefaults::boolForKey(const std::string& key) const
{
    return m_state->get<bool>(key).value_or(false);
}

void FileUserDefaults::setBool(bool value, const std::string& key)
{
    m_state->set(key, value);
}

std::optional<std::string> FileUserDefaults::stringForKey(const std::string& key) const
{
    return m_state->get<std::string>(key);
}

void FileUserDefaults::setString(const std::string& value, const std::string& key)
{
    m_state->set(key, value);
}

void FileUserDefaults::removeObjectForKey(const std::string& key)
{
    const std::lock_guard lock(m_state->mutex);
    if (m_state->values.erase(key) > 0) {
        m_state->noteChange();
    }
}

std::vector<std::string> FileUserDefaults::allKeys() const
{
    const std::lock_guard lock(m_state->mutex);
    std::vector<std::string> keys;
    keys.reserve(m_state->values.size());
    for (const auto& [key, value] : m_state->values) {
        keys.push_back(key);
    }
    return keys;
}

bool FileUserDefaults::synchronize()
{
    return m_state->writePending();
}

} // namespace lodestar
