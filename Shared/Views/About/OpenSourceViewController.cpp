// SPDX-License-Identifier: Apache-2.0
#include "Views/About/OpenSourceViewController.h"

#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Resources.h"

#include <algorithm>

namespace lodestar
{
namespace
{

constexpr auto folder = "OpenSourceLicenses";
// Length of a file name's ending: a dot and three letters.
constexpr std::size_t endingLength = 4;

QString withoutEnding(const std::string& file)
{
    return QString::fromStdString(file.substr(0, file.size() - std::min(file.size(), endingLength)));
}

} // namespace

void OpenSourceViewController::viewDidLoad()
{
    setTitle(tr("Open Source Licenses"));
    setupLicenseView();
}

void OpenSourceViewController::setupLicenseView()
{
    // The notices are hundreds of kilobytes, so the main thread must not read them.
    DispatchQueue::globalBackground().async([screen = self<OpenSourceViewController>()] {
        const Resources& resources = Resources::main();
        QString text;
        for (const std::string& file : resources.filesInFolder(folder).value_or(std::vector<std::string>())) {
            text += withoutEnding(file) + QLatin1Char('\n');
            text += QString::fromStdString(resources.contentsInFolder(folder, file).value_or(std::string()));
            text += QLatin1String("\n\n\n");
            screen->licenseText()->setAttributedText(text);
        }
    });
}

} // namespace lodestar
