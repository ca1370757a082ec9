#include "ServiceDocuments.h"

QByteArray ServiceDocuments::units(const QString& label)
{
    return QStringLiteral(
               R"({"Pressure": {"Bar": {"@displayPosition": 0, "DecimalPlaces": 3, "Polynomial": [[0], [1]],
  "InversePolynomial": [[0], [1]], "UnitLabel": {"@value": {"en": "%1"}}}}})")
        .arg(label)
        .toUtf8();
}

QByteArray ServiceDocuments::defaultUnits(const QString& note)
{
    return QStringLiteral(R"({"$comment": "%1", "Pressure": {"@type": "Selection", "@value": "Bar"}})")
        .arg(note)
        .toUtf8();
}

QByteArray ServiceDocuments::dependencies(const QString& dependent)
{
    return QStringLiteral(R"({"PressureUnit": ["%1"]})").arg(dependent).toUtf8();
}
