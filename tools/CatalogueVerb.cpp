#include "CatalogueVerb.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

#include "DocumentFile.h"
#include "UnitCatalogue.h"

namespace {

const char* const unitsOption = "units";
const char* const defaultUnitsOption = "default-units";
const char* const maximumSizeOption = "max-size";

/// The named file, or the shipped document, which has a fixed path relative to the program's folder.
QString documentPath(const QCommandLineParser& options, const QString& option, const QString& shippedName)
{
    if (options.isSet(option))
        return options.value(option);
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/unitmanager/" + shippedName);
}

} // namespace

void CatalogueVerb::addOptions(QCommandLineParser& parser) const
{
    parser.addOption({unitsOption, "Unit document; the shipped one when not given.", "FILE"});
    parser.addOption({defaultUnitsOption,
                      "Default-unit document; the shipped one when not given. An empty file means none.",
                      "FILE"});
    parser.addOption(
        {maximumSizeOption,
         QString("Largest document that is read; %1 when not given.").arg(DocumentFile::defaultLimit),
         "BYTES", QString::number(DocumentFile::defaultLimit)});
}

Result<ExitCode> CatalogueVerb::run(const QCommandLineParser& options, const QStringList& arguments)
{
    const std::optional<int> maximumSize = DocumentFile::limitFromText(options.value(maximumSizeOption));
    if (!maximumSize)
        return wrongUsage(
            QString("--max-size must be a number of bytes from 1 to %1").arg(DocumentFile::highestLimit));
    const auto catalogue =
        UnitCatalogue::load(documentPath(options, unitsOption, "units.json"),
                            documentPath(options, defaultUnitsOption, "default-units.json"), *maximumSize);
    if (!catalogue)
        return catalogue.error();
    return answer(*catalogue, options, arguments);
}
