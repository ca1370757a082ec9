#include "DependencyWalker.h"

#include <QtTest/QTest>

#include <type_traits>

#include "ConfigurationAndProcessDataParser.h"
#include "LogCapture.h"
#include "Row.h"
#include "TestProgram.h"

static_assert(std::is_abstract_v<UnitManipulatorBase>);
static_assert(std::has_virtual_destructor_v<UnitManipulatorBase>);

class DependencyWalkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewWalkerKnowsNoDependencies();
    void dependentKeysAreVisitedOnce_data();
    void dependentKeysAreVisitedOnce();
    void seededKeysAreNotVisited();
    void resultsAreAppended();
    void anInvalidDocumentLeavesNothing_data();
    void anInvalidDocumentLeavesNothing();
    void anEmptyDocumentIsValid();
    void notesForEditorsAreIgnored();
    void aDocumentReplacesTheOneBefore();
    void theManipulatorGetsEachNodeWithItsUnitType();
    void whatTheManipulatorDidDecidesTheResult_data();
    void whatTheManipulatorDidDecidesTheResult();
    void theChangedNodeServesWithoutStartNode();
    void withoutNodesNothingIsManipulated();
    void aVeryLongChainIsWalked();
    void aVeryWideGraphIsWalked();

private:
    static void visitNumbers(const QString& graphOfNumbers, int count);
};

namespace {

using Node = QSharedPointer<ConfigurationAndProcessDataBase>;
using Manipulator = QSharedPointer<UnitManipulatorBase>;

const QString graph = QStringLiteral(R"({
    "a": ["b", "c"], "b": ["d"], "c": ["d", "e"],
    "self": ["self", "f"],
    "left": ["right"], "right": ["left", "f"],
    "twice": ["f", "f"],
    "none": []
})");

// Records its arguments and returns given results.
class NotingManipulator : public UnitManipulatorBase
{
public:
    explicit NotingManipulator(bool handles = true) : m_handles(handles) {}

    void manipulate(const QSharedPointer<ConfigurationAndProcessDataBase>& node, const QString& unitType,
                    bool& handled, bool& changed) override
    {
        notes.append(QStringLiteral("%1 %2 %3%4")
                         .arg(node->getProperty("@value").toString(), unitType)
                         .arg(handled)
                         .arg(changed));
        if (!m_handles)
            return;
        handled = true;
        changed = true;
    }

    QStringList notes;

private:
    bool m_handles;
};

Node parse(const QString& json)
{
    return ConfigurationAndProcessDataParser().parseFromJson(json, "json");
}

QStringList walk(const DependencyWalker& walker, const QString& key, const QList<QVariant>& seed = {})
{
    QList<QVariant> results;
    walker.traverseDependencyGraph(key, Node(), Node(), results, seed, Manipulator());
    return QVariant(results).toStringList();
}

} // namespace

void DependencyWalkerTest::aNewWalkerKnowsNoDependencies()
{
    LogCapture log;
    QCOMPARE(walk(DependencyWalker(), "a"), QStringList());
    QCOMPARE(log.takeTexts(), QStringList());
}

void DependencyWalkerTest::dependentKeysAreVisitedOnce_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("visited");
    QTest::newRow("depth first, each once") << "a" << QStringList{"b", "d", "c", "e"};
    QTest::newRow("one step") << "b" << QStringList{"d"};
    QTest::newRow("a key that depends on itself") << "self" << QStringList{"f"};
    QTest::newRow("a cycle") << "left" << QStringList{"right", "f"};
    QTest::newRow("a cycle from its other end") << "right" << QStringList{"left", "f"};
    QTest::newRow("a key named twice") << "twice" << QStringList{"f"};
    QTest::newRow("a key with an empty list") << "none" << QStringList();
    QTest::newRow("a key at the end") << "f" << QStringList();
    QTest::newRow("an unknown key") << "nobody" << QStringList();
}

void DependencyWalkerTest::dependentKeysAreVisitedOnce()
{
    QFETCH(const QString, key);
    QFETCH(const QStringList, visited);
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(graph));
    QCOMPARE(walk(walker, key), visited);
}

void DependencyWalkerTest::seededKeysAreNotVisited()
{
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(graph));
    QCOMPARE(walk(walker, "a", {"b"}), (QStringList{"c", "d", "e"}));
    QCOMPARE(walk(walker, "a", {"b", "c"}), QStringList());
    QCOMPARE(walk(walker, "a", {"a"}), (QStringList{"b", "d", "c", "e"}));
}

void DependencyWalkerTest::resultsAreAppended()
{
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(graph));
    QList<QVariant> results{1};
    QVERIFY(walker.traverseDependencyGraph("b", Node(), Node(), results, {}, Manipulator()));
    QCOMPARE(results, (QList<QVariant>{1, "d"}));
}

void DependencyWalkerTest::anInvalidDocumentLeavesNothing_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("reason");
    // Quotes within the reason are escaped in the log.
    row("no text", "", "is empty");
    row("no JSON", "a: b", R"(line 1, column 1: expected \"{\" at the start of the document)");
    row("cut off", R"({"a": ["b"])",
        R"(line 1, column 12: unexpected end; the \"{\" at line 1, column 1 is not closed)");
    row("an array", R"(["a", "b"])", R"(line 1, column 1: expected \"{\" at the start of the document)");
    row("a key twice", R"({"a": ["b"], "a": ["c"]})",
        R"(line 1, column 14: duplicate name \"a\"; first at line 1, column 2)");
    row("a text instead of a list", R"({"a": "b"})", "line 1, column 7: a key's value is not an array");
    row("an object instead of a list", R"({"a": {"b": []}})",
        "line 1, column 7: a key's value is not an array");
    row("null instead of a list", R"({"a": null})", "line 1, column 7: a key's value is not an array");
    row("a number instead of a key", R"({"a": ["b", 1]})",
        "line 1, column 13: a dependent key is not a string");
    row("null instead of a key", R"({"a": [null]})", "line 1, column 8: a dependent key is not a string");
    row("one good key and one bad", R"({"a": ["b"], "b": 1})",
        "line 1, column 19: a key's value is not an array");
}

void DependencyWalkerTest::anInvalidDocumentLeavesNothing()
{
    QFETCH(const QString, json);
    QFETCH(const QString, reason);
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(graph));

    LogCapture log;
    QVERIFY(!walker.initDependencyGraphByJsonString(json));
    const QList<LoggedMessage> messages = log.take();
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().type, QtWarningMsg);
    QCOMPARE(messages.first().file, QStringLiteral("DependencyWalker"));
    QCOMPARE(messages.first().category, QStringLiteral("default"));
    QCOMPARE(messages.first().text, QStringLiteral("Dependency configuration invalid: \"%1\"").arg(reason));
    QCOMPARE(walk(walker, "a"), QStringList());
}

void DependencyWalkerTest::anEmptyDocumentIsValid()
{
    DependencyWalker walker;
    LogCapture log;
    QVERIFY(walker.initDependencyGraphByJsonString("{}"));
    QCOMPARE(log.takeTexts(), QStringList());
}

void DependencyWalkerTest::notesForEditorsAreIgnored()
{
    DependencyWalker walker;
    LogCapture log;
    QVERIFY(walker.initDependencyGraphByJsonString(R"({"$schema": "x", "a": ["b"], "$list": ["c"]})"));
    QCOMPARE(log.takeTexts(), QStringList());
    QCOMPARE(walk(walker, "a"), QStringList{"b"});
    QCOMPARE(walk(walker, "$list"), QStringList());
}

void DependencyWalkerTest::aDocumentReplacesTheOneBefore()
{
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(graph));
    QVERIFY(walker.initDependencyGraphByJsonString(R"({"x": ["y"]})"));
    QCOMPARE(walk(walker, "a"), QStringList());
    QCOMPARE(walk(walker, "x"), QStringList{"y"});
}

void DependencyWalkerTest::theManipulatorGetsEachNodeWithItsUnitType()
{
    const Node start = parse(R"({
        "b": {"@value": 1, "@unitType": "UnitManager/UnitType/Pressure"},
        "c": {"@value": 2, "@unitType": "UnitManager/UnitType/Time"},
        "d": {"@value": 3},
        "e": {"@value": 4}, "other": {"@value": 5}
    })");
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(graph));
    const auto manipulator = QSharedPointer<NotingManipulator>::create();
    QList<QVariant> results;
    QVERIFY(walker.traverseDependencyGraph("a", Node(), start, results, {}, manipulator));
    const QStringList expected{"1 UnitManager/UnitType/Pressure 00", "3  00",
                               "2 UnitManager/UnitType/Time 00", "4  00"};
    QCOMPARE(manipulator->notes, expected);
    QCOMPARE(results, (QList<QVariant>{"b", "d", "c", "e"}));
}

void DependencyWalkerTest::whatTheManipulatorDidDecidesTheResult_data()
{
    QTest::addColumn<QString>("nodes");
    QTest::addColumn<bool>("handles");
    QTest::addColumn<int>("manipulated");
    QTest::addColumn<bool>("result");
    const QString all = QStringLiteral(R"({"b": 1, "c": 2, "d": 3, "e": 4})");
    QTest::newRow("all handled") << all << true << 4 << true;
    QTest::newRow("none handled") << all << false << 4 << false;
    QTest::newRow("a node is missing") << R"({"b": 1, "c": 2, "d": 3})" << true << 3 << false;
    QTest::newRow("a node is null") << R"({"b": null, "c": 2, "d": 3, "e": 4})" << true << 3 << false;
    QTest::newRow("all nodes are missing") << "{}" << true << 0 << false;
}

void DependencyWalkerTest::whatTheManipulatorDidDecidesTheResult()
{
    QFETCH(const QString, nodes);
    QFETCH(const bool, handles);
    QFETCH(const int, manipulated);
    QFETCH(const bool, result);
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(graph));
    const auto manipulator = QSharedPointer<NotingManipulator>::create(handles);
    QList<QVariant> results;
    QCOMPARE(walker.traverseDependencyGraph("a", Node(), parse(nodes), results, {}, manipulator), result);
    QCOMPARE(manipulator->notes.size(), manipulated);
    QCOMPARE(results.size(), 4);
}

void DependencyWalkerTest::theChangedNodeServesWithoutStartNode()
{
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(graph));
    const Node node = parse(R"({"d": 1})");
    const Node start = parse(R"({"d": 2})");
    const auto manipulator = QSharedPointer<NotingManipulator>::create();
    QList<QVariant> results;
    QVERIFY(walker.traverseDependencyGraph("b", node, Node(), results, {}, manipulator));
    QVERIFY(walker.traverseDependencyGraph("b", node, start, results, {}, manipulator));
    QCOMPARE(manipulator->notes, (QStringList{"1  00", "2  00"}));
}

void DependencyWalkerTest::withoutNodesNothingIsManipulated()
{
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(graph));
    const auto manipulator = QSharedPointer<NotingManipulator>::create();
    QList<QVariant> results;
    QVERIFY(!walker.traverseDependencyGraph("b", Node(), Node(), results, {}, manipulator));
    QCOMPARE(results, QList<QVariant>{"d"});
    QCOMPARE(manipulator->notes, QStringList());
}

/// Walks from the key "0" to the keys from 1 to @p count.
void DependencyWalkerTest::visitNumbers(const QString& graphOfNumbers, int count)
{
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(graphOfNumbers));
    const QStringList visited = walk(walker, "0");
    QCOMPARE(visited.size(), count);
    QCOMPARE(visited.first(), QStringLiteral("1"));
    QCOMPARE(visited.last(), QString::number(count));
}

void DependencyWalkerTest::aVeryLongChainIsWalked()
{
    constexpr int length = 100000;
    QStringList members;
    for (int number = 0; number < length; ++number)
        members.append(QStringLiteral("\"%1\":[\"%2\"]").arg(number).arg(number + 1));
    visitNumbers('{' + members.join(',') + '}', length);
}

void DependencyWalkerTest::aVeryWideGraphIsWalked()
{
    constexpr int width = 100000;
    QStringList keys;
    for (int number = 1; number <= width; ++number)
        keys.append(QStringLiteral("\"%1\"").arg(number));
    visitNumbers("{\"0\":[" + keys.join(',') + "]}", width);
}

static const TestClass<DependencyWalkerTest> testClass;
#include "DependencyWalkerTest.moc"
