#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

#include "UnitCatalogue.h"

/// A unit type and units of it.
struct UnitSelection
{
    UnitType type;
    QStringList units;
};

/// The words "[TYPE] [UNIT]..." of a command line.
///
/// The first word is a type if it names one. Otherwise the words are names or labels of units, which have to
/// determine the type.
class UnitWords
{
public:
    /// @param catalogue must outlive the words
    UnitWords(const UnitCatalogue& catalogue, const QStringList& words);

    /// The help text about types and units.
    static QString rules();
    /// The description of TYPE, for the help.
    static QString typeDescription();

    /// Whether there is a type with a choice of units, but no unit.
    bool lacksUnit() const;

    /// Finds the type and @p count units. A unit whose word is missing or empty is the default unit.
    ///
    /// @return a failure that lists the candidates if a word is unknown or ambiguous
    Result<UnitSelection> select(int count) const;

private:
    Result<UnitType> commonType() const;
    /// With the type, "HectoPascal (hPa) of Pressure".
    KnownName knownName(const Unit& unit) const;
    Failure unknown(const QString& word) const;

    const UnitCatalogue& m_catalogue;
    std::optional<UnitType> m_type;
    QStringList m_units;
};
