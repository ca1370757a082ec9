#include "CatalogueVerb.h"

#include <QtCore/QCommandLineParser>

#include "CommonOptions.h"
#include "ShippedDocuments.h"
#include "UnitCatalogue.h"

namespace {

const char* const unitsOption = "units";
const char* const defaultUnitsOption = "default-units";

/// The named file, or the shipped document.
QString documentPath(const QCommandLineParser& options, const QString& option, const QString& shippedName)
{
    return options.isSet(option) ? options.value(option) : ShippedDocuments::path(shippedName);
}

} // namespace

void CatalogueVerb::addOptions(QCommandLineParser& parser) const
{
    parser.addOption({unitsOption, "Unit document; the shipped one when not given.", "FILE"});
    parser.addOption({defaultUnitsOption,
                      "Default-unit document; the shipped one when not given. An empty file means none.",
                      "FILE"});
    CommonOptions::addMaximumSize(parser);
}

Result<ExitCode> CatalogueVerb::run(const QCommandLineParser& options, const QStringList& arguments)
{
    const auto maximumSize = CommonOptions::maximumSize(options);
    if (!maximumSize)
        return maximumSize.error();
    const auto catalogue =
        UnitCatalogue::load(documentPath(options, unitsOption, "units.json"),
                            documentPath(options, defaultUnitsOption, "default-units.json"), *maximumSize);
    if (!catalogue)
        return catalogue.error();
    return answer(*catalogue, options, arguments);
}
