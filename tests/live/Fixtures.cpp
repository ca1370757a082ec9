#include "Fixtures.h"

Answer Fixtures::units(int hectoPascalPerBar)
{
    const QString document = QStringLiteral(R"json({
        "Pressure": {
            "Bar": { "@displayPosition": 0, "DecimalPlaces": 3,
                     "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], "UnitLabel": "bar" },
            "HectoPascal": { "@displayPosition": 1, "DecimalPlaces": 1,
                             "Polynomial": [[0], [%1]], "InversePolynomial": [[0], [1]], "UnitLabel": "hPa" }
        }
    })json");
    return {Answer::Value, document.arg(hectoPascalPerBar)};
}

Answer Fixtures::dependencies(const QString& key)
{
    return {Answer::Value, QStringLiteral(R"json({ "PressureUnit": ["%1"] })json").arg(key)};
}

Answer Fixtures::defaultUnits(const QString& unit)
{
    return {Answer::Value,
            QStringLiteral(R"json({ "Pressure": { "@type": "Selection", "@value": "%1" } })json").arg(unit)};
}

Answer Fixtures::brokenUnits()
{
    return {Answer::Value, QStringLiteral("{ broken")};
}

Answer Fixtures::held(Answer answer)
{
    answer.kind = Answer::Held;
    return answer;
}

Answer Fixtures::afterChange(const SourceName& changed, Answer answer)
{
    answer.changed = changed;
    return answer;
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
