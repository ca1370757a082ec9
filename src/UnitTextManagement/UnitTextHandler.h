#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
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
    /// No labels.
    UnitTextHandler();
    /// The labels of the document @p json; test with isValid().
    UnitTextHandler(const QString& json);
    virtual ~UnitTextHandler();

    /// Replaces the labels by those of the document. The old ones are gone also when this fails.
    ///
    /// Logs a warning for a unit whose display position is no integer and for a unit type without a base
    /// unit.
    ///
    /// @return whether there is at least one label; false without a message for a text that is empty or does
    /// not parse.
    bool initByJsonString(const QString& json);

    /// initByJsonString() with the text of the file @p path; an unreadable file counts as empty.
    bool initByJsonFile(const QString& path);

    /// The label of a unit.
    ///
    /// @param unitType a unit type, or a fixed unit: then @p unit is not looked at
    /// @param language language of the text; a missing one falls back to another
    /// @param unit the unit's name; empty for the base unit
    /// @return the text; empty for the unit-less type and for a unit without label; empty with a warning for
    /// an unknown unit type or unit.
    QString getUnitText(const QString& unitType, const QString& language, const QString& unit) const;

    /// The label of a unit of the unit type that @p node names; empty for a null node or one without unit
    /// type.
    QString getUnitText(const QSharedPointer<ConfigurationAndProcessDataBase>& node, const QString& language,
                        const QString& unit) const;

    /// The label of a unit of the unit type that the child @p key of @p node names; empty when there is none.
    QString getUnitText(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                        const QString& language, const QString& unit) const;

    /// The label, in all languages, of a fixed unit or of a unit type's base unit.
    ///
    /// @return the text object; one with an empty text for the unit-less type; invalid when there is no
    /// label, with a warning for an unknown unit type or unit.
    QVariant getUnitTextJsonMap(const QString& unitType) const;

    /// Whether @p unitType is a fixed unit.
    bool isFixedUnitType(const QString& unitType) const;

    /// Forgets all labels.
    void reset();

    /// Whether there is at least one label.
    bool isValid() const;
    operator bool() const;

private:
    friend class UnitManagerCore;

    /// initByJsonString() for a text that has been parsed already; null for one that does not parse.
    UNITMANAGER_NO_EXPORT bool initByDocument(const BaseClassSharedPointer& root);
    UNITMANAGER_NO_EXPORT void addUnitType(const QString& unitType, const BaseClassSharedPointer& node);
    UNITMANAGER_NO_EXPORT void addUnits(const QString& unitType,
                                        const QHash<QString, BaseClassSharedPointer>& units);

    QHash<QString, QHash<QString, QVariant>> unitTexts;
    QHash<QString, QString> baseUnitLabels;
};
