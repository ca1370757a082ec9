#include "Documents.h"

#include <QtCore/QFile>

#include "UnitManagerDefinitions.h"

namespace {

const int unitsPerType = 20;

QString readShipped(const QString& name)
{
    QFile file(QStringLiteral(UNITMANAGER_CONFIG_DIR "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString generatedUnit(int position)
{
    const QString number = QString::number(position);
    const QString factor = QString::number(position + 1);
    const QString inverse = QString::number(1.0 / (position + 1), 'g', 17);
    return QStringLiteral(
               "    \"Unit%1\": {\n"
               "      \"@displayPosition\": %1,\n"
               "      \"DecimalPlaces\": 3,\n"
               "      \"Polynomial\": [[0], [%2]],\n"
               "      \"InversePolynomial\": [[0], [%3]],\n"
               "      \"UnitLabel\": { \"@value\": { \"en\": \"u%1\", \"de\": \"e%1\", \"fr\": \"f%1\" } }\n"
               "    }")
        .arg(number, factor, inverse);
}

} // namespace

namespace Documents {

const QString& shippedUnits()
{
    static const QString text = readShipped(QStringLiteral("units.json"));
    return text;
}

const QString& shippedDefaultUnits()
{
    static const QString text = readShipped(QStringLiteral("default-units.json"));
    return text;
}

const QString& shippedDependencies()
{
    static const QString text = readShipped(QStringLiteral("dependencies.json"));
    return text;
}

QString generatedUnits(int unitCount)
{
    QStringList units;
    for (int position = 0; position < unitsPerType; ++position)
        units.append(generatedUnit(position));
    const QString type = units.join(QStringLiteral(",\n"));
    QString text = QStringLiteral("{\n");
    for (int number = 0; number < unitCount / unitsPerType; ++number) {
        if (number != 0)
            text += QStringLiteral(",\n");
        text += QStringLiteral("  \"Type%1\": {\n").arg(number) + type + QStringLiteral("\n  }");
    }
    return text + QStringLiteral("\n}\n");
}

int unitCount(const UnitManager& manager)
{
    int count = 0;
    for (const QString& unitType : manager.getListofUnitTypes())
        count += manager.getListofUnits(unitType).size();
    return count;
}

const UnitManager& shippedManager()
{
    static const UnitManager manager = [] {
        UnitManager loaded;
        loaded.initByJsonString(shippedUnits(), shippedDefaultUnits());
        return loaded;
    }();
    return manager;
}

const QString& pressure()
{
    return UnitManagerDefinitions::getUnitTypeUrlPressure();
}

const QString& hectoPascal()
{
    static const QString name = QStringLiteral("HectoPascal");
    return name;
}

const QString& pressureInBar()
{
    return UnitManagerDefinitions::getUnitUrlPressureBar();
}

} // namespace Documents
