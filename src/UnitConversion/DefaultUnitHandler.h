#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include "UnitManagerExport.h"

/// The default unit of each unit type: the unit in which values are shown when the caller does not name one.
///
/// Const operations may run concurrently with each other, but not with an initialisation.
class UNITMANAGER_EXPORT DefaultUnitHandler
{
public:
    /// An empty table.
    DefaultUnitHandler();
    virtual ~DefaultUnitHandler();

    /// Replaces the table by the selection nodes of the document. The old table is removed even on failure.
    ///
    /// @return false for an empty text, a text that does not parse (a warning is logged) and a document
    /// without a usable selection node.
    bool initByJsonString(const QString& json);

    /// Loads the table from the file @p path; see initByJsonString(). An unreadable file counts as empty.
    bool initByJsonFile(const QString& path);

    /// @param unitType unit type with its prefix
    /// @return the name of the default unit without its unit type; empty for an unknown unit type, with a
    /// warning unless it is the unit-less type.
    QString getDefaultUnit(const QString& unitType) const;

    /// Empties the table.
    void reset();

    /// Whether there is at least one default unit.
    bool isValid() const;
    /// Same as isValid().
    operator bool() const;

private:
    QHash<QString, QString> m_defaultUnits;
};
