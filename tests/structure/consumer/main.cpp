#include <QtCore/QTextStream>

#include <UnitManager.h>
#include <UnitManagerDefinitions.h>

int main()
{
    const QString units = R"({ "Pressure": {
        "Bar": { "@displayPosition": 0, "DecimalPlaces": 3, "Polynomial": [0, 1], "InversePolynomial": [0, 1],
                 "UnitLabel": { "@value": { "en": "bar" } } },
        "HectoPascal": { "@displayPosition": 1, "DecimalPlaces": 3, "Polynomial": [0, 1000],
                         "InversePolynomial": [0, 0.001], "UnitLabel": { "@value": { "en": "hPa" } } } } })";
    const QString& pressure = UnitManagerDefinitions::getUnitTypeUrlPressure();

    UnitManager manager;
    if (!manager.updateUnitConversionByJsonString(units))
        return 1;
    QTextStream(stdout) << manager.toBaseUnit(1013.25, pressure, "HectoPascal").toString() << ' '
                        << manager.getUnitText(pressure, "en", "Bar") << '\n';
    return 0;
}
