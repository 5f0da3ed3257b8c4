// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace lodestar
{

/// What a label shows of a field; empty for an absent one.
QString textOf(const std::optional<std::string>& field);

/// A row as a screen reader says it: its words in their order, the empty ones left out.
QString spoken(QStringList words);

} // namespace lodestar
