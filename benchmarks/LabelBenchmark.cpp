#include "BenchmarkSupport.h"
#include "Documents.h"
#include "Floors.h"
#include "Peers.h"
#include "Themes.h"

void Themes::addLabels()
{
    using BenchmarkSupport::add;
    const QString language = QStringLiteral("de");
    const QString hPa = QStringLiteral("hPa");
    for (const QString& unit : {Documents::hectoPascal(), QString()}) {
        const std::string situation = unit.isEmpty() ? "default unit" : "unit";
        add("label/getUnitText/" + situation, hPa,
            [=] { return Documents::shippedManager().getUnitText(Documents::pressure(), language, unit); });
        add("floor/label/" + situation, hPa,
            [=] { return Floors::instance().label(Documents::pressure(), language, unit); });
    }
    add("peer/KUnitConversion symbol", hPa, [hPa] { return Peers::symbolByKUnitConversion(hPa); });
    // Its name for the unit is put together from what it knows: "100 Pa".
    add("peer/UDUNITS symbol", QStringLiteral("100 Pa"), [] { return Peers::symbolByUdunits("hPa"); });
}
