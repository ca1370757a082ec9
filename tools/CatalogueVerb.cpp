#include "CatalogueVerb.h"

#include <QtCore/QCommandLineParser>

#include "CommonOptions.h"
#include "RunningService.h"
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

Result<UnitCatalogue> loadFromFiles(const QCommandLineParser& options, int maximumSize)
{
    const auto units = DocumentText::read(documentPath(options, unitsOption, "units.json"), maximumSize);
    if (!units)
        return units.error();
    const auto defaultUnits =
        DocumentText::read(documentPath(options, defaultUnitsOption, "default-units.json"), maximumSize);
    if (!defaultUnits)
        return defaultUnits.error();
    return UnitCatalogue::load(*units, *defaultUnits);
}

Result<UnitCatalogue> loadFromService(const QCommandLineParser& options)
{
    if (options.isSet(unitsOption) || options.isSet(defaultUnitsOption))
        return wrongUsage("--bus cannot be combined with --units and --default-units");
    const auto bus = CommonOptions::bus(options);
    if (!bus)
        return bus.error();
    const auto service = RunningService::find(*bus);
    if (!service)
        return service.error();
    const auto units = service->text(DocumentKind::Units);
    if (!units)
        return units.error();
    const auto defaultUnits = service->text(DocumentKind::DefaultUnits);
    if (!defaultUnits)
        return defaultUnits.error();
    return UnitCatalogue::load({"active units", units->toUtf8()},
                               {"active default units", defaultUnits->toUtf8()});
}

} // namespace

void CatalogueVerb::addOptions(QCommandLineParser& parser) const
{
    parser.addOption(
        {unitsOption, "Unit document; the product's own or the shipped one when not given.", "FILE"});
    parser.addOption({defaultUnitsOption,
                      "Default-unit document; the product's own or the shipped one when not given. An empty "
                      "file means none.",
                      "FILE"});
    CommonOptions::addOptionalBus(
        parser, "Use the active documents of the configuration service on this bus in place of files");
    CommonOptions::addMaximumSize(parser);
}

Result<UnitCatalogue> CatalogueVerb::loadCatalogue(const QCommandLineParser& options)
{
    const auto maximumSize = CommonOptions::maximumSize(options);
    if (!maximumSize)
        return maximumSize.error();
    return CommonOptions::isBusGiven(options) ? loadFromService(options)
                                              : loadFromFiles(options, *maximumSize);
}

Result<ExitCode> CatalogueVerb::run(const QCommandLineParser& options, const QStringList& arguments)
{
    const auto catalogue = loadCatalogue(options);
    if (!catalogue)
        return catalogue.error();
    return answer(*catalogue, options, arguments);
}
