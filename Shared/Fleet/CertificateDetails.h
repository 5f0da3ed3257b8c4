// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"
#include "Platform/URLLoading/ServerCertificate.h"

#include <functional>
#include <string_view>

/// What certificates say of themselves and what this device's authorities say of them. The process remembers it: a
/// fleet shows the same certificates at every refresh. Any thread.
namespace lodestar::CertificateDetails
{

/// The objection of a certificate that the authorities have not been asked about. Not empty: nothing is vouched for by
/// omission.
inline constexpr std::string_view notExamined = "not examined yet";

/// Does not ask the authorities: the first question reads all of them, which takes tens of milliseconds, and each
/// certificate costs more than all else about a reading. They are asked again once the certificate has begun or ended.
ShownCertificate of(const ServerCertificate& certificate);

/// Asks the authorities later, on a thread of its own at low priority, once the network is quiet. Then calls the
/// function there.
void examine(const ServerCertificate& certificate, std::function<void(const ShownCertificate&)> examined);

} // namespace lodestar::CertificateDetails
