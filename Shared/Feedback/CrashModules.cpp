// SPDX-License-Identifier: Apache-2.0
#include "Feedback/CrashModules.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <cstring>
#include <link.h>
#include <string_view>
#include <unistd.h>

namespace lodestar
{

namespace
{

constexpr std::string_view hexDigits = "0123456789abcdef";

std::size_t padded(std::size_t size)
{
    return (size + 3) & ~std::size_t{3};
}

/// The build identifier in the notes of a segment; empty when the notes have none.
std::string buildIdIn(const char* notes, std::size_t size)
{
    while (size >= sizeof(ElfW(Nhdr))) {
        ElfW(Nhdr) note;
        std::memcpy(&note, notes, sizeof note);
        const std::size_t whole = sizeof note + padded(note.n_namesz) + padded(note.n_descsz);
        if (whole > size) {
            break;
        }
        const char* name = notes + sizeof note;
        if (note.n_type == NT_GNU_BUILD_ID && note.n_namesz == 4 && std::memcmp(name, "GNU", 4) == 0) {
            std::string text;
            for (std::size_t index = 0; index < note.n_descsz; ++index) {
                const auto byte = static_cast<unsigned char>(name[padded(note.n_namesz) + index]);
                text += hexDigits[byte >> 4U];
                text += hexDigits[byte & 0xFU];
            }
            return text;
        }
        notes += whole;
        size -= whole;
    }
    return {};
}

std::string programPath()
{
    char path[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path);
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

int addModule(dl_phdr_info* info, std::size_t, void* result)
{
    auto& modules = *static_cast<std::vector<LoadedModule>*>(result);
    LoadedModule module;
    module.base = info->dlpi_addr;
    module.first = UINTPTR_MAX;
    for (int index = 0; index < info->dlpi_phnum; ++index) {
        const ElfW(Phdr)& segment = info->dlpi_phdr[index];
        const std::uintptr_t start = info->dlpi_addr + segment.p_vaddr;
        if (segment.p_type == PT_LOAD) {
            module.first = std::min(module.first, start);
            module.end = std::max<std::uintptr_t>(module.end, start + segment.p_memsz);
        } else if (segment.p_type == PT_NOTE && module.buildId.empty()) {
            module.buildId = buildIdIn(std::bit_cast<const char*>(start), segment.p_memsz);
        }
    }
    module.path = modules.empty() ? programPath() : info->dlpi_name;
    if (module.first < module.end) {
        modules.push_back(std::move(module));
    }
    return 0;
}

} // namespace

std::vector<LoadedModule> loadedModules()
{
    std::vector<LoadedModule> modules;
    ::dl_iterate_phdr(&addModule, &modules);
    return modules;
}

} // namespace lodestar
