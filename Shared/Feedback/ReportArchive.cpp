// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ReportArchive.h"

#include <cstdint>
#include <zlib.h>

namespace lodestar
{

namespace
{

void append16(std::string& bytes, std::uint32_t value)
{
    bytes += static_cast<char>(value & 0xFFU);
    bytes += static_cast<char>((value >> 8U) & 0xFFU);
}

void append32(std::string& bytes, std::uint32_t value)
{
    append16(bytes, value & 0xFFFFU);
    append16(bytes, value >> 16U);
}

/// Fields that an entry's own header and its entry in the directory share.
std::string commonFields(const std::string& name, std::string_view bytes)
{
    constexpr std::uint32_t namesAreUtf8 = 0x0800;
    constexpr std::uint32_t firstOfJanuary1980 = 0x0021; // a constant time, since the report states its time itself
    std::string fields;
    append16(fields, 20); // version 2.0 needed
    append16(fields, namesAreUtf8);
    append16(fields, 0); // method: stored
    append16(fields, 0);
    append16(fields, firstOfJanuary1980);
    append32(fields,
             static_cast<std::uint32_t>(::crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size())));
    append32(fields, static_cast<std::uint32_t>(bytes.size()));
    append32(fields, static_cast<std::uint32_t>(bytes.size()));
    append16(fields, static_cast<std::uint32_t>(name.size()));
    append16(fields, 0); // no extra field
    return fields;
}

} // namespace

std::string zipArchive(std::string_view folder, const std::vector<ReportFile>& files)
{
    constexpr std::uint32_t madeOnUnix = (3U << 8U) | 20U;
    constexpr std::uint32_t ownerMayReadAndWrite = 0100600U << 16U;
    std::string archive;
    std::string directory;
    for (const ReportFile& file : files) {
        const std::string name = std::string(folder) + "/" + file.name;
        const std::string fields = commonFields(name, file.bytes);
        directory += "PK\1\2";
        append16(directory, madeOnUnix);
        directory += fields;
        append16(directory, 0); // no comment
        append16(directory, 0); // first disk
        append16(directory, 0); // internal attributes
        append32(directory, ownerMayReadAndWrite);
        append32(directory, static_cast<std::uint32_t>(archive.size()));
        directory += name;
        archive += "PK\3\4";
        archive += fields;
        archive += name;
        archive += file.bytes;
    }
    const auto start = static_cast<std::uint32_t>(archive.size());
    archive += directory;
    archive += "PK\5\6";
    append32(archive, 0); // one disk
    append16(archive, static_cast<std::uint32_t>(files.size()));
    append16(archive, static_cast<std::uint32_t>(files.size()));
    append32(archive, static_cast<std::uint32_t>(directory.size()));
    append32(archive, start);
    append16(archive, 0); // no comment
    return archive;
}

} // namespace lodestar
