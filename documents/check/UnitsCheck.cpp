#include "UnitsCheck.h"

#include <QtCore/QSet>

#include <algorithm>

#include "ConversionCheck.h"
#include "DisplayCheck.h"
#include "LabelCheck.h"
#include "UnitManager.h"
#include "UnitManagerDefinitions.h"
#include "UnitStructureCheck.h"
#include "UnitTypeNames.h"

namespace {

bool isPropertyOrNote(const JsonValue& member)
{
    const QString name = member.name();
    return name.startsWith(QLatin1Char('@')) || name.startsWith(QLatin1Char('$'));
}

} // namespace

UnitsCheck::UnitsCheck(const JsonDocument& document, const UnitManager& library,
                       const DocumentChecker::Options& options, Findings& findings)
    : m_document(document),
      m_library(library),
      m_options(options),
      m_languages(LabelCheck::requiredLanguages(document, options.languages)),
      m_findings(findings)
{}

void UnitsCheck::run()
{
    bool isEmpty = true;
    for (const JsonValue& member : m_document.root().children()) {
        if (member.name().startsWith(QLatin1Char('$')))
            continue;
        isEmpty = false;
        if (hasUsableName(member, member.name()))
            checkType(member);
    }
    if (isEmpty)
        m_findings.addForDocument(Rule::DocumentEmpty, QStringLiteral("the document has no unit types"));
}

bool UnitsCheck::hasUsableName(const JsonValue& member, const QString& path)
{
    const QString name = member.name();
    const QString quotedName = DocumentProblem::quoted(name);
    if (isPropertyOrNote(member)) {
        m_findings.addAtName(Rule::UnknownMember, member, path, quotedName + " is not read by any program");
        return false;
    }
    const QString advice = QStringLiteral("begin with a letter, and use letters and digits only");
    if (!UnitTypeNames::isUsable(name)) {
        m_findings.addAtName(Rule::NameInvalid, member, path,
                             quotedName + " cannot be a section of an identifier", advice);
        return false;
    }
    if (!UnitTypeNames::isUsual(name))
        m_findings.addAtName(Rule::NameUnusual, member, path, quotedName + " is not a usual name", advice);
    return true;
}

void UnitsCheck::checkType(const JsonValue& member)
{
    const QString name = member.name();
    if (member.type() == JsonType::Null) {
        m_findings.addAtName(Rule::NullNode, member, name,
                             "unit type " + DocumentProblem::quoted(name) + " is null",
                             QStringLiteral("write an object with units"));
        return;
    }
    if (member.type() != JsonType::Object) {
        m_findings.addAtName(Rule::TypeInvalid, member, name,
                             "unit type " + DocumentProblem::quoted(name) + " is not an object",
                             QStringLiteral("write an object with units"));
        return;
    }
    const std::vector<JsonValue> members = member.children();
    if (std::all_of(members.begin(), members.end(), isPropertyOrNote)) {
        m_findings.addAtName(Rule::TypeEmpty, member, name,
                             "unit type " + DocumentProblem::quoted(name) + " has no units");
        return;
    }
    if (const auto noUnit = member.member(UnitManagerDefinitions::getUnitTypeNoUnit())) {
        checkNoUnit(*noUnit, name + '/' + noUnit->name());
        if (members.size() > 1)
            m_findings.addAtName(Rule::NoUnitInvalid, *noUnit, name + '/' + noUnit->name(),
                                 "\"NoUnit\" is not the only unit of " + DocumentProblem::quoted(name) +
                                     ", and removes the conversions of others",
                                 QStringLiteral("move it into a unit type of its own"));
        return;
    }

    TypeNode type = readType(member);
    type.units.reserve(members.size());
    UnitStructureCheck structure(m_findings);
    for (const JsonValue& unit : members) {
        const QString path = name + '/' + unit.name();
        if (!hasUsableName(unit, path))
            continue;
        if (unit.name() == UnitManagerDefinitions::getUnitTypeText()) {
            m_findings.addAtName(Rule::NameInvalid, unit, path,
                                 QStringLiteral("\"Text\" is reserved; the library ignores the unit"));
            continue;
        }
        structure.checkUnit(unit, type, m_library);
    }
    const auto properties = std::count_if(members.begin(), members.end(), isPropertyOrNote);
    type.hasUnusableUnits = type.units.size() + static_cast<std::size_t>(properties) < members.size();
    ConversionCheck(type, m_options, m_findings).run();
    DisplayCheck(type, m_findings).run();
    LabelCheck(type, m_languages, m_findings).run();
}

TypeNode UnitsCheck::readType(const JsonValue& member) const
{
    const QString id = UnitTypeNames::identifierOf(member.name());
    const QList<QString> accepted = m_library.getListofUnits(id);
    return {member.name(),
            id,
            member,
            QSet<QString>(accepted.begin(), accepted.end()),
            UnitTypeNames::afterLastSlash(m_library.getBaseUnit(id)),
            {},
            false};
}

/// "NoUnit" may have a position of 0 and a label that is empty in every language.
void UnitsCheck::checkNoUnit(const JsonValue& unit, const QString& path)
{
    const auto fail = [&](const JsonValue& at, const QString& suffix, const QString& message) {
        m_findings.addAtName(Rule::NoUnitInvalid, at, path + suffix, message,
                             QStringLiteral("write { \"@displayPosition\": 0, \"UnitLabel\": "
                                            "{ \"@value\": { \"en\": \"\" } } }"));
    };
    if (unit.type() == JsonType::Null)
        return m_findings.addAtName(Rule::NullNode, unit, path, QStringLiteral("\"NoUnit\" is null"));
    if (unit.type() != JsonType::Object)
        return fail(unit, {}, QStringLiteral("\"NoUnit\" is not an object"));
    const auto position = unit.member(QStringLiteral("@displayPosition"));
    const auto label = unit.member(QStringLiteral("UnitLabel"));
    for (const JsonValue& member : unit.children()) {
        if (member.name() != QLatin1String("@displayPosition") && member.name() != QLatin1String("UnitLabel"))
            return fail(member, '/' + member.name(),
                        "\"NoUnit\" has a member " + DocumentProblem::quoted(member.name()));
    }
    if (!position || position->type() != JsonType::Number || position->number() != 0)
        return fail(position.value_or(unit), position ? QStringLiteral("/@displayPosition") : QString(),
                    QStringLiteral("\"NoUnit\" is not at position 0"));
    const auto texts = label ? label->member(QStringLiteral("@value")) : std::nullopt;
    if (!texts || texts->type() != JsonType::Object || !texts->member(QStringLiteral("en")) ||
        label->children().size() != 1)
        return fail(label.value_or(unit), label ? QStringLiteral("/UnitLabel") : QString(),
                    QStringLiteral("\"NoUnit\" lacks an empty label in English"));
    for (const JsonValue& text : texts->children()) {
        if (text.type() != JsonType::String || !text.string().isEmpty())
            return fail(text, "/UnitLabel/@value/" + text.name(),
                        QStringLiteral("the label of \"NoUnit\" is not empty"));
    }
}
