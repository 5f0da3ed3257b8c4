// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/StoreStack.h"

#include "Application/Model/Corvel.h"
#include "Application/Model/Group.h"
#include "Feedback/CrashCapture.h"
#include "Feedback/VireoLogger.h"
#include "Platform/Queues/MainQueue.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace lodestar
{

namespace
{

constexpr std::string_view fileName = "Shared/Application/AppDelegate";

// The process ends, and the store's file stays for a later start. To run on without the registry would show an empty
// list or lose what the person entered.
[[noreturn]] void endProcess(std::string_view method, const Error& error)
{
    const std::string text = description(error);
    LODESTAR_LOG(fileName, method, "Unresolved error {}, {}", text, userInfoDescription(error));
    VireoLogger::flush();
    // On a desktop nothing but this line tells the person why the program ended; the next start's report says the same.
    std::fprintf(stderr, "Lodestar cannot keep its consoles and ends: %s\n", text.c_str());
    CrashCapture::noteException(text);
    std::abort();
}

} // namespace

StoreStack& StoreStack::shared()
{
    static StoreStack stack;
    return stack;
}

ManagedObjectModel StoreStack::managedObjectModel()
{
    return {{Corvel::entity(), Group::entity()},
            {{std::string(Corvel::entityName), "groups", std::string(Group::entityName), "corvels"}},
            1};
}

Result<std::unique_ptr<ObjectContext>> StoreStack::persistentStoreCoordinator() const
{
    // Without a folder the path is left empty, which `open` refuses; a path made here would lie at the file system's
    // root.
    const std::string path = m_documentsDirectory.empty() ? std::string() : m_documentsDirectory + "/Lodestar.sqlite";
    return ObjectContext::open(path, managedObjectModel());
}

ObjectContext& StoreStack::managedObjectContext()
{
    if (const Result<void> opened = open(); !opened) {
        endProcess("-[AppDelegate persistentStoreCoordinator]",
                   {"YOUR_ERROR_DOMAIN", 9999, "Failed to initialize the application's saved data",
                    "There was an error creating or loading the application's saved data.",
                    std::make_shared<Error>(opened.error())});
    }
    return *m_context;
}

Result<void> StoreStack::open()
{
    if (m_context == nullptr) {
        auto opened = persistentStoreCoordinator();
        if (!opened) {
            return opened.error();
        }
        m_context = std::move(opened).value();
        // Scrubs after the running work: a reset deletes and saves console by console on the main thread, and one scrub
        // at its end is enough.
        m_context->setScrubNeeded([] {
            MainQueue::shared().async([] {
                if (const auto& context = shared().m_context; context != nullptr) {
                    context->scrub();
                }
            });
        });
    }
    return {};
}

void StoreStack::saveContext()
{
    if (m_context == nullptr || !m_context->hasChanges()) {
        return;
    }
    if (const Result<void> saved = m_context->save(); !saved) {
        endProcess("-[AppDelegate saveContext]", saved.error());
    }
}

void StoreStack::close()
{
    m_context.reset();
}

} // namespace lodestar
