#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitManagerExport.h"

class UnitManagerCore;

/// The translatable labels of units, read from the same document as the conversions.
///
/// Unit types are named with their prefix. Copies are cheap. Const operations may run concurrently with each
/// other, but not with an initialisation.
class UNITMANAGER_EXPORT UnitTextHandler
{
public:
    /// Creates a handler without labels.
    UnitTextHandler();
    /// Creates a handler of the labels in the document @p json; check the result with isValid().
    UnitTextHandler(const QString& json);
    virtual ~UnitTextHandler();

    /// Replaces the labels by those of the document. The old ones are removed even on failure.
    ///
    /// Logs a warning for a unit whose display position is not an integer and for a unit type without a base
    /// unit.
    ///
    /// @return whether there is at least one label; false, with nothing logged, for a text that is empty or
    /// does not parse.
    bool initByJsonString(const QString& json);

    /// Loads the labels from the file @p path; see initByJsonString(). An unreadable file counts as empty.
    bool initByJsonFile(const QString& path);

    /// The label of a unit.
    ///
    /// @param unitType a unit type, or a fixed unit; @p unit is ignored for a fixed unit
    /// @param language language of the text; if it is missing, another language is used
    /// @param unit the unit's name; empty for the base unit
    /// @return the text; empty for the unit-less type and for a unit without a label; empty with a warning
    /// for an unknown unit type or unit.
    QString getUnitText(const QString& unitType, const QString& language, const QString& unit) const;

    /// The label of a unit of the unit type stored in @p node; empty for a null node or a node without a unit
    /// type.
    QString getUnitText(const QSharedPointer<ConfigurationAndProcessDataBase>& node, const QString& language,
                        const QString& unit) const;

    /// The label of a unit of the unit type stored in the child @p key of @p node; empty when there is none.
    QString getUnitText(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                        const QString& language, const QString& unit) const;

    /// The label, in all languages, of a fixed unit or of the base unit of a unit type.
    ///
    /// @return the text object; one with an empty text for the unit-less type; invalid when there is no
    /// label, with a warning for an unknown unit type or unit.
    QVariant getUnitTextJsonMap(const QString& unitType) const;

    /// Whether @p unitType is a fixed unit.
    bool isFixedUnitType(const QString& unitType) const;

    /// Removes all labels.
    void reset();

    /// Whether there is at least one label.
    bool isValid() const;
    /// Same as isValid().
    operator bool() const;

private:
    friend class UnitManagerCore;

    /// Loads a document that has already been parsed; see initByJsonString(). @p root is null if parsing
    /// failed.
    UNITMANAGER_NO_EXPORT bool initByDocument(const BaseClassSharedPointer& root);
    UNITMANAGER_NO_EXPORT void addUnitType(const QString& unitType, const BaseClassSharedPointer& node);
    UNITMANAGER_NO_EXPORT void addUnits(const QString& unitType,
                                        const QHash<QString, BaseClassSharedPointer>& units);
    /// The units of a unit type that have a display position, by position, then by name.
    UNITMANAGER_NO_EXPORT QStringList displayOrder(const QString& unitType) const;

    QHash<QString, QHash<QString, QVariant>> m_unitTexts;
    /// The base unit of each unit type. Also, under the unit type followed by "/", the names of its units in
    /// display order, joined by "/": neither can be a unit type or a unit. The members of this class are part
    /// of the binary interface, so there is no table of its own.
    QHash<QString, QString> m_baseUnitLabels;
};
