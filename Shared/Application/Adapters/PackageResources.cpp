// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/PackageResources.h"

#include <QFile>
#include <QFileInfo>

namespace lodestar
{

std::optional<std::string> PackageResources::contents(const std::string& name, const std::string& extension) const
{
    QString path = QStringLiteral(":/") + QString::fromStdString(name);
    if (!extension.empty()) {
        path += QLatin1Char('.') + QString::fromStdString(extension);
    }
    QFile file(path);
    // A folder of the tree would open as well, and read as empty.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll().toStdString();
}

} // namespace lodestar
