#include <QtTest/QTest>

#include <algorithm>

#include "Corpus.h"
#include "DocumentChanges.h"
#include "LogCapture.h"
#include "Row.h"
#include "TestProgram.h"
#include "UnitManager.h"

Q_DECLARE_METATYPE(CorpusFile)

/// The checker and the library agree about the documents of the corpus: which units the library ignores,
/// which unit is the base unit, and which labels are empty.
class CorpusLibraryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agree_data();
    void agree();
    void agreeAfterAnyChange_data();
    void agreeAfterAnyChange();

private:
    void compare(const JsonDocument& document);
    void compareType(const JsonValue& type);
    void compareUnit(const QString& typeId, const JsonValue& unit, const QString& path);
    void compareBaseUnit(const QString& typeId, const JsonValue& type);
    void compareConversions(const UnitManager& sound);
    bool hasWarning() const;
    bool isIgnored(const JsonValue& unit, const QString& path) const;
    bool isFound(const QString& path, std::initializer_list<Rule> rules) const;

    UnitManager m_library;
    std::vector<Finding> m_findings;
};

namespace {

const char* const conversionKinds[] = {"Polynomial", "ArbitraryTable", "EquidistantTable"};

bool isNoteOrProperty(const JsonValue& member)
{
    return member.name().startsWith('$') || member.name().startsWith('@');
}

/// Whether the document puts the unit at position 0.
bool isBase(const JsonValue& unit)
{
    const auto position = unit.member(QStringLiteral("@displayPosition"));
    return position && position->type() == JsonType::Number && position->number() == 0;
}

} // namespace

void CorpusLibraryTest::agree_data()
{
    QTest::addColumn<CorpusFile>("file");

    for (const CorpusEntry& entry : Corpus::entries()) {
        for (const CorpusFile& file : entry.files) {
            Finding unreadable;
            if (file.kind == DocumentKind::Units && file.read(unreadable))
                QTest::newRow(qPrintable(entry.name)) << file;
        }
    }
}

void CorpusLibraryTest::agree()
{
    QFETCH(CorpusFile, file);

    Finding unreadable;
    compare(*file.read(unreadable));
}

void CorpusLibraryTest::agreeAfterAnyChange_data()
{
    QTest::addColumn<QString>("name");

    row("polynomials", "units/sound.json");
    row("table of points", "units/arbitrary-table.json");
    row("table of ordinates", "units/equidistant-table.json");
}

void CorpusLibraryTest::agreeAfterAnyChange()
{
    QFETCH(QString, name);

    const std::vector<CorpusEntry> entries = Corpus::entries();
    const auto entry = std::find_if(entries.begin(), entries.end(),
                                    [&](const CorpusEntry& candidate) { return candidate.name == name; });
    QVERIFY(entry != entries.end());
    Finding unreadable;
    const auto sound = entry->files.front().read(unreadable);
    UnitManager library;
    QVERIFY(library.updateUnitConversionByJsonString(sound->text()));
    const std::vector<ChangedDocument> documents = DocumentChanges::of(sound->bytes());
    QVERIFY(documents.size() > 500);
    for (const ChangedDocument& changed : documents) {
        DocumentProblem problem;
        const auto document = JsonDocument::read(changed.text, problem);
        QVERIFY(document);
        compare(*document);
        if (!hasWarning())
            compareConversions(library);
        if (QTest::currentTestFailed()) {
            qWarning() << "after the change" << changed.change;
            return;
        }
    }
}

void CorpusLibraryTest::compare(const JsonDocument& document)
{
    LogCapture log;
    m_library = UnitManager();
    const bool isLoaded = m_library.updateUnitConversionByJsonString(document.text());
    m_findings = DocumentChecker::check({document, {}, {}}, {});

    // That the library refuses the document is not reported in addition to another error.
    const bool hasError = std::any_of(m_findings.begin(), m_findings.end(), [](const Finding& finding) {
        return Rules::describe(finding.rule).severity == Severity::Error;
    });
    QVERIFY(isLoaded ? !isFound({}, {Rule::DocumentEmpty, Rule::DocumentRefused}) : hasError);
    for (const JsonValue& type : document.root().children()) {
        // "NoUnit" removes the conversions read before it, and the library reads in hash order.
        const bool hasNoUnit = type.member(QStringLiteral("NoUnit")).has_value();
        if (type.type() == JsonType::Object && !isNoteOrProperty(type) && !hasNoUnit)
            compareType(type);
        if (QTest::currentTestFailed())
            return;
    }
}

void CorpusLibraryTest::compareType(const JsonValue& type)
{
    const QString id = "UnitManager/UnitType/" + type.name();
    for (const JsonValue& unit : type.children()) {
        if (unit.name().startsWith('@'))
            continue;
        compareUnit(id, unit, type.name() + '/' + unit.name());
        if (QTest::currentTestFailed())
            return;
    }
    compareBaseUnit(id, type);
}

bool CorpusLibraryTest::isIgnored(const JsonValue& unit, const QString& path) const
{
    const auto isNullKind = [&](const char* kind) {
        return isFound(path + '/' + kind, {Rule::NullNode});
    };
    // The library accepts names that it cannot find again as part of an identifier, except for "Text".
    const bool isName = unit.type() == JsonType::Object && unit.name() != QLatin1String("Text");
    return isFound(path, {Rule::ConversionMissing, Rule::UnitInvalid, Rule::NullNode}) ||
           (!isName && isFound(path, {Rule::NameInvalid, Rule::UnknownMember})) ||
           std::any_of(std::begin(conversionKinds), std::end(conversionKinds), isNullKind);
}

void CorpusLibraryTest::compareUnit(const QString& typeId, const JsonValue& unit, const QString& path)
{
    const bool isListed = m_library.getListofUnits(typeId).contains(unit.name());
    QVERIFY2(isListed != isIgnored(unit, path), qPrintable(path));
    if (!isListed)
        return;

    const QString label = path + "/UnitLabel";
    const QString text = label + "/@value/en";
    const bool lacksLabel = isFound(path, {Rule::LabelMissing}) || isFound(label, {Rule::NullNode}) ||
                            isFound(text, {Rule::LabelMissing, Rule::NullNode});
    // The library shows a label that is a plain text or a number in every language, and without English,
    // another language.
    const bool mayLackLabel = lacksLabel || isFound(label, {Rule::LabelInvalid, Rule::LanguageMissing}) ||
                              isFound(text, {Rule::LabelInvalid});
    const bool isEmpty = m_library.getUnitText(typeId, "en", unit.name()).isEmpty();
    QVERIFY2(isEmpty ? mayLackLabel : !lacksLabel, qPrintable(label));
}

void CorpusLibraryTest::compareBaseUnit(const QString& typeId, const JsonValue& type)
{
    const std::vector<JsonValue> units = type.children();
    const auto isAmbiguous = [&](const JsonValue& unit) {
        return isFound(type.name() + '/' + unit.name() + "/@displayPosition", {Rule::BaseAmbiguous});
    };
    // The base unit is then the last one in hash order.
    if (std::any_of(units.begin(), units.end(), isAmbiguous))
        return;

    const bool isMissing = isFound(type.name(), {Rule::BaseMissing, Rule::TypeEmpty});
    const QString base = m_library.getBaseUnit(typeId).mid(typeId.size() + 1);
    if (base.isEmpty()) {
        // A unit that is ignored, or whose position is reported, may be meant as base unit.
        const auto isReported = [&](const JsonValue& unit) {
            const QString path = type.name() + '/' + unit.name();
            return isIgnored(unit, path) || isFound(path, {Rule::PositionInvalid}) ||
                   isFound(path + "/@displayPosition", {Rule::PositionInvalid, Rule::NullNode});
        };
        QVERIFY2(isMissing || std::any_of(units.begin(), units.end(), isReported), qPrintable(typeId));
        return;
    }
    QVERIFY2(!isMissing, qPrintable(typeId));
    const QString position = type.name() + '/' + base + "/@displayPosition";
    QVERIFY2(isBase(*type.member(base)) || isFound(position, {Rule::PositionInvalid}), qPrintable(position));
}

/// A document without warnings converts as before.
void CorpusLibraryTest::compareConversions(const UnitManager& sound)
{
    for (const QString& type : sound.getListofUnitTypes()) {
        const QStringList units = m_library.getListofUnits(type);
        for (const QString& unit : sound.getListofUnits(type)) {
            if (!units.contains(unit))
                continue;
            QCOMPARE(m_library.fromBaseUnitRaw(37.5, type, unit), sound.fromBaseUnitRaw(37.5, type, unit));
            QCOMPARE(m_library.toBaseUnitRaw(37.5, type, unit), sound.toBaseUnitRaw(37.5, type, unit));
        }
    }
}

bool CorpusLibraryTest::hasWarning() const
{
    return std::any_of(m_findings.begin(), m_findings.end(), [](const Finding& finding) {
        return Rules::describe(finding.rule).severity != Severity::Note;
    });
}

bool CorpusLibraryTest::isFound(const QString& path, std::initializer_list<Rule> rules) const
{
    return std::any_of(m_findings.begin(), m_findings.end(), [&](const Finding& finding) {
        return finding.path == path && std::find(rules.begin(), rules.end(), finding.rule) != rules.end();
    });
}

static const TestClass<CorpusLibraryTest> testClass;
#include "CorpusLibraryTest.moc"
