#include "DecimalPlaces.h"

#include "Row.h"
#include "TestDocuments.h"

namespace T = TestUnitType;

void addDecimalPlacesRows()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("found");
    QTest::addColumn<unsigned int>("places");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("unit", T::pressure, "Bar", true, 3U, none);
    row("empty unit is the default unit", T::pressure, "", true, 1U, none);
    row("default unit written as a fixed unit", T::temperature, "", true, 1U, none);
    row("fixed unit", T::pressure + "/Bar", "", true, 3U, none);
    row("fixed unit beats the unit", T::pressure + "/Bar", "HectoPascal", true, 3U, none);
    row("polynomial without places", T::pressure, "MilliBar", true, 0U, none);
    row("table unit", T::ratio, "Counts", true, 0U, none);
    row("unknown unit", T::pressure, "Nope", false, 77U, none);
    row("unit in other case", T::pressure, "bar", false, 77U, none);
    row("unknown fixed unit", T::pressure + "/Nope", "Bar", false, 77U, none);
    row("fixed unit with empty last part", T::pressure + "/", "Bar", false, 77U, none);
    row("no unit", T::pressure, "NoUnit", false, 77U, none);
    row("no default unit", T::ratio, "", false, 77U, QStringList{Expected::noDefaultUnit(T::ratio)});
    row("unknown unit type", T::unknown, "Bar", false, 77U,
        QStringList{Expected::noConversionForDecimalPlaces(T::unknown)});
    row("fixed unit of an unknown type", T::unknown + "/Bar", "", false, 77U,
        QStringList{Expected::noConversionForDecimalPlaces(T::unknown)});
    row("unit type without prefix", "Pressure", "Bar", false, 77U,
        QStringList{Expected::noConversionForDecimalPlaces("Pressure")});
    row("no unit type", "", "", false, 77U,
        QStringList{Expected::noDefaultUnit(""), Expected::noConversionForDecimalPlaces("")});
}
