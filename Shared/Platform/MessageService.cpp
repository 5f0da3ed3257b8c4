// SPDX-License-Identifier: Apache-2.0
#include "Platform/MessageService.h"

#include <utility>

namespace lodestar
{
namespace
{

class NoMessages final : public MessageService
{
public:
    bool isAvailable() const override { return false; }
    void show(const Message& /*message*/) override {}
    void setTapped(std::function<void()> /*tapped*/) override {}
    void setAvailabilityChanged(std::function<void()> /*changed*/) override {}
};

/// Never destroyed: the end of the process must not depend on the order of destructors.
std::unique_ptr<MessageService>& standardService()
{
    static auto& service = *new std::unique_ptr<MessageService>(std::make_unique<NoMessages>());
    return service;
}

} // namespace

MessageService& MessageService::standard()
{
    return *standardService();
}

void MessageService::install(std::unique_ptr<MessageService> service)
{
    standardService() = service ? std::move(service) : std::make_unique<NoMessages>();
}

} // namespace lodestar
