#include "LabelCheck.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

#include <algorithm>

#include "MemberNames.h"

namespace {

/// The languages that one finding lists; a document may have thousands.
const int mostMissing = 20;
const std::size_t mostUsual = 10;

bool areLetters(const QString& text, char first, char last)
{
    return std::all_of(text.begin(), text.end(), [first, last](QChar character) {
        return character >= QLatin1Char(first) && character <= QLatin1Char(last);
    });
}

/// The object with a text per language; no value if the label is not valid.
std::optional<JsonValue> textsOf(const std::optional<JsonValue>& label)
{
    const auto texts = label ? label->member(QStringLiteral("@value")) : std::nullopt;
    return texts && texts->type() == JsonType::Object ? texts : std::nullopt;
}

bool hasUnusualCharacters(const QString& text)
{
    return text != text.trimmed() || std::any_of(text.begin(), text.end(), [](QChar character) {
               return !character.isPrint() && !character.isSurrogate();
           });
}

} // namespace

LabelCheck::LabelCheck(const TypeNode& type, const QStringList& languages, Findings& findings)
    : m_type(type), m_languages(languages), m_findings(findings)
{}

bool LabelCheck::isLanguage(const QString& text)
{
    const int separator = text.indexOf(QLatin1Char('_'));
    const QString language = text.left(separator);
    const bool isShort = language.size() == 2 || language.size() == 3;
    if (separator < 0 || !isShort)
        return isShort && areLetters(language, 'a', 'z');
    const QString country = text.mid(separator + 1);
    return country.size() == 2 && areLetters(language, 'a', 'z') && areLetters(country, 'A', 'Z');
}

QStringList LabelCheck::requiredLanguages(const JsonDocument& document, const QStringList& given)
{
    QSet<QString> languages(given.begin(), given.end());
    languages.insert(QStringLiteral("en"));
    // Most documents have a few languages, which are not decoded again and again.
    std::vector<QByteArray> usual{QByteArrayLiteral("en")};
    const auto add = [&languages, &usual](const JsonValue& text) {
        const bool isUsual = std::any_of(usual.begin(), usual.end(), [&text](const QByteArray& language) {
            return text.isNamed(language);
        });
        if (isUsual || !isLanguage(text.name()))
            return;
        languages.insert(text.name());
        if (usual.size() < mostUsual)
            usual.push_back(text.name().toUtf8());
    };
    if (given.isEmpty()) {
        for (const JsonValue& type : document.root().children()) {
            for (const JsonValue& unit : type.children()) {
                const auto texts = textsOf(unit.member(QStringLiteral("UnitLabel")));
                for (const JsonValue& text : texts ? texts->children() : std::vector<JsonValue>())
                    add(text);
            }
        }
    }
    QStringList result(languages.begin(), languages.end());
    result.sort();
    return result;
}

void LabelCheck::run()
{
    for (const UnitNode& unit : m_type.units)
        checkLabel(unit);
    checkDuplicates();
}

void LabelCheck::checkLabel(const UnitNode& unit)
{
    const QString advice = QStringLiteral("write \"UnitLabel\": { \"@value\": { \"en\": \"...\" } }");
    const QString path = unit.path + "/UnitLabel";
    if (!unit.label) {
        m_findings.addAtName(Rule::LabelMissing, unit.value, unit.path,
                             QStringLiteral("the unit has no label"),
                             MemberNames::adviceForMissing(unit.value, QStringLiteral("UnitLabel"), advice));
        return;
    }
    if (unit.label->type() == JsonType::Null)
        return;
    const auto texts = textsOf(unit.label);
    if (!texts) {
        m_findings.addAtName(Rule::LabelInvalid, *unit.label, path,
                             QStringLiteral("the label is not an object with a text per language"), advice);
        return;
    }
    for (const JsonValue& member : unit.label->children()) {
        if (!member.isNamed("@value"))
            m_findings.addAtName(Rule::UnknownMember, member, path + '/' + member.name(),
                                 "no program reads " + DocumentProblem::quoted(member.name()) +
                                     " of a label");
    }
    const std::vector<JsonValue> members = texts->children();
    for (const JsonValue& text : members)
        checkText(unit, text);
    checkLanguages(unit, members);
}

void LabelCheck::checkLanguages(const UnitNode& unit, const std::vector<JsonValue>& texts)
{
    QSet<QString> present;
    for (const JsonValue& text : texts)
        present.insert(text.name());
    QStringList missing;
    for (const QString& language : m_languages) {
        if (present.contains(language))
            continue;
        if (missing.size() == mostMissing) {
            missing.append(QStringLiteral("..."));
            break;
        }
        missing.append(language);
    }
    if (!missing.isEmpty())
        m_findings.addAtName(Rule::LanguageMissing, *unit.label, unit.path + "/UnitLabel",
                             "the label lacks " + missing.join(QStringLiteral(", ")));
}

void LabelCheck::checkText(const UnitNode& unit, const JsonValue& text)
{
    const auto path = [&] {
        return unit.path + "/UnitLabel/@value/" + text.name();
    };
    if (!isLanguage(text.name())) {
        m_findings.addAtName(Rule::LanguageInvalid, text, path(),
                             DocumentProblem::quoted(text.name()) + " is not a language",
                             QStringLiteral("write a code such as de or de_AT"));
    } else if (text.type() == JsonType::Null) {
        m_findings.addAtName(Rule::NullNode, text, path(), QStringLiteral("null in place of a label"));
    } else if (text.type() != JsonType::String) {
        m_findings.addAtValue(Rule::LabelInvalid, text, path(), QStringLiteral("the label is not a text"));
    } else if (text.string().isEmpty()) {
        m_findings.addAtValue(Rule::LabelInvalid, text, path(), QStringLiteral("the label is empty"));
    } else if (hasUnusualCharacters(text.string())) {
        m_findings.addAtValue(Rule::LabelCharacters, text, path(),
                              QStringLiteral("the label has control characters, or blanks at its ends"));
    }
}

/// Reports each unit once, in the first language in which its label repeats that of another unit.
void LabelCheck::checkDuplicates()
{
    QHash<QString, const UnitNode*> unitsByText;
    for (const UnitNode& unit : m_type.units) {
        const auto texts = textsOf(unit.label);
        bool isReported = false;
        for (const JsonValue& text : texts ? texts->children() : std::vector<JsonValue>()) {
            if (text.string().isEmpty())
                continue;
            const QString key = text.name() + '/' + text.string();
            const UnitNode* const other = unitsByText.value(key);
            if (other == nullptr) {
                unitsByText.insert(key, &unit);
            } else if (!isReported) {
                isReported = true;
                m_findings.addAtValue(Rule::LabelDuplicate, text,
                                      unit.path + "/UnitLabel/@value/" + text.name(),
                                      "the label is also that of " + DocumentProblem::quoted(other->name));
            }
        }
    }
}
