// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace lodestar
{

/// A field's text for a label; empty for an absent field.
QString textOf(const std::optional<std::string>& field);

/// A row's text for screen readers: the words in order, without the empty ones.
QString spoken(QStringList words);

} // namespace lodestar
