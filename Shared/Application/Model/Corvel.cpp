// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/Corvel.h"

namespace lodestar
{

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

int Corvel::demo() const
{
    const std::lock_guard lock(m_attributesMutex);
    const auto* const number = std::get_if<std::int64_t>(&attribute(Demo));
    return number != nullptr ? static_cast<int>(*number) : 0;
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
    changeRestData([&feeds](const std::shared_ptr<const FeedDictionary>& /*former*/) { return std::move(feeds); });
}

void Corvel::changeRestData(const RestDataChange& change)
{
    // The former feeds may take many megabytes: they are freed after the lock was released.
    std::shared_ptr<const FeedDictionary> former;
    {
        const std::lock_guard lock(m_restDataMutex);
        former = m_restData;
        m_restData = change(former);
    }
}

} // namespace lodestar
