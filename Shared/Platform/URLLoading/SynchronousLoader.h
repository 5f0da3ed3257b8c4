// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"
#include "Platform/URLLoading/CurlSupport.h"
#include "Platform/URLLoading/URLRequest.h"

#include <memory>
#include <optional>

namespace lodestar
{

class Transfer;

/// Runs transfers on the calling thread. Loaders are kept with their connections for the next caller, so that a series
/// of look-ups at one server shakes hands once, whichever threads they come from.
class SynchronousLoader
{
public:
    static Result<URLLoad> load(const URLRequest& request);

    SynchronousLoader();
    ~SynchronousLoader();
    SynchronousLoader(const SynchronousLoader&) = delete;
    SynchronousLoader& operator=(const SynchronousLoader&) = delete;

private:
    static std::unique_ptr<SynchronousLoader> borrow(const std::optional<Origin>& origin);
    static void giveBack(std::unique_ptr<SynchronousLoader> loader);
    void drive(Transfer& transfer);
    std::optional<CURLcode> turn(const Transfer& transfer);

    CURLM* m_multi;
    std::optional<Origin> m_lastOrigin;
};

} // namespace lodestar
