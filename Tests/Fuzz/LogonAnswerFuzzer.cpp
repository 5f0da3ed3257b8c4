// SPDX-License-Identifier: Apache-2.0
// Any bytes as the body of a logon answer: the session key is the text that libxml2's own tree gives, no more and no
// less, and none where it gives none.
#include "Controllers/REST/RESTSupport.h"
#include "Tests/Fuzz/Require.h"
#include "Tests/Support/TreeReference.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto key = lodestar::sessionKeyOfAnswer(bytes);
    const std::string expected = lodestar::readTreeChildText(bytes, "X-API-Session");
    const std::string found = !key ? "(error)" : key.value() ? "=" + *key.value() : "(none)";
    lodestar::fuzz::require(found == expected, expected, found);
    return 0;
}
