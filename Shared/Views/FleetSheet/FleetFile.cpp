// SPDX-License-Identifier: Apache-2.0
#include "Views/FleetSheet/FleetFile.h"

#include "Fleet/Csv.h"
#include "Kit/Core/FileSaver.h"

#include <QCoreApplication>

#include <utility>

namespace lodestar::FleetFile
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::FleetFile)
};

FleetFileInput inputOf(Result<QByteArray> bytes, const QString& name)
{
    return {.name = name, .bytes = std::make_shared<const Result<QByteArray>>(std::move(bytes))};
}

} // namespace

void choose(std::function<void(FleetFileInput)> chosen)
{
    //: the files that a dialogue shows; what stands in brackets stays
    const QString filter = Words::tr("CSV files (*.csv *.txt *.tsv)");
    FileSaver::open(Words::tr("Import Fleet Sheet"), filter, csvMostBytes,
                    [chosen = std::move(chosen)](Result<QByteArray> bytes, const QString& name) {
                        chosen(inputOf(std::move(bytes), name));
                    });
}

FleetFileInput read(const QUrl& url)
{
    return inputOf(FileSaver::readWhole(url.toLocalFile(), csvMostBytes), url.fileName());
}

} // namespace lodestar::FleetFile
