// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonValue>
#include <QString>

namespace lodestar
{

/// What the application remembers of itself from one start to the next and nobody sets: where its window stood, and
/// what the keychain still owes. No preference is among it. One a process, in a small file of its own, 0600, in the
/// data folder; in memory only until a folder is set. Main thread; the file is written on a background queue.
class KeptState
{
public:
    static KeptState& shared();

    /// Reads what an earlier run kept there. A file that cannot be read is taken as empty.
    void openFolder(const QString& folder);
    /// Undefined when there is none.
    QJsonValue value(const QString& key) const;
    /// Undefined takes the value away.
    void setValue(const QString& key, const QJsonValue& value);
    /// Takes all values away, and the file with them.
    void clear();
    /// Waits until everything is written; before the process ends.
    void synchronize();

private:
    KeptState();
    void write();

    struct State;
    State& m_state;
};

} // namespace lodestar
