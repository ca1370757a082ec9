#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "UnitManagerDevice/UnitManagerDevice.h"

/// The documents, unit names and values that the table combines.
namespace BehaviourDocuments {

QString units();
QString defaultUnits();

/// A manager and its name in the table.
struct NamedManager
{
    QString name;
    UnitManagerDevice manager;
};

/// Managers with both documents, with the units only, and with nothing. They live as long as the process.
const QList<NamedManager>& managers();

/// A unit type, without its prefix if it has one, and a unit.
struct UnitNames
{
    QString unitType;
    QString unit;

    /// The unit type with its prefix; empty and unprefixed ones (starting with "!") unchanged.
    QString fullType() const;
    QString text() const;
};

QList<UnitNames> unitNames();

/// A value and its name in the table.
struct NamedValue
{
    QString name;
    QVariant value;
};

QList<NamedValue> values();
/// A number, the markers, and values that are not numbers.
QList<NamedValue> fewValues();

} // namespace BehaviourDocuments
