// SPDX-License-Identifier: Apache-2.0
// Any bytes as the store's file: either a clean refusal that leaves the folder as it was, or a store that works and has
// lost no record.
//
// The first byte of an input says what the rest is: the whole file, or (bit 0) changes to a good store, four bytes
// each: where (two bytes), what to do (overwrite, seldom cut) and the new byte. Bit 1 asks that a store that opens be
// written to as well, which takes as long as everything else.
#include "Application/Model/Corvel.h"
#include "Application/Model/StoreStack.h"
#include "Tests/Fuzz/Require.h"
#include "Tests/Support/ScratchFolder.h"

#include <cstddef>
#include <cstdint>

namespace lodestar
{
namespace
{

using fuzz::require;

constexpr std::size_t records = 3;

std::string read(const std::string& path)
{
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    require(file.is_open(), "the file is still there");
    std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
    file.seekg(0);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

/// A folder in memory, and the bytes of a good store with a few records.
struct Scratch {
    Scratch()
    {
        {
            auto context = ObjectContext::open(path, StoreStack::managedObjectModel());
            require(context.ok(), "a new store");
            for (std::size_t i = 0; i < records; ++i) {
                add(*context.value(), "Console " + std::to_string(i));
            }
            require(context.value()->save().ok(), "a first save");
        }
        good = read(path);
    }

    static void add(ObjectContext& context, const std::string& name)
    {
        const auto corvel = std::static_pointer_cast<Corvel>(context.insertNewObject(Corvel::entityName));
        corvel->setName(name);
        corvel->setAddress("console.example.org");
        corvel->setPassword("a password");
    }

    const ScratchFolder scratch;
    const std::filesystem::path& folder = scratch.path();
    const std::string path = scratch.file("Lodestar.sqlite");
    std::string good;
};

std::string fileOf(const Scratch& scratch, const std::uint8_t* data, std::size_t size)
{
    if (size == 0 || (data[0] & 1U) == 0) {
        return {reinterpret_cast<const char*>(data) + (size != 0 ? 1 : 0), size != 0 ? size - 1 : 0};
    }
    std::string file = scratch.good;
    for (std::size_t i = 1; i + 4 <= size && !file.empty(); i += 4) {
        const std::size_t place = (data[i] * std::size_t{256} + data[i + 1]) % file.size();
        if ((data[i + 2] & 63U) == 63U) {
            file.resize(place);
        } else {
            file[place] = static_cast<char>(data[i + 3]);
        }
    }
    return file;
}

void requireWorking(ObjectContext& context, bool writing)
{
    const auto before = context.fetchAll(Corvel::entityName);
    if (!before) {
        return; // a clean error
    }
    require(before.value().size() >= records, "every record that was there");
    require(context.fetchAll("Group").ok(), "the other entity reads as well");
    if (!writing) {
        return;
    }
    Scratch::add(context, "One more");
    require(context.save().ok(), "a store that opens can be written");
}

void openOnce(const Scratch& scratch, const std::string& file, bool writing)
{
    {
        std::ofstream out(scratch.path, std::ios::binary | std::ios::trunc);
        out.write(file.data(), static_cast<std::streamsize>(file.size()));
    }
    std::size_t count = 0;
    {
        const auto context = ObjectContext::open(scratch.path, StoreStack::managedObjectModel());
        if (!context) {
            require(read(scratch.path) == file, "a refused file stays byte for byte as it was");
            require(std::distance(std::filesystem::directory_iterator(scratch.folder), {}) == 1,
                    "a refusal leaves nothing beside the file");
            return;
        }
        requireWorking(*context.value(), writing);
        if (const auto objects = context.value()->fetchAll(Corvel::entityName)) {
            count = objects.value().size();
        }
    }
    if (!writing) {
        return;
    }
    const auto again = ObjectContext::open(scratch.path, StoreStack::managedObjectModel());
    require(again.ok(), "what was written can be opened again");
    if (const auto objects = again.value()->fetchAll(Corvel::entityName)) {
        require(objects.value().size() == count, "what was written is there");
    }
}

} // namespace
} // namespace lodestar

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const lodestar::Scratch scratch;
    lodestar::openOnce(scratch, lodestar::fileOf(scratch, data, size), size != 0 && (data[0] & 2U) != 0);
    return 0;
}
