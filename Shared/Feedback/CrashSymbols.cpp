// SPDX-License-Identifier: Apache-2.0
#include "Feedback/CrashSymbols.h"

#include "Feedback/SymbolModule.h"
#include "Platform/OwnModule.h"

#include <fmt/core.h>

#include <algorithm>
#include <bit>
#include <set>

namespace lodestar
{

namespace
{

const LoadedModule* moduleAt(const std::vector<LoadedModule>& modules, std::uintptr_t address)
{
    const auto found = std::find_if(modules.begin(), modules.end(),
                                    [address](const LoadedModule& module) { return module.contains(address); });
    return found == modules.end() ? nullptr : &*found;
}

/// The address of a call. A return address points behind the call; when the call is the function's last instruction,
/// that is already the next function.
std::uintptr_t placeOfCall(const CrashRecord& record, std::size_t index)
{
    const std::uintptr_t address = record.calls[index];
    return index == 0 || address == 0 ? address : address - 1;
}

/// The record's address in this run; 0 when the address's module, or that build of the module, is not loaded.
std::uintptr_t addressInThisRun(const CrashRecord& record, std::uintptr_t address,
                                const std::vector<LoadedModule>& loaded)
{
    const LoadedModule* then = moduleAt(record.modules, address);
    if (then == nullptr || then->buildId.empty()) {
        return 0;
    }
    const auto now = std::find_if(loaded.begin(), loaded.end(),
                                  [then](const LoadedModule& module) { return module.buildId == then->buildId; });
    return now == loaded.end() ? 0 : address - then->base + now->base;
}

using FindSymbols = decltype(&lodestar_find_symbols);

struct Names {
    std::vector<std::size_t> calls; ///< the calls whose addresses are looked up
    std::vector<std::string> text;  ///< one name for each call of the record
};

void addName(void* context, std::size_t index, const char* function, const char* file, unsigned line)
{
    auto& names = *static_cast<Names*>(context);
    const std::string_view path = file;
    std::string& text = names.text[names.calls[index]];
    text = function;
    if (!path.empty()) {
        text += fmt::format(" ({}:{})", path.substr(path.rfind('/') + 1), line);
    }
}

std::vector<std::string> namesOf(const CrashRecord& record)
{
    const std::vector<LoadedModule> loaded = loadedModules();
    Names names;
    names.text.resize(record.calls.size());
    std::vector<void*> addresses;
    for (std::size_t index = 0; index < record.calls.size(); ++index) {
        if (const std::uintptr_t address = addressInThisRun(record, placeOfCall(record, index), loaded)) {
            names.calls.push_back(index);
            addresses.push_back(std::bit_cast<void*>(address));
        }
    }
    if (addresses.empty()) {
        return std::move(names.text);
    }
    void* const find = functionOfOwnModule("lodestar-symbols", "lodestar_find_symbols");
    if (find != nullptr) {
        reinterpret_cast<FindSymbols>(find)(addresses.data(), addresses.size(), &addName, &names);
    }
    return std::move(names.text);
}

std::string text(const CrashRecord& record, const std::vector<std::string>& names)
{
    std::string result = record.summary() + "\n\n";
    std::set<std::string> files;
    for (std::size_t index = 0; index < record.calls.size(); ++index) {
        const std::uintptr_t address = record.calls[index];
        // Only file names are shown: a path may name the person's home folder.
        if (const LoadedModule* module = moduleAt(record.modules, placeOfCall(record, index))) {
            result += fmt::format("{:2}  {}+0x{:x}", index, module->name(), address - module->base);
            files.insert(fmt::format("{}  {}\n", module->name(), module->buildId));
        } else {
            result += fmt::format("{:2}  0x{:x}", index, address);
        }
        result += names[index].empty() ? "\n" : "  " + names[index] + "\n";
    }
    for (const std::string& file : files) {
        result += (file == *files.begin() ? "\n" : "") + file;
    }
    return result;
}

} // namespace

std::string symbolisedText(const CrashRecord& record)
{
    return text(record, namesOf(record));
}

std::string addressText(const CrashRecord& record)
{
    return text(record, std::vector<std::string>(record.calls.size()));
}

} // namespace lodestar
