// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/LocaleNameOrder.h"

#include <QCollator>
#include <QString>

namespace lodestar
{

int LocaleNameOrder::compare(const std::string& first, const std::string& second) const
{
    // A collator may not be shared by threads.
    thread_local const QCollator collator;
    return collator.compare(QString::fromStdString(first), QString::fromStdString(second));
}

} // namespace lodestar
