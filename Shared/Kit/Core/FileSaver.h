// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace lodestar
{

/// Saves bytes as a file that a person chooses in the system's dialogue. Main thread. A toast says "Saved as NAME";
/// a failure is shown as an alert: "Could not be saved: WHY". A file that exists is replaced only after the dialogue
/// asked, and stays as it was when the new one cannot be written whole.
class FileSaver
{
public:
    /// Bytes are asked for after the person has chosen, so that they are those of that moment. `saved` is called only
    /// when the file is written.
    static void save(const QString& suggestedName, std::function<QByteArray()> bytes,
                     std::function<void()> saved = nullptr);
    /// Writes a whole file in place of what is there, or leaves that as it was. Any thread.
    static Result<void> writeWhole(const QString& path, const QByteArray& bytes);
    /// For tests and pictures: answers with this path instead of a dialogue; an empty path is Cancel. Null: the
    /// system's dialogue again.
    static void answerWith(std::function<QString(const QString& suggestedName)> answer);

    /// Opens the system's dialogue for a file to read. Not called when the person cancels. At most `limit` bytes.
    static void open(const QString& title, const QString& filter, std::size_t limit,
                     const std::function<void(Result<QByteArray> bytes, const QString& name)>& opened);
    /// Reads a file of at most `limit` bytes. Any thread.
    static Result<QByteArray> readWhole(const QString& path, std::size_t limit);
};

} // namespace lodestar
