#include "UnitCandidates.h"

#include <QtCore/QSet>

#include <algorithm>

#include "UnitCatalogue.h"

namespace {

using Types = QVector<UnitType>;

/// Collects candidates. The first one with a word wins.
class Collector
{
public:
    void add(const QString& word, const QString& description)
    {
        if (word.isEmpty() || m_words.contains(word))
            return;
        m_words.insert(word);
        m_candidates.append({word, description});
    }

    QVector<Candidate> take()
    {
        return m_candidates;
    }

private:
    QSet<QString> m_words;
    QVector<Candidate> m_candidates;
};

/// "bar (Pressure)", or "(Pressure)" for a unit without label.
QString describe(const QString& text, const UnitType& type)
{
    return (text.isEmpty() ? QString() : text + ' ') + '(' + type.name + ')';
}

QString englishLabel(const UnitCatalogue& catalogue, const UnitType& type, const QString& unit)
{
    return catalogue.label(type, unit, "en");
}

void addTypes(Collector& collector, const UnitCatalogue& catalogue)
{
    for (const UnitType& type : catalogue.unitTypes())
        collector.add(type.name, "unit type");
}

/// "Pressure/Bar" for every unit of the type that @p current names before its last slash.
void addFixedUnits(Collector& collector, const UnitCatalogue& catalogue, const QString& current)
{
    const QString prefix = current.left(current.lastIndexOf('/') + 1);
    const Result<UnitType> type = catalogue.unitType(prefix.chopped(1));
    if (!type)
        return;
    for (const QString& unit : catalogue.units(*type))
        collector.add(prefix + unit, describe(englishLabel(catalogue, *type, unit), *type));
}

void addUnits(Collector& collector, const UnitCatalogue& catalogue, const UnitType& type)
{
    const QStringList units = catalogue.units(type);
    for (const QString& unit : units)
        collector.add(unit, describe(englishLabel(catalogue, type, unit), type));
    for (const QString& unit : units) {
        for (const QString& label : catalogue.labels(type, unit))
            collector.add(label, describe(unit, type));
    }
}

/// The types that have every one of the units.
Types typesWithUnits(const UnitCatalogue& catalogue, const QStringList& words)
{
    Types types = catalogue.unitTypes();
    for (const QString& word : words) {
        const QVector<Unit> units = catalogue.unitsNamed(word);
        const auto lacksWord = [&units](const UnitType& type) {
            return std::none_of(units.begin(), units.end(),
                                [&type](const Unit& unit) { return unit.type.id == type.id; });
        };
        if (!word.isEmpty())
            types.erase(std::remove_if(types.begin(), types.end(), lacksWord), types.end());
    }
    return types;
}

} // namespace

QVector<Candidate> UnitCandidates::after(const UnitCatalogue& catalogue, const QStringList& words,
                                         const QString& current, int unitCount)
{
    Collector collector;
    if (words.isEmpty()) {
        addTypes(collector, catalogue);
        if (current.contains('/'))
            addFixedUnits(collector, catalogue, current);
        if (current.isEmpty())
            return collector.take();
    }

    const Result<UnitType> type = catalogue.unitType(words.value(0));
    const int given = words.size() - (type ? 1 : 0);
    if (given >= unitCount)
        return collector.take();
    for (const UnitType& candidate : type ? Types{*type} : typesWithUnits(catalogue, words))
        addUnits(collector, catalogue, candidate);
    return collector.take();
}
