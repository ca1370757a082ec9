#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include "UnitManagerExport.h"

/// The unit in which values of each unit type are shown when a caller names none.
///
/// Const operations may run concurrently with each other, but not with an initialisation.
class UNITMANAGER_EXPORT DefaultUnitHandler
{
public:
    /// An empty table.
    DefaultUnitHandler();
    virtual ~DefaultUnitHandler();

    /// Replaces the table by the selection nodes of the document. The old table is gone also when this fails.
    ///
    /// @return false for an empty text, a text that does not parse (a warning is logged) and a document
    /// without a usable selection node.
    bool initByJsonString(const QString& json);

    /// initByJsonString() with the text of the file @p path; an unreadable file counts as empty.
    bool initByJsonFile(const QString& path);

    /// @param unitType unit type with its prefix
    /// @return the default unit's name without its unit type; empty for an unknown type, with a warning
    /// unless it is the unit-less type.
    QString getDefaultUnit(const QString& unitType) const;

    /// Empties the table.
    void reset();

    /// Whether there is at least one default unit.
    bool isValid() const;
    operator bool() const;

private:
    QHash<QString, QString> defaultUnits;
};
