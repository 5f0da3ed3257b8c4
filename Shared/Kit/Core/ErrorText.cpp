// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/ErrorText.h"

#include "Platform/Error.h"

#include <QCoreApplication>

namespace lodestar
{

QString errorText(const Error& error)
{
    return QCoreApplication::translate("ErrorWords", shownDescription(error).c_str());
}

} // namespace lodestar
