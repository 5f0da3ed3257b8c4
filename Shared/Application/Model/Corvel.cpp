// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/Corvel.h"

#include <utility>

namespace lodestar
{

namespace
{

/// Indices of the attributes, in the order in which `Corvel::entity` lists them.
enum Attribute : std::size_t { Name, Address, Username, Password, Demo, Version, AttributeCount };

} // namespace

EntityDescription Corvel::entity()
{
    return {std::string(entityName),
            {{"name", AttributeType::String},
             {"address", AttributeType::String},
             {"username", AttributeType::String},
             {"password", AttributeType::String},
             {"demo", AttributeType::Number},
             {"version", AttributeType::String}},
            [] { return std::make_shared<Corvel>(); }};
}

Corvel::Corvel() : ManagedObject(AttributeCount) {}

std::optional<std::string> Corvel::text(std::size_t index) const
{
    const std::lock_guard lock(m_attributesMutex);
    const auto* const string = std::get_if<std::string>(&attribute(index));
    return string != nullptr ? std::optional(*string) : std::nullopt;
}

void Corvel::setText(std::size_t index, std::optional<std::string> value)
{
    const std::lock_guard lock(m_attributesMutex);
    setAttribute(index, value ? AttributeValue(*std::move(value)) : AttributeValue());
}

std::optional<std::string> Corvel::name() const
{
    return text(Name);
}
std::optional<std::string> Corvel::address() const
{
    return text(Address);
}
std::optional<std::string> Corvel::username() const
{
    return text(Username);
}
std::optional<std::string> Corvel::password() const
{
    return text(Password);
}
std::optional<std::string> Corvel::version() const
{
    return text(Version);
}

int Corvel::demo() const
{
    const std::lock_guard lock(m_attributesMutex);
    const auto* const number = std::get_if<std::int64_t>(&attribute(Demo));
    return number != nullptr ? static_cast<int>(*number) : 0;
}

void Corvel::setName(std::optional<std::string> value)
{
    setText(Name, std::move(value));
}
void Corvel::setAddress(std::optional<std::string> value)
{
    setText(Address, std::move(value));
}
void Corvel::setUsername(std::optional<std::string> value)
{
    setText(Username, std::move(value));
}
void Corvel::setPassword(std::optional<std::string> value)
{
    setText(Password, std::move(value));
}
void Corvel::setVersion(std::optional<std::string> value)
{
    setText(Version, std::move(value));
}
void Corvel::setDemo(bool value)
{
    const std::lock_guard lock(m_attributesMutex);
    setAttribute(Demo, std::int64_t{value ? 1 : 0});
}

std::shared_ptr<const FeedDictionary> Corvel::restData() const
{
    const std::lock_guard lock(m_restDataMutex);
    return m_restData;
}

void Corvel::setRestData(std::shared_ptr<const FeedDictionary> feeds)
{
    {
        const std::lock_guard lock(m_restDataMutex);
        m_restData.swap(feeds);
    }
    // The former feeds may take many megabytes: they are freed here, after the lock was released.
}

void Corvel::changeRestData(const RestDataChange& change)
{
    std::shared_ptr<const FeedDictionary> former;
    {
        const std::lock_guard lock(m_restDataMutex);
        former = m_restData;
        m_restData = change(former);
    }
}

} // namespace lodestar
