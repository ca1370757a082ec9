#include "UnitCatalogue.h"

#include <algorithm>
#include <utility>

#include "Console.h"
#include "DocumentFile.h"
#include "JsonDocument.h"
#include "UnitManagerDefinitions.h"
#include "Utf8.h"

namespace {

using Document = std::optional<JsonDocument>;

/// Parses a document; a blank one has no value.
Result<Document> parse(const DocumentText& text)
{
    if (Utf8::withoutByteOrderMark(text.bytes).trimmed().isEmpty())
        return Document();
    DocumentProblem problem;
    const Document document = JsonDocument::read(text.bytes, problem);
    if (!document)
        return Failure{problem.inFile(text.name)};
    return document;
}

QString textOf(const Document& document)
{
    return document ? document->text() : QString();
}

/// Whether there is more than notes for editors, such as "$schema".
bool hasContent(const Document& document)
{
    if (!document)
        return false;
    const std::vector<JsonValue> members = document->root().children();
    return std::any_of(members.begin(), members.end(),
                       [](const JsonValue& member) { return !member.name().startsWith('$'); });
}

QString afterLastSlash(const QString& text)
{
    return text.mid(text.lastIndexOf('/') + 1);
}

QStringList namesOf(const QVector<UnitType>& types)
{
    QStringList names;
    for (const UnitType& type : types)
        names.append(type.name);
    return names;
}

/// @return null if the type is unknown.
const UnitType* findType(const QVector<UnitType>& types, const QString& name)
{
    const auto found = std::find_if(types.begin(), types.end(), [&name](const UnitType& type) {
        return type.name == name || type.id == name;
    });
    return found == types.end() ? nullptr : &*found;
}

} // namespace

Result<DocumentText> DocumentText::read(const QString& path, int maximumSize)
{
    DocumentProblem problem;
    const auto bytes = DocumentFile::read(path, DocumentFile::Source::FileOrStream, maximumSize, problem);
    if (!bytes)
        return Failure{problem.inFile(path)};
    return DocumentText{path, *bytes};
}

UnitCatalogue::UnitCatalogue() = default;

Result<UnitCatalogue> UnitCatalogue::load(const DocumentText& unitsText, const DocumentText& defaultUnitsText)
{
    const auto units = parse(unitsText);
    if (!units)
        return units.error();
    const auto defaultUnits = parse(defaultUnitsText);
    if (!defaultUnits)
        return defaultUnits.error();

    UnitCatalogue catalogue;
    // The result is ignored: it is also false for a document without labels, which is sufficient here.
    catalogue.updateUnitConversionByJsonString(textOf(*units));
    if (catalogue.getListofUnitTypes().isEmpty())
        return Failure{unitsText.name + ": contains no unit types that the library can read"};
    if (!catalogue.updateDefaultUnitsByJsonString(textOf(*defaultUnits)) && hasContent(*defaultUnits))
        return Failure{defaultUnitsText.name + ": contains no default units that the library can read"};
    catalogue.m_labels = UnitLabels(**units);
    return catalogue;
}

QVector<UnitType> UnitCatalogue::unitTypes() const
{
    QVector<UnitType> types;
    for (const QString& id : getListofUnitTypes()) {
        UnitType type{afterLastSlash(id), id, {}};
        const QStringList noChoice{UnitManagerDefinitions::getUnitTypeNoUnit()};
        if (units(type) == noChoice)
            type.fixedUnit = noChoice.first();
        types.append(type);
    }
    std::sort(types.begin(), types.end(),
              [](const UnitType& left, const UnitType& right) { return left.name < right.name; });
    return types;
}

Result<UnitType> UnitCatalogue::unitType(const QString& name) const
{
    const QVector<UnitType> types = unitTypes();
    if (const UnitType* type = findType(types, name))
        return *type;

    const QString typeName = name.left(name.lastIndexOf('/'));
    const UnitType* type = findType(types, typeName);
    if (type == nullptr)
        return Failure{KnownNames::unknown("unit type", name, {}, KnownNames::plain(namesOf(types)))};
    const QString unitName = afterLastSlash(name);
    if (!units(*type).contains(unitName))
        return Failure{
            KnownNames::unknown("unit", unitName, " of " + type->name, knownNames(*type, units(*type)))};
    return UnitType{type->name + '/' + unitName, type->id, unitName};
}

QStringList UnitCatalogue::units(const UnitType& type) const
{
    if (!type.fixedUnit.isEmpty())
        return {type.fixedUnit};

    QStringList names;
    for (const QString& name : getUnitsInDisplayOrder(type.id)) {
        // Skip units without conversion: an entry without unit in the same type has removed them.
        if (decimalPlaces(type, name))
            names.append(name);
    }
    const QString base = baseUnit(type);
    if (base == UnitManagerDefinitions::getUnitTypeNoUnit())
        names.append(base);
    return names;
}

Result<QString> UnitCatalogue::unit(const UnitType& type, const QString& word) const
{
    if (word.isEmpty())
        return defaultOf(type);
    const QStringList all = units(type);
    if (all.contains(word))
        return word;
    const QStringList labelled = unitsLabelled(type, word);
    if (labelled.size() == 1)
        return labelled.first();

    const QString ofType = " of " + type.name;
    if (labelled.isEmpty())
        return Failure{KnownNames::unknown("unit", word, ofType, knownNames(type, all))};
    return Failure{Console::quoted(word) + " is the label of several units" + ofType + ": " +
                   KnownNames::joined(knownNames(type, labelled))};
}

Result<QString> UnitCatalogue::defaultOf(const UnitType& type) const
{
    const QStringList all = units(type);
    const QString name = defaultUnit(type);
    if (name.isEmpty())
        return Failure{type.name + " has no default unit; " + KnownNames::list(knownNames(type, all))};
    if (!all.contains(name))
        return Failure{KnownNames::unknown("default unit", name, " of " + type.name, knownNames(type, all))};
    return name;
}

QVector<Unit> UnitCatalogue::unitsNamed(const QString& word) const
{
    QVector<Unit> named;
    QVector<Unit> labelled;
    for (const UnitType& type : unitTypes()) {
        if (units(type).contains(word))
            named.append({type, word});
        for (const QString& unit : unitsLabelled(type, word))
            labelled.append({type, unit});
    }
    return named.isEmpty() ? labelled : named;
}

QStringList UnitCatalogue::unitsLabelled(const UnitType& type, const QString& label) const
{
    QStringList labelled;
    if (label.isEmpty())
        return labelled;
    for (const QString& unit : units(type)) {
        if (labels(type, unit).values().contains(label))
            labelled.append(unit);
    }
    return labelled;
}

KnownName UnitCatalogue::knownName(const UnitType& type, const QString& unit) const
{
    QStringList spellings{unit};
    spellings += labels(type, unit).values();
    const QString text = label(type, unit, "en");
    return {text.isEmpty() || text == unit ? unit : unit + " (" + text + ')', spellings};
}

QVector<KnownName> UnitCatalogue::knownNames(const UnitType& type, const QStringList& units) const
{
    QVector<KnownName> names;
    for (const QString& unit : units)
        names.append(knownName(type, unit));
    return names;
}

QString UnitCatalogue::baseUnit(const UnitType& type) const
{
    if (type.id == UnitManagerDefinitions::getUnitTypeUrlNoUnit())
        return UnitManagerDefinitions::getUnitTypeNoUnit();
    return afterLastSlash(getBaseUnit(type.id));
}

QString UnitCatalogue::defaultUnit(const UnitType& type) const
{
    return type.fixedUnit.isEmpty() ? getDefaultUnit(type.id) : type.fixedUnit;
}

QString UnitCatalogue::label(const UnitType& type, const QString& unit, const QString& language) const
{
    return getUnitText(type.id, language, unit);
}

QMap<QString, QString> UnitCatalogue::labels(const UnitType& type, const QString& unit) const
{
    return m_labels.labels(afterLastSlash(type.id), unit);
}

QStringList UnitCatalogue::languages() const
{
    return m_labels.languages();
}

std::optional<unsigned int> UnitCatalogue::decimalPlaces(const UnitType& type, const QString& unit) const
{
    unsigned int places = 0;
    const bool isKnown = getDecimalPlacesForUnit(type.id, unit, places);
    return isKnown ? std::optional<unsigned int>(places) : std::nullopt;
}

double UnitCatalogue::convert(double value, const UnitType& type, const QString& from,
                              const QString& to) const
{
    // Do not convert through the base unit, which would lose the last digits.
    if (from == to)
        return value;
    return fromBaseUnitRaw(toBaseUnitRaw(value, type.id, from), type.id, to).toDouble();
}

double UnitCatalogue::rounded(double value, unsigned int decimalPlaces) const
{
    return roundDouble(value, decimalPlaces).toDouble();
}
