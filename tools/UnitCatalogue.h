#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <optional>

#include "KnownNames.h"
#include "Result.h"
#include "UnitLabels.h"
#include "UnitManager.h"

/// The text of a document, and what messages call it.
struct DocumentText
{
    QString name;
    QByteArray bytes;

    /// Reads a file. @param maximumSize the largest file that is read, in bytes
    static Result<DocumentText> read(const QString& path, int maximumSize);
};

/// A unit type as the user named it.
struct UnitType
{
    /// The name without prefix, "Pressure"; for a fixed unit with the unit, "Pressure/Bar".
    QString name;
    /// The library's identifier, "UnitManager/UnitType/Pressure".
    QString id;
    /// The only unit of a fixed unit; empty for a type with a choice of units. The unit-less type counts as
    /// fixed.
    QString fixedUnit;
};

/// A unit of a type, by name.
struct Unit
{
    UnitType type;
    QString name;
};

/// The unit manager of two documents, queried by names that a user typed. Lists are sorted, so that the
/// output is the same in every run.
class UnitCatalogue : private UnitManager
{
public:
    /// Loads the catalogue from two documents.
    ///
    /// @return a failure that names the document if it is not valid; only the default units may be blank
    static Result<UnitCatalogue> load(const DocumentText& unitsText, const DocumentText& defaultUnitsText);

    /// All unit types, sorted by name.
    QVector<UnitType> unitTypes() const;
    /// Finds a type by name, with or without prefix, with or without "/" and a fixed unit.
    ///
    /// @return a failure that lists the known names if the name is unknown
    Result<UnitType> unitType(const QString& name) const;

    /// The names of the type's units in display order: by display position, then by name. Units without a
    /// position come last.
    QStringList units(const UnitType& type) const;
    /// Finds a unit by name or, if no unit has that name, by its label in any language. An empty word selects
    /// the default unit.
    ///
    /// @return a failure that lists the candidates if the word is unknown or the label of several units
    Result<QString> unit(const UnitType& type, const QString& word) const;
    /// The units of all types with that name or, if there is none, with that label in any language; none for
    /// an empty word.
    QVector<Unit> unitsNamed(const QString& word) const;

    /// A unit for a list of names: "HectoPascal (hPa)", with its name and labels as spellings.
    KnownName knownName(const UnitType& type, const QString& unit) const;

    /// The name of the type's base unit; empty if it has none.
    QString baseUnit(const UnitType& type) const;
    /// The name of the default unit; for a fixed unit, that unit. Empty if there is none.
    QString defaultUnit(const UnitType& type) const;

    /// The unit's label. @return empty for a unit without label
    QString label(const UnitType& type, const QString& unit, const QString& language) const;
    /// The unit's labels by language; see UnitLabels.
    QMap<QString, QString> labels(const UnitType& type, const QString& unit) const;
    /// The languages of all labels, "en" first.
    QStringList languages() const;
    /// The unit's decimal places. @return no value for a unit whose values are never rounded
    std::optional<unsigned int> decimalPlaces(const UnitType& type, const QString& unit) const;

    /// Converts a value from one unit to another, unrounded. Both must be units of the type.
    double convert(double value, const UnitType& type, const QString& from, const QString& to) const;
    /// Rounds as the library does, half away from zero.
    double rounded(double value, unsigned int decimalPlaces) const;

private:
    UnitCatalogue();

    Result<QString> defaultOf(const UnitType& type) const;
    QVector<KnownName> knownNames(const UnitType& type, const QStringList& units) const;
    QStringList unitsLabelled(const UnitType& type, const QString& label) const;

    UnitLabels m_labels;
};
