// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonValue>
#include <QString>

namespace lodestar
{

/// What the application itself remembers from one start to the next, such as its window's place or what the keychain
/// still has to do. Preferences, which a person sets, are not kept here. One per process, in a small file of its own in
/// the data folder, mode 0600; only in memory until a folder is set. Main thread; a background queue writes the file.
class KeptState
{
public:
    static KeptState& shared();

    /// Reads what an earlier run kept in the folder. A file that cannot be read counts as empty.
    void openFolder(const QString& folder);
    /// Undefined when no value is kept under the key.
    QJsonValue value(const QString& key) const;
    /// Undefined removes the value.
    void setValue(const QString& key, const QJsonValue& value);
    /// Removes all values and the file.
    void clear();
    /// Waits until everything is written. Call it before the process ends.
    void synchronize();

private:
    KeptState();
    void write();

    struct State;
    State& m_state;
};

} // namespace lodestar
