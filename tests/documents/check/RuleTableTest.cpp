#include <QtCore/QFile>
#include <QtTest/QTest>

#include "Rule.h"
#include "TestProgram.h"

/// The table of rules, and its copy in the guide for authors of documents.
class RuleTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rulesAreInTheOrderOfTheEnumeration();
    void namesAreUnique();
    void severitiesHaveNames();
    void disagreementsAreNeverErrors();
    void guideShowsTheTable();
};

void RuleTableTest::rulesAreInTheOrderOfTheEnumeration()
{
    for (std::size_t index = 0; index < Rules::all().size(); ++index) {
        const auto rule = static_cast<Rule>(index);
        QVERIFY(Rules::all()[index].rule == rule);
        QCOMPARE(Rules::describe(rule).name, Rules::all()[index].name);
    }
    QVERIFY(Rules::all().back().rule == Rule::DependencyCycle);
}

void RuleTableTest::namesAreUnique()
{
    QStringList names;
    for (const RuleDescription& rule : Rules::all())
        names.append(rule.name);
    QCOMPARE(names.removeDuplicates(), 0);
}

void RuleTableTest::severitiesHaveNames()
{
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note})
        QVERIFY(Rules::severityFromName(Rules::severityName(severity)) == severity);
    QCOMPARE(Rules::severityName(Severity::Error), "error");
    QCOMPARE(Rules::severityName(Severity::Warning), "warning");
    QCOMPARE(Rules::severityName(Severity::Note), "note");
    QVERIFY(!Rules::severityFromName("Error"));
    QVERIFY(!Rules::severityFromName(QString()));
}

void RuleTableTest::disagreementsAreNeverErrors()
{
    int count = 0;
    for (const RuleDescription& rule : Rules::all()) {
        if (rule.scope != Scope::Documents)
            continue;
        QVERIFY2(rule.severity != Severity::Error, rule.name);
        ++count;
    }
    QCOMPARE(count, 4);
}

void RuleTableTest::guideShowsTheTable()
{
    QString table = "| Rule | Severity | What is wrong |\n|---|---|---|\n";
    for (const RuleDescription& rule : Rules::all())
        table +=
            QString("| `%1` | %2 | %3 |\n").arg(rule.name, Rules::severityName(rule.severity), rule.summary);
    QFile guide(UNITMANAGER_SOURCE_DIR "/config/README.md");
    QVERIFY(guide.open(QIODevice::ReadOnly));
    const QString text = guide.readAll();
    const int start = text.indexOf("| Rule |");
    QVERIFY(start >= 0);
    const int end = text.indexOf("\n\n", start);
    QCOMPARE(text.mid(start, end + 1 - start), table);
}

static const TestClass<RuleTableTest> testClass;
#include "RuleTableTest.moc"
