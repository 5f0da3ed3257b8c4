// SPDX-License-Identifier: Apache-2.0
#include "Application/KeptState.h"

#include "Feedback/VireoLogger.h"
#include "Platform/PrivateFile.h"
#include "Platform/Queues/DispatchQueue.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <cstdio>
#include <string>

namespace lodestar
{
namespace
{

constexpr auto fileName = "Shared/Application/KeptState";
constexpr std::size_t sizeLimit = 65536;

/// Replaces the file as a whole. Removes it when there is nothing to keep.
Result<void> replaceFile(const std::string& path, const QByteArray& content)
{
    const std::string draft = path + ".new";
    std::remove(draft.c_str());
    if (content.isEmpty()) {
        std::remove(path.c_str());
        return {};
    }
    if (Result<void> written = writePrivateFile(draft, {content.constData(), static_cast<std::size_t>(content.size())});
        !written) {
        return written;
    }
    return std::rename(draft.c_str(), path.c_str()) == 0 ? Result<void>()
                                                         : fileError("The kept state cannot be replaced", errno);
}

} // namespace

struct KeptState::State {
    std::string path;
    QJsonObject values;
    const DispatchQueue queue{"lodestar.kept-state", DispatchQueue::Kind::Serial};
};

// The state is never destroyed: its queue may still be at work when the process ends.
KeptState::KeptState() : m_state(*new State) {}

KeptState& KeptState::shared()
{
    static KeptState state;
    return state;
}

void KeptState::openFolder(const QString& folder)
{
    m_state.path =
        folder.isEmpty() ? std::string() : QFile::encodeName(folder + QStringLiteral("/Lodestar.state")).toStdString();
    m_state.values = {};
    if (const auto content = readPrivateFile(m_state.path, sizeLimit)) {
        m_state.values = QJsonDocument::fromJson(QByteArray::fromStdString(content.value())).object();
    }
}

QJsonValue KeptState::value(const QString& key) const
{
    return m_state.values.value(key);
}

void KeptState::setValue(const QString& key, const QJsonValue& value)
{
    if (m_state.values.value(key) == value) {
        return;
    }
    if (value.isUndefined()) {
        m_state.values.remove(key);
    } else {
        m_state.values.insert(key, value);
    }
    write();
}

void KeptState::clear()
{
    m_state.values = {};
    write();
}

void KeptState::write()
{
    if (m_state.path.empty()) {
        return;
    }
    const QByteArray content =
        m_state.values.isEmpty() ? QByteArray() : QJsonDocument(m_state.values).toJson(QJsonDocument::Indented);
    m_state.queue.async([path = m_state.path, content] {
        if (const Result<void> written = replaceFile(path, content); !written) {
            LODESTAR_LOG(fileName, "write", "{}", description(written.error()));
        }
    });
}

void KeptState::synchronize()
{
    m_state.queue.sync([] {});
}

} // namespace lodestar
