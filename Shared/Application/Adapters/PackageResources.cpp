// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/PackageResources.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace lodestar
{
namespace
{

std::optional<std::string> read(const QString& path)
{
    QFile file(path);
    // `open` would succeed for a folder, too, and the folder would read as an empty file.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll().toStdString();
}

QString pathOf(const std::string& name)
{
    return QStringLiteral(":/") + QString::fromStdString(name);
}

} // namespace

std::optional<std::string> PackageResources::contents(const std::string& name, const std::string& extension) const
{
    return read(pathOf(extension.empty() ? name : name + "." + extension));
}

std::optional<std::vector<std::string>> PackageResources::filesInFolder(const std::string& folder) const
{
    const QDir directory(pathOf(folder));
    if (folder.empty() || !directory.exists()) {
        return std::nullopt;
    }
    std::vector<std::string> names;
    for (const QString& name : directory.entryList(QDir::Files, QDir::Unsorted)) {
        names.push_back(name.toStdString());
    }
    return names;
}

std::optional<std::string> PackageResources::contentsInFolder(const std::string& folder, const std::string& file) const
{
    return read(pathOf(folder) + QLatin1Char('/') + QString::fromStdString(file));
}

} // namespace lodestar
