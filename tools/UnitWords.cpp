#include "UnitWords.h"

#include <algorithm>

#include "Console.h"

namespace {

using Types = QVector<UnitType>;

bool contains(const Types& types, const UnitType& type)
{
    return std::any_of(types.begin(), types.end(),
                       [&type](const UnitType& known) { return known.id == type.id; });
}

/// The types of the units that are also in @p allowed, or all of them without it.
Types typesOf(const QVector<Unit>& units, const std::optional<Types>& allowed)
{
    Types types;
    for (const Unit& unit : units) {
        if (!contains(types, unit.type) && (!allowed || contains(*allowed, unit.type)))
            types.append(unit.type);
    }
    return types;
}

QString quotedList(const QStringList& words)
{
    QStringList quoted;
    for (const QString& word : words)
        quoted.append(Console::quoted(word));
    return quoted.join(" and ");
}

} // namespace

UnitWords::UnitWords(const UnitCatalogue& catalogue, const QStringList& words)
    : m_catalogue(catalogue), m_units(words)
{
    const Result<UnitType> type = catalogue.unitType(words.value(0));
    if (!type)
        return;
    m_type = *type;
    m_units.removeFirst();
}

QString UnitWords::rules()
{
    return "A unit is given by its name or by its label in any language, such as Bar or bar;\n"
           "names win over labels. TYPE may be left out where the units belong to one type\n"
           "only. A first word that names a type is always the type. An empty unit means the\n"
           "default unit.\n";
}

QString UnitWords::typeDescription()
{
    return "Unit type, such as Pressure, or a fixed unit, such as Pressure/Bar; may be left out where the "
           "units determine it.";
}

bool UnitWords::lacksUnit() const
{
    return m_type && m_type->fixedUnit.isEmpty() && m_units.isEmpty();
}

Result<UnitSelection> UnitWords::select(int count) const
{
    // There is room for all words only if the first one is a type.
    if (m_units.size() > count)
        return m_catalogue.unitType(m_units.first()).error();
    const Result<UnitType> type = m_type ? *m_type : commonType();
    if (!type)
        return type.error();

    UnitSelection selection{*type, {}};
    for (int i = 0; i < count; ++i) {
        const Result<QString> unit = m_catalogue.unit(*type, m_units.value(i));
        if (!unit)
            return unit.error();
        selection.units.append(*unit);
    }
    return selection;
}

Result<UnitType> UnitWords::commonType() const
{
    std::optional<Types> common;
    QVector<Unit> candidates;
    QStringList words = m_units;
    words.removeAll(QString());
    for (const QString& word : words) {
        const QVector<Unit> named = m_catalogue.unitsNamed(word);
        if (named.isEmpty())
            return common && common->size() == 1 ? m_catalogue.unit(common->first(), word).error()
                                                 : unknown(word);
        common = typesOf(named, common);
        candidates += named;
    }
    if (!common)
        return unknown({});
    if (common->size() == 1)
        return common->first();

    const QString problem = common->isEmpty()  ? " are not units of one type: "
                            : words.size() > 1 ? " are ambiguous: "
                                               : " is ambiguous: ";
    QVector<KnownName> shown;
    for (const Unit& unit : candidates) {
        if (common->isEmpty() || contains(*common, unit.type))
            shown.append(knownName(unit));
    }
    return Failure{quotedList(words) + problem + KnownNames::joined(shown)};
}

KnownName UnitWords::knownName(const Unit& unit) const
{
    KnownName name = m_catalogue.knownName(unit.type, unit.name);
    name.shown += " of " + unit.type.name;
    return name;
}

Failure UnitWords::unknown(const QString& word) const
{
    // A fixed unit whose unit is unknown.
    if (word.contains('/') && m_catalogue.unitType(word.left(word.lastIndexOf('/'))))
        return m_catalogue.unitType(word).error();

    QVector<KnownName> types;
    QVector<KnownName> units;
    for (const UnitType& type : m_catalogue.unitTypes()) {
        types.append({type.name, {type.name}});
        for (const QString& unit : m_catalogue.units(type))
            units.append(knownName({type, unit}));
    }
    return {"unknown unit type or unit " + Console::quoted(word) +
            "; known unit types: " + KnownNames::joined(types) + KnownNames::suggestion(word, types + units)};
}
