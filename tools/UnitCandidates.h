#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

class UnitCatalogue;

/// A word that may be typed, and what it means.
struct Candidate
{
    QString word;
    QString description;
};

/// The words that may follow in "[TYPE] [UNIT]..."; see UnitWords.
namespace UnitCandidates {

/// The types and units that may follow, in display order. Units are offered by name and by every label.
///
/// @param words the complete words, from TYPE on
/// @param current the beginning of the next word. If it is empty, a type is expected in the first place; if
/// it names a type followed by "/", its fixed units are offered
/// @param unitCount how many units may follow the type
QVector<Candidate> after(const UnitCatalogue& catalogue, const QStringList& words, const QString& current,
                         int unitCount);

} // namespace UnitCandidates
