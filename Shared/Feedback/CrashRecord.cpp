// SPDX-License-Identifier: Apache-2.0
#include "Feedback/CrashRecord.h"

#include <fmt/core.h>

#include <algorithm>
#include <charconv>
#include <csignal>

namespace lodestar
{

namespace
{

constexpr std::size_t mostModules = 2000;
constexpr std::size_t mostCalls = 256;

std::string_view takeUntil(std::string_view& text, char end)
{
    const std::size_t at = text.find(end);
    const std::string_view part = text.substr(0, at);
    text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
    return part;
}

template <typename Number>
Number numberIn(std::string_view text, int base)
{
    Number number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number, base);
    return number;
}

std::optional<LoadedModule> parseModule(std::string_view text)
{
    LoadedModule module;
    module.base = numberIn<std::uintptr_t>(takeUntil(text, ' '), 16);
    module.first = numberIn<std::uintptr_t>(takeUntil(text, ' '), 16);
    module.end = numberIn<std::uintptr_t>(takeUntil(text, ' '), 16);
    const std::string_view buildId = takeUntil(text, ' ');
    module.buildId = buildId == "-" ? "" : buildId;
    module.path = text;
    return module.first < module.end ? std::optional(std::move(module)) : std::nullopt;
}

struct Reader {
    CrashRecord record;
    std::uintptr_t counter = 0;
    std::uintptr_t caller = 0;
    bool inFrames = false;

    void read(std::string_view line)
    {
        const std::string_view whole = line;
        const std::string_view name = takeUntil(line, ' ');
        const bool isInCrash = record.signal != 0 && !inFrames;
        if (!readField(name, line) && isInCrash && !whole.empty()) {
            record.lastLines.emplace_back(whole); // log lines stand between the crash's fields and the frames
        }
        inFrames = inFrames || whole == "frames";
    }

    /// False for a line that is no field. The first log line may begin anywhere, even with the name of a field that
    /// stands before it, so those fields are read only once.
    bool readField(std::string_view name, std::string_view value)
    {
        if (name == "version" && record.version.empty()) {
            record.version = value;
        } else if (name == "session" && record.session.empty()) {
            record.session = value;
        } else if (name == "signal" && record.signal == 0) {
            record.signal = numberIn<int>(value, 10);
        } else if (name == "code") {
            record.code = numberIn<int>(value, 10);
        } else if (name == "time") {
            record.time = numberIn<std::time_t>(value, 10);
        } else if (name == "address") {
            record.address = numberIn<std::uintptr_t>(value, 16);
        } else if (name == "exception") {
            record.exception = value;
        } else if (name == "counter") {
            counter = numberIn<std::uintptr_t>(value, 16);
        } else if (name == "frame" && record.calls.size() < mostCalls) {
            record.calls.push_back(numberIn<std::uintptr_t>(value, 16));
        } else if (name == "caller") {
            caller = numberIn<std::uintptr_t>(value, 16);
        } else if (name == "module" && record.modules.size() < mostModules) {
            // Another thread may have been writing modules when the process crashed.
            if (std::optional<LoadedModule> module = parseModule(value)) {
                record.modules.push_back(std::move(*module));
            }
        } else {
            return name == "thread" || name == "frames";
        }
        return true;
    }

    /// Removes the handler's own frames, so that the calls start at the crash.
    void settle()
    {
        std::vector<std::uintptr_t>& calls = record.calls;
        const auto place = std::find(calls.begin(), calls.end(), counter);
        if (counter != 0 && place != calls.end()) {
            calls.erase(calls.begin(), place);
        } else {
            // The stack could not be unwound past the handler, so all frames belong to the handler.
            calls = {counter};
        }
        if (caller != 0) {
            calls.insert(calls.begin() + 1, caller);
        }
    }
};

} // namespace

std::string CrashRecord::signalName() const
{
    const char* name = ::sigabbrev_np(signal);
    return name == nullptr ? fmt::format("signal {}", signal) : fmt::format("SIG{}", name);
}

std::string CrashRecord::summary() const
{
    std::string text = fmt::format("The application ended by {}", signalName());
    // When a process sent the signal, the address field identifies the sender instead.
    if (address && code > 0) {
        text += fmt::format(" at address 0x{:x}", *address);
    }
    return text + (exception.empty() ? "." : fmt::format(": {}", exception));
}

std::optional<CrashRecord> parseCrashRecord(std::string_view text)
{
    Reader reader;
    while (!text.empty()) {
        reader.read(takeUntil(text, '\n'));
    }
    if (reader.record.signal == 0) {
        return std::nullopt;
    }
    reader.settle();
    return std::move(reader.record);
}

} // namespace lodestar
