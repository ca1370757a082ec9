#include <QtTest/QTest>

#include "ConfigurationService.h"
#include "DebugText.h"
#include "DependencyWalker.h"
#include "LogCapture.h"
#include "RecordingValueNode.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "WrapperSetup.h"

using namespace WrapperSetup;

namespace {

/// The arguments that the wrapper passes to its walker.
struct Traversal
{
    const DependencyWalker* walker;
    QString key;
    BaseClassSharedPointer node;
    BaseClassSharedPointer startNode;
    QList<QVariant> results;
    QList<QVariant> seed;
    bool hasManipulator;
};

QList<Traversal> traversals;

} // namespace

/// Replaces the walker's function, because a program's definition takes precedence over that of its
/// libraries. It visits nothing and fails.
bool DependencyWalker::traverseDependencyGraph(const QString& key, const BaseClassSharedPointer& node,
                                               const BaseClassSharedPointer& startNode,
                                               QList<QVariant>& results, QList<QVariant> seed,
                                               QSharedPointer<UnitManipulatorBase> manipulator) const
{
    traversals.append({this, key, node, startNode, results, seed, !manipulator.isNull()});
    results.append(QStringLiteral("visited"));
    return false;
}

/// When and how a wrapper resolves the dependencies of a value.
class UnitManagerWrapperDependencyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void dependenciesOfAWrittenValueAreResolved_data();
    void dependenciesOfAWrittenValueAreResolved();
    void dependenciesAreResolvedWithoutUnits();
    void startNodeMayBeGiven_data();
    void startNodeMayBeGiven();
    void everyTraversalStartsAnew();
    void withoutWalkerNothingIsResolved_data();
    void withoutWalkerNothingIsResolved();
    void initDiscardsTheWalker();
    void resetKeepsTheWalker();

private:
    ConfigurationService m_service;
    QSharedPointer<RecordingValueNode> m_child;
    QSharedPointer<RecordingValueNode> m_parent;
};

void UnitManagerWrapperDependencyTest::initTestCase()
{
    QVERIFY(m_service.start());
}

void UnitManagerWrapperDependencyTest::init()
{
    m_service.setDocument(TestSource::unitSwitchName, TestDocuments::units());
    m_child = RecordingValueNode::number(1.0, TestUnitType::pressure);
    m_parent = RecordingValueNode::parentOf(m_child);
    traversals.clear();
}

void UnitManagerWrapperDependencyTest::dependenciesOfAWrittenValueAreResolved_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("traversalCount");
    QTest::newRow("changed") << 0 << 1;
    QTest::newRow("unchanged") << 1 << 1;
    QTest::newRow("refused") << 2 << 0;
    QTest::newRow("another failure") << 3 << 0;
}

void UnitManagerWrapperDependencyTest::dependenciesOfAWrittenValueAreResolved()
{
    QFETCH(int, status);
    QFETCH(int, traversalCount);
    const auto wrapper = create(AllNames, Blocking, Delivered);
    QVERIFY(*wrapper);
    m_child->setWriteStatus(status);

    QCOMPARE(wrapper->setValueStatus("Value", m_parent, 1500.0, "HectoPascal"), status);
    QCOMPARE(traversals.size(), traversalCount);
    if (traversalCount == 0)
        return;
    QCOMPARE(toDebugText(m_child->value()), QStringLiteral("double 1.5"));
    const Traversal& traversal = traversals.first();
    QCOMPARE(traversal.key, QStringLiteral("Value"));
    QCOMPARE(traversal.node, BaseClassSharedPointer(m_parent));
    QCOMPARE(traversal.startNode, BaseClassSharedPointer(m_parent));
    QCOMPARE(traversal.results, QList<QVariant>());
    QCOMPARE(traversal.seed, QList<QVariant>());
    QVERIFY(!traversal.hasManipulator);
}

void UnitManagerWrapperDependencyTest::dependenciesAreResolvedWithoutUnits()
{
    m_service.setDocument(TestSource::unitSwitchName, QStringLiteral("{"));
    const LogCapture quiet;
    const auto wrapper = create(AllNames, Blocking, Delivered);
    QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
    QVERIFY(!*wrapper);

    QVERIFY(wrapper->setValue("Value", m_parent, 1500.0, "HectoPascal"));
    QCOMPARE(toDebugText(m_child->value()), QStringLiteral("double 1500"));
    QCOMPARE(traversals.size(), 1);
}

void UnitManagerWrapperDependencyTest::startNodeMayBeGiven_data()
{
    QTest::addColumn<bool>("hasNode");
    QTest::addColumn<bool>("hasOtherNode");
    QTest::newRow("node alone") << true << false;
    QTest::newRow("other node") << true << true;
    QTest::newRow("other node alone") << false << true;
    QTest::newRow("neither") << false << false;
}

void UnitManagerWrapperDependencyTest::startNodeMayBeGiven()
{
    QFETCH(bool, hasNode);
    QFETCH(bool, hasOtherNode);
    const BaseClassSharedPointer null;
    const BaseClassSharedPointer node = hasNode ? m_parent : null;
    const BaseClassSharedPointer otherNode = hasOtherNode ? RecordingValueNode::parentOf(null) : null;
    const auto wrapper = create(AllNames, Blocking, Delivered);

    QVERIFY2(wrapper->resolveDependency("Key", node, otherNode), "the walker's own answer is ignored");
    QCOMPARE(traversals.size(), 1);
    QCOMPARE(traversals.first().key, QStringLiteral("Key"));
    QCOMPARE(traversals.first().node, node);
    QCOMPARE(traversals.first().startNode, hasOtherNode ? otherNode : node);
}

void UnitManagerWrapperDependencyTest::everyTraversalStartsAnew()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    for (int call = 0; call < 3; ++call)
        QVERIFY(wrapper->resolveDependency("Value", m_parent, {}));
    QCOMPARE(traversals.size(), 3);
    for (const Traversal& traversal : traversals) {
        QCOMPARE(traversal.results, QList<QVariant>());
        QCOMPARE(traversal.walker, traversals.first().walker);
    }
}

void UnitManagerWrapperDependencyTest::withoutWalkerNothingIsResolved_data()
{
    QTest::addColumn<int>("names");
    QTest::addColumn<bool>("changeSignals");
    QTest::newRow("nothing read yet") << int(AllNames) << bool(Polled);
    QTest::newRow("no dependencies configured") << int(DefaultUnitNames) << bool(Delivered);
}

void UnitManagerWrapperDependencyTest::withoutWalkerNothingIsResolved()
{
    QFETCH(int, names);
    QFETCH(bool, changeSignals);
    const auto wrapper = create(Names(names), Blocking, Signals(changeSignals));

    QVERIFY(wrapper->resolveDependency("Value", m_parent, {}));
    QVERIFY(wrapper->setValue("Value", m_parent, 1.5, "Bar"));
    QCOMPARE(toDebugText(m_child->value()), QStringLiteral("double 1.5"));
    QCOMPARE(traversals.size(), 0);
}

void UnitManagerWrapperDependencyTest::initDiscardsTheWalker()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
    QVERIFY(initWithoutNames(*wrapper, Blocking));
    QVERIFY(wrapper->resolveDependency("Value", m_parent, {}));
    QCOMPARE(traversals.size(), 0);
}

void UnitManagerWrapperDependencyTest::resetKeepsTheWalker()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    QVERIFY(wrapper->resolveDependency("Value", m_parent, {}));
    QVERIFY(wrapper->reset());
    QVERIFY(wrapper->resolveDependency("Value", m_parent, {}));
    QCOMPARE(traversals.size(), 2);
    QCOMPARE(traversals.last().walker, traversals.first().walker);
}

static const TestClass<UnitManagerWrapperDependencyTest> testClass;
#include "UnitManagerWrapperDependencyTest.moc"
