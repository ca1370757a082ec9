#include "Fixtures.h"

QString Documents::units(int hectoPascalPerBar)
{
    return QStringLiteral(R"json({
        "Pressure": {
            "Bar": { "@displayPosition": 0, "DecimalPlaces": 3,
                     "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], "UnitLabel": "bar" },
            "HectoPascal": { "@displayPosition": 1, "DecimalPlaces": 1,
                             "Polynomial": [[0], [%1]], "InversePolynomial": [[0], [1]], "UnitLabel": "hPa" }
        }
    })json")
        .arg(hectoPascalPerBar);
}

QString Documents::defaultUnits(const QString& unit)
{
    return QStringLiteral(R"json({ "Pressure": { "@type": "Selection", "@value": "%1" } })json").arg(unit);
}

QString Documents::dependencies(const QString& key)
{
    return QStringLiteral(R"json({ "PressureUnit": ["%1"] })json").arg(key);
}

QString Documents::broken()
{
    return QStringLiteral("{ broken");
}

Answer Fixtures::units(int hectoPascalPerBar)
{
    return Answer::with(Documents::units(hectoPascalPerBar));
}

Answer Fixtures::dependencies(const QString& key)
{
    return Answer::with(Documents::dependencies(key));
}

Answer Fixtures::defaultUnits(const QString& unit)
{
    return Answer::with(Documents::defaultUnits(unit));
}

World Fixtures::unitsWorld(const QList<Answer>& answers)
{
    return {{Sources::units, answers}};
}

World Fixtures::fullWorld(const QList<Answer>& unitAnswers, const QList<Answer>& dependencyAnswers,
                          const QList<Answer>& defaultUnitAnswers)
{
    return {{Sources::units, unitAnswers},
            {Sources::dependencies, dependencyAnswers},
            {Sources::defaultUnits, defaultUnitAnswers}};
}

World Fixtures::changingWorld(const QList<Answer>& unitAnswers)
{
    return fullWorld(unitAnswers, {dependencies("Pressure"), dependencies("Range")},
                     {defaultUnits("HectoPascal"), defaultUnits("Bar")});
}
