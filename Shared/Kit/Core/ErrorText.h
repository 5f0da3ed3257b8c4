// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace lodestar
{

struct Error;

/// The text that tells a person of the error, in the language of the interface.
QString errorText(const Error& error);

} // namespace lodestar
