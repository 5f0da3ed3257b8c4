// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"
#include "Platform/URLLoading/Transfer.h"
#include "Platform/URLLoading/URLRequest.h"

#include <functional>

namespace lodestar
{

/// Collects a plain request's answer under the system's trust rules. The body stays packed if it came packed.
class LoadClient : public TransferClient
{
public:
    using Completion = std::function<void(Result<URLLoad> load, HeldBytes held)>;
    /// The completion is called on the thread that drives the transfer.
    explicit LoadClient(Completion completion) : m_completion(std::move(completion)) {}

    bool acceptsServer(const ServerCertificate& certificate, Handshake handshake) override;
    bool wantsFreshHandshake(const Origin&) const override { return false; }
    void didReceiveResponse(const URLResponse& response) override;
    void didReceiveData(std::span<const char> data) override;
    void didEnd(std::optional<Error> error, HeldBytes held) override;

private:
    Completion m_completion;
    URLLoad m_load;
};

} // namespace lodestar
