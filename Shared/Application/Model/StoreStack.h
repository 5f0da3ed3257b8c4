// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ObjectContext.h"

#include <string>

namespace lodestar
{

/// The process's object store: model, file and one context, each made on first use and kept. Main thread. When the
/// store cannot be opened or a save fails, the process ends after one log line, and the file is left as it was.
class StoreStack
{
public:
    static StoreStack& shared();

    /// The folder that holds the store. The host sets it before first use; tests set a scratch folder.
    const std::string& applicationDocumentsDirectory() const { return m_documentsDirectory; }
    void setApplicationDocumentsDirectory(std::string folder) { m_documentsDirectory = std::move(folder); }

    static ManagedObjectModel managedObjectModel();
    /// Opens "Lodestar.sqlite" on first use.
    ObjectContext& managedObjectContext();
    /// The first use for a program that says itself why the store cannot be opened: a failure does not end the process.
    Result<void> open();
    /// Saves the context if it exists and has changes.
    void saveContext();
    /// Closes the store and forgets the context, so that the next use opens it anew. For tests and the reset.
    void close();

private:
    /// Opens or creates "Lodestar.sqlite".
    Result<std::unique_ptr<ObjectContext>> persistentStoreCoordinator() const;

    std::string m_documentsDirectory;
    std::unique_ptr<ObjectContext> m_context;
};

} // namespace lodestar
