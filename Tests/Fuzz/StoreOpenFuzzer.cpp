// SPDX-License-Identifier: Apache-2.0
// A store with bytes changed anywhere: either a clean refusal that leaves the folder as it was, or a store that works
// and has lost no record.
//
// Each four bytes of an input are one change: where (two bytes), what to do (overwrite, seldom cut) and the new byte.
// Bit 1 of the byte before all changes asks that a store that opens be written to as well, which takes as long as
// everything else.
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
        good = read();
    }

    static void add(ObjectContext& context, const std::string& name)
    {
        const auto corvel = std::static_pointer_cast<Corvel>(context.insertNewObject(Corvel::entityName));
        corvel->setName(name);
        corvel->setAddress("console.example.org");
        corvel->setPassword("a password");
    }

    std::string read() const { return folder.read("Lodestar.sqlite"); }

    const ScratchFolder folder;
    const std::string path = folder.file("Lodestar.sqlite");
    std::string good;
};

std::string changed(std::string file, const std::uint8_t* data, std::size_t size)
{
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

/// The number of records, of which none may be missing; nothing on a clean error.
std::optional<std::size_t> recordsIn(ObjectContext& context)
{
    const auto found = context.fetchAll(Corvel::entityName);
    if (!found) {
        return std::nullopt;
    }
    require(found.value().size() >= records, "every record that was there");
    require(context.fetchAll("Group").ok(), "the other entity reads as well");
    return found.value().size();
}

void openOnce(const Scratch& scratch, const std::string& file, bool writing)
{
    std::ofstream(scratch.path, std::ios::binary | std::ios::trunc) << file;
    std::optional<std::size_t> count;
    {
        const auto context = ObjectContext::open(scratch.path, StoreStack::managedObjectModel());
        if (!context) {
            require(scratch.read() == file, "a refused file stays byte for byte as it was");
            require(std::distance(std::filesystem::directory_iterator(scratch.folder.path()), {}) == 1,
                    "a refusal leaves nothing beside the file");
            return;
        }
        count = recordsIn(*context.value());
        if (!count || !writing) {
            return;
        }
        Scratch::add(*context.value(), "One more");
        require(context.value()->save().ok(), "a store that opens can be written");
    }
    const auto again = ObjectContext::open(scratch.path, StoreStack::managedObjectModel());
    require(again.ok(), "what was written can be opened again");
    require(recordsIn(*again.value()) == *count + 1, "what was written is there");
}

} // namespace
} // namespace lodestar

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const lodestar::Scratch scratch;
    lodestar::openOnce(scratch, lodestar::changed(scratch.good, data, size), size != 0 && (data[0] & 2U) != 0);
    return 0;
}
