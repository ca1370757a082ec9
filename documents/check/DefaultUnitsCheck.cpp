#include "DefaultUnitsCheck.h"

#include <algorithm>

#include "MemberNames.h"
#include "UnitManager.h"
#include "UnitManagerDefinitions.h"
#include "UnitTypeNames.h"

namespace {

/// Whether the text names a unit, alone or after sections of an identifier.
bool isUnitReference(const QString& text)
{
    return !text.split(QLatin1Char('/')).contains(QString());
}

} // namespace

DefaultUnitsCheck::DefaultUnitsCheck(const JsonDocument& document, const UnitManager* library,
                                     Findings& findings)
    : m_document(document), m_library(library), m_findings(findings)
{
    if (m_library == nullptr)
        return;
    m_types = UnitTypeNames::withUnits(*m_library);
    m_typeSet = QSet<QString>(m_types.begin(), m_types.end());
    for (const QString& id : m_library->getListofUnitTypes())
        m_unitlessTypes.insert(UnitTypeNames::afterLastSlash(id));
    m_unitlessTypes.subtract(m_typeSet);
}

void DefaultUnitsCheck::run()
{
    bool isEmpty = true;
    for (const JsonValue& entry : m_document.root().children()) {
        if (entry.name().startsWith(QLatin1Char('$')))
            continue;
        isEmpty = false;
        checkEntry(entry);
    }
    if (isEmpty)
        m_findings.addForDocument(Rule::DocumentEmpty, QStringLiteral("the document has no default units"));
    if (m_library != nullptr)
        checkTypes();
}

void DefaultUnitsCheck::checkEntry(const JsonValue& entry)
{
    const QString name = entry.name();
    if (UnitTypeNames::isUsable(name) && !UnitTypeNames::isUsual(name) && !name.startsWith(QLatin1Char('@')))
        m_findings.addAtName(Rule::NameUnusual, entry, name,
                             DocumentProblem::quoted(name) + " is not a usual name",
                             QStringLiteral("begin with a letter, and use letters and digits only"));
    if (name.startsWith(QLatin1Char('@'))) {
        m_findings.addAtName(Rule::UnknownMember, entry, name,
                             DocumentProblem::quoted(name) + " is not read by any program");
    } else if (!UnitTypeNames::isUsable(name)) {
        m_findings.addAtName(Rule::NameInvalid, entry, name,
                             DocumentProblem::quoted(name) + " is not the name of a unit type",
                             QStringLiteral("write the name without prefix, such as \"Pressure\""));
    } else if (entry.type() == JsonType::Null) {
        m_findings.addAtName(Rule::NullNode, entry, name,
                             "the default unit of " + DocumentProblem::quoted(name) + " is null");
    } else if (isSelection(entry) && m_library != nullptr) {
        checkUnit(entry, entry.member(QStringLiteral("@value"))->string());
    }
}

bool DefaultUnitsCheck::isSelection(const JsonValue& entry)
{
    const auto type = entry.member(QStringLiteral("@type"));
    const auto value = entry.member(QStringLiteral("@value"));
    const bool isValid =
        type && type->string() == QLatin1String("Selection") && value && isUnitReference(value->string());
    if (!isValid) {
        m_findings.addAtName(Rule::DefaultInvalid, entry, entry.name(),
                             "the entry " + DocumentProblem::quoted(entry.name()) +
                                 " is not a selection of a unit",
                             QStringLiteral("write { \"@type\": \"Selection\", \"@value\": \"UNIT\" }"));
        return false;
    }
    for (const JsonValue& member : entry.children()) {
        if (member.name() != QLatin1String("@type") && member.name() != QLatin1String("@value"))
            m_findings.addAtName(Rule::UnknownMember, member, entry.name() + '/' + member.name(),
                                 "no program reads " + DocumentProblem::quoted(member.name()) +
                                     " of a default unit");
    }
    return true;
}

void DefaultUnitsCheck::checkUnit(const JsonValue& entry, const QString& value)
{
    const QString type = entry.name();
    const QString id = UnitTypeNames::identifierOf(type);
    const QString quotedType = DocumentProblem::quoted(type);
    if (m_unitlessTypes.contains(type)) {
        m_findings.addAtName(Rule::DefaultUnitUnknown, entry, type,
                             "unit type " + quotedType + " has no units, so it has no default unit");
        return;
    }
    if (!m_typeSet.contains(type)) {
        m_findings.addAtName(Rule::DefaultTypeUnknown, entry, type,
                             "the units have no unit type " + quotedType,
                             MemberNames::suggestion(type, m_types));
        return;
    }
    const int separator = value.lastIndexOf(QLatin1Char('/'));
    const QString unit = value.mid(separator + 1);
    const QStringList units = m_library->getListofUnits(id);
    if (units.contains(unit) && (separator < 0 || value.left(separator) == id))
        return;
    m_findings.addAtName(Rule::DefaultUnitUnknown, entry, type,
                         DocumentProblem::quoted(value) + " is not a unit of " + quotedType,
                         MemberNames::suggestion(unit, units));
}

/// Reports the unit types without default unit.
void DefaultUnitsCheck::checkTypes()
{
    QSet<QString> entries;
    for (const JsonValue& entry : m_document.root().children())
        entries.insert(entry.name());
    for (const QString& type : qAsConst(m_types)) {
        if (!entries.contains(type))
            m_findings.addForDocument(Rule::DefaultMissing,
                                      "unit type " + DocumentProblem::quoted(type) + " has no default unit");
    }
}
