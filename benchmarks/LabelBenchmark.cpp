#include "Baselines.h"
#include "BenchmarkSupport.h"
#include "Competitors.h"
#include "Documents.h"
#include "Themes.h"

void Themes::addLabels()
{
    using BenchmarkSupport::add;
    const QString language = QStringLiteral("de");
    const QString hPa = QStringLiteral("hPa");
    for (const QString& unit : {Documents::hectoPascal(), QString()}) {
        const std::string scenario = unit.isEmpty() ? "default unit" : "unit";
        add("label/getUnitText/" + scenario, hPa,
            [=] { return Documents::shippedManager().getUnitText(Documents::pressure(), language, unit); });
        add("baseline/label/" + scenario, hPa,
            [=] { return Baselines::instance().label(Documents::pressure(), language, unit); });
    }
    add("competitor/KUnitConversion symbol", hPa,
        [hPa] { return Competitors::symbolByKUnitConversion(hPa); });
    // UDUNITS composes the name of the unit from units that it knows: "100 Pa".
    add("competitor/UDUNITS symbol", QStringLiteral("100 Pa"),
        [] { return Competitors::symbolByUdunits("hPa"); });
}
