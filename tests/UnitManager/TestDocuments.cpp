#include "TestDocuments.h"

#include "UnitTypes.h"

QString TestDocuments::units()
{
    return QStringLiteral(R"json({
        "Pressure": {
            "Bar": { "@displayPosition": 0, "DecimalPlaces": 3,
                     "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]],
                     "UnitLabel": { "@value": { "en": "bar", "de": "Bar" } } },
            "HectoPascal": { "@displayPosition": 1, "DecimalPlaces": 1,
                             "Polynomial": [[0], [1000]], "InversePolynomial": [[0], [0.001]],
                             "UnitLabel": { "@value": { "en": "hPa", "de": "Hektopascal" } } },
            "MilliBar": { "@displayPosition": 2,
                          "Polynomial": [[0], [1000]], "InversePolynomial": [[0], [0.001]],
                          "UnitLabel": { "@value": { "en": "mbar" } } }
        },
        "AbsoluteTemperature": {
            "Kelvin": { "@displayPosition": 0, "DecimalPlaces": 2,
                        "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]],
                        "UnitLabel": { "@value": { "en": "K" } } },
            "Celsius": { "@displayPosition": 1, "DecimalPlaces": 1,
                         "Polynomial": [[-273.15], [1]], "InversePolynomial": [[273.15], [1]],
                         "UnitLabel": { "@value": { "en": "deg C" } } }
        },
        "Ratio": {
            "Percentage": { "@displayPosition": 0, "DecimalPlaces": 2,
                            "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]],
                            "UnitLabel": "%" },
            "Counts": { "@displayPosition": 1, "DecimalPlaces": 2,
                        "ArbitraryTable": {}, "Table": [[0, 0], [10, 100]],
                        "UnitLabel": "cts" }
        }
    })json");
}

QString TestDocuments::defaultUnits()
{
    return withPlatformPrefix(QStringLiteral(R"json({
        "Pressure": { "@type": "Selection", "@value": "HectoPascal" },
        "AbsoluteTemperature": { "@type": "Selection",
                                 "@value": "UnitManager/UnitType/AbsoluteTemperature/Celsius" }
    })json"));
}

QString TestDocuments::voltage()
{
    return QStringLiteral(R"json({
        "Voltage": { "Volt": { "@displayPosition": 0, "DecimalPlaces": 3,
                               "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]],
                               "UnitLabel": "V" } }
    })json");
}
