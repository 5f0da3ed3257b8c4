// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

namespace lodestar
{

class XMLElement;

/// What a label shows of an element; empty for an absent one.
QString textOf(const XMLElement& element);

/// A row as a screen reader says it: its words in their order, the empty ones left out.
QString spoken(QStringList words);

} // namespace lodestar
