#include "CatalogueVerb.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

#include "UnitCatalogue.h"

namespace {

const char* const unitsOption = "units";
const char* const defaultUnitsOption = "default-units";

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
}

int CatalogueVerb::run(const QCommandLineParser& options, const QStringList& arguments)
{
    const auto catalogue =
        UnitCatalogue::load(documentPath(options, unitsOption, "units.json"),
                            documentPath(options, defaultUnitsOption, "default-units.json"));
    if (!catalogue)
        return fail(catalogue.error());
    return answer(*catalogue, options, arguments);
}
