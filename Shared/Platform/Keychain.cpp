// SPDX-License-Identifier: Apache-2.0
#include "Platform/Keychain.h"

#include <map>
#include <utility>

namespace lodestar
{

namespace
{

class MemoryKeychain final : public Keychain
{
public:
    void readPassword(const std::string& service, const std::string& account, Prompt /*prompt*/, Read answer) override
    {
        const auto found = m_items.find({service, account});
        answer(found == m_items.end() ? std::string() : found->second);
    }

    void writePassword(const std::string& password, const std::string& service, const std::string& account,
                       Prompt /*prompt*/, Written answer) override
    {
        m_items.insert_or_assign({service, account}, password);
        answer({});
    }

private:
    std::map<std::pair<std::string, std::string>, std::string> m_items;
};

/// Never destroyed: the end of the process must not depend on the order of destructors.
std::unique_ptr<Keychain>& standardKeychain()
{
    static auto& keychain = *new std::unique_ptr<Keychain>(std::make_unique<MemoryKeychain>());
    return keychain;
}

} // namespace

Keychain& Keychain::standard()
{
    return *standardKeychain();
}

void Keychain::install(std::unique_ptr<Keychain> keychain)
{
    standardKeychain() = keychain ? std::move(keychain) : std::make_unique<MemoryKeychain>();
}

} // namespace lodestar
