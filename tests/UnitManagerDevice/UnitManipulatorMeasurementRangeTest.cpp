#include "UnitManagerDevice/UnitManipulatorMeasurementRange.h"

#include <QtTest/QTest>

#include <type_traits>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "DebugText.h"
#include "DependencyWalker.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "RecordingNode.h"
#include "RecordingValueNode.h"
#include "Row.h"
#include "ServiceFixture.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "VirtualSlot.h"
#include "WaitUntil.h"
#include "WrapperSetup.h"

static_assert(std::is_base_of_v<UnitManipulatorBase, UnitManipulatorMeasurementRange>);
static_assert(std::is_convertible_v<UnitManipulatorMeasurementRange*, UnitManipulatorBase*>,
              "the base is public");
static_assert(std::has_virtual_destructor_v<UnitManipulatorMeasurementRange>);
static_assert(std::is_convertible_v<UnitManagerWrapper&, UnitManipulatorMeasurementRange>);
static_assert(sizeof(UnitManipulatorMeasurementRange) ==
                  sizeof(UnitManipulatorBase) + sizeof(UnitManagerWrapper*),
              "one member, a reference");

using namespace WrapperSetup;

/// Units and unit texts in the measurement ranges of nodes.
class UnitManipulatorMeasurementRangeTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void manipulateHasTheThirdSlot();
    void uninitializedWrapperLogsAWarning_data();
    void uninitializedWrapperLogsAWarning();
    void wrapperIsAdvancedFirst();
    void nodeWithoutRangesIsUnchanged_data();
    void nodeWithoutRangesIsUnchanged();
    void nullNodeIsIgnored();
    void statusSelectsTheOutputs_data();
    void statusSelectsTheOutputs();
    void firstRangeIsWritten_data();
    void firstRangeIsWritten();
    void secondWriteChangesNothing();
    void readOnlyNodeIsNotHandled();
    void unknownUnitTypeIsWrittenAsEmptyUnit();
    void withoutUnitManagerEmptyTextsAreWritten();
    void walkerAppliesIt();
};

namespace {

namespace T = TestUnitType;

const QString rangeKey = QStringLiteral("@measurementRangeAttributes");
const QString rangeQuery = QStringLiteral("hasProperty ") + rangeKey;

struct Outputs
{
    bool handled = false;
    bool changed = false;
};

QString text(const Outputs& outputs)
{
    return QStringLiteral("%1, %2").arg(outputs.handled ? "handled" : "-", outputs.changed ? "changed" : "-");
}

/// The outputs after a call, for each of their four initial states.
QStringList outputsOf(UnitManagerWrapper& wrapper, const BaseClassSharedPointer& node)
{
    UnitManipulatorMeasurementRange manipulator(wrapper);
    QStringList texts;
    for (Outputs outputs :
         {Outputs{false, false}, Outputs{false, true}, Outputs{true, false}, Outputs{true, true}}) {
        manipulator.manipulate(node, T::pressure, outputs.handled, outputs.changed);
        texts.append(text(outputs));
    }
    return texts;
}

const QStringList untouched{"-, -", "-, changed", "handled, -", "handled, changed"};

Outputs manipulate(UnitManagerWrapper& wrapper, const BaseClassSharedPointer& node, const QString& unitType)
{
    Outputs outputs;
    UnitManipulatorMeasurementRange(wrapper).manipulate(node, unitType, outputs.handled, outputs.changed);
    return outputs;
}

/// A node that records every query, with or without measurement ranges.
QSharedPointer<RecordingValueNode> nodeWithRanges()
{
    const auto node = RecordingValueNode::number(1.5, T::pressure);
    node->setProperty(rangeKey, QVariantList{QVariantMap{{"min", 0.5}}});
    return node;
}

QVariantList rangesOf(const BaseClassSharedPointer& node)
{
    return node->getProperty(rangeKey).toList();
}

const QVariantMap barTexts{{"en", "bar"}, {"de", "Bar"}};

const QString notInitialized =
    warningText("UnitManagerDevice/UnitManipulatorMeasurementRange", anyLine,
                "virtual void UnitManipulatorMeasurementRange::manipulate("
                "const QSharedPointer<ConfigurationAndProcessDataBase>&, const QString&, bool&, bool&)",
                "Unitmanager is not initialized.");

} // namespace

void UnitManipulatorMeasurementRangeTest::initTestCase()
{
    QCOMPARE(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyMeasurementRangeAttributes(),
             rangeKey);
}

void UnitManipulatorMeasurementRangeTest::manipulateHasTheThirdSlot()
{
    // Part of the binary interface: callers use the position in the virtual table.
    QCOMPARE(virtualSlot(&UnitManipulatorMeasurementRange::manipulate), std::size_t(2));
}

void UnitManipulatorMeasurementRangeTest::uninitializedWrapperLogsAWarning_data()
{
    QTest::addColumn<bool>("hasNode");
    QTest::newRow("node with ranges") << true;
    QTest::newRow("null node") << false;
}

void UnitManipulatorMeasurementRangeTest::uninitializedWrapperLogsAWarning()
{
    QFETCH(bool, hasNode);
    m_service->stop();
    const auto wrapper = create(AllNames, Asynchronous, Polled);
    const auto node = hasNode ? nodeWithRanges() : QSharedPointer<RecordingValueNode>();
    const QStringList calls = hasNode ? node->calls() : QStringList();
    LogCapture log;

    QCOMPARE(outputsOf(*wrapper, node), untouched);
    const QStringList messages = takeMessageTexts(log);
    QCOMPARE(messages.count(notInitialized), 4);
    QVERIFY2(messages.first() != notInitialized, "the connector warns first, of the missing service");
    QCOMPARE(hasNode ? node->calls() : QStringList(), calls);
}

void UnitManipulatorMeasurementRangeTest::wrapperIsAdvancedFirst()
{
    const auto wrapper = create(AllNames, Asynchronous, Polled);
    const auto node = RecordingValueNode::text("much");
    LogCapture log;

    QVERIFY(waitUntil([&] {
        manipulate(*wrapper, node, T::pressure);
        return node->calls() == QStringList{rangeQuery};
    }));
    QVERIFY(*wrapper);
    const QStringList messages = takeMessageTexts(log);
    QVERIFY(!messages.isEmpty());
    QCOMPARE(messages.count(notInitialized), messages.size());
}

void UnitManipulatorMeasurementRangeTest::nodeWithoutRangesIsUnchanged_data()
{
    addModes();
}

void UnitManipulatorMeasurementRangeTest::nodeWithoutRangesIsUnchanged()
{
    const auto wrapper = createInFetchedMode(AllNames);
    QVERIFY(waitForUnits(*wrapper));
    const auto node = RecordingValueNode::number(1.5, T::pressure);
    LogCapture log;

    QCOMPARE(outputsOf(*wrapper, node), untouched);
    QCOMPARE(node->calls(), (QStringList{rangeQuery, rangeQuery, rangeQuery, rangeQuery}));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManipulatorMeasurementRangeTest::nullNodeIsIgnored()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    LogCapture log;
    QCOMPARE(outputsOf(*wrapper, {}), untouched);
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManipulatorMeasurementRangeTest::statusSelectsTheOutputs_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QStringList>("outputs");
    const QString both = QStringLiteral("handled, changed");
    QTest::newRow("changed") << 0 << QStringList{both, both, both, both};
    QTest::newRow("unchanged") << 1 << QStringList{"handled, -", both, "handled, -", both};
    QTest::newRow("refused") << 2 << untouched;
    QTest::newRow("another failure") << 3 << untouched;
    QTest::newRow("negative") << -1 << untouched;
}

void UnitManipulatorMeasurementRangeTest::statusSelectsTheOutputs()
{
    QFETCH(int, status);
    const auto wrapper = create(AllNames, Blocking, Delivered);
    const auto node = nodeWithRanges();
    node->setWriteStatus(status);
    QTEST(outputsOf(*wrapper, node), "outputs");
}

void UnitManipulatorMeasurementRangeTest::firstRangeIsWritten_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QVariantList>("ranges");

    const QVariantMap bar{{"unit", T::pressure + "/Bar"}, {"unitText", barTexts}};
    const QVariantMap kelvin{{"unit", T::temperature + "/Kelvin"}, {"unitText", QVariantMap{{"en", "K"}}}};
    QVariantMap withMinimum = bar;
    withMinimum.insert("min", 0.5);
    row("no range", T::pressure, "[]", QVariantList{bar});
    row("another unit type", T::temperature, "[]", QVariantList{kelvin});
    row("other members stay", T::pressure, R"([{ "min": 0.5 }])", QVariantList{withMinimum});
    row("other ranges stay", T::pressure, R"([{ "unit": "old" }, { "unit": "kept" }])",
        QVariantList{bar, QVariantMap{{"unit", "kept"}}});
}

void UnitManipulatorMeasurementRangeTest::firstRangeIsWritten()
{
    QFETCH(QString, unitType);
    QFETCH(QString, attributes);
    const auto wrapper = create(AllNames, Blocking, Delivered);
    const auto calls = RecordingNode::Calls::create();
    const auto node = recordingNodeFromJson(
        QStringLiteral(R"({ "@measurementRangeAttributes": %1 })").arg(attributes), "node", calls);
    LogCapture log;

    const Outputs outputs = manipulate(*wrapper, node, unitType);
    QStringList called = takeCallsOf("node", calls);
    QCOMPARE(text(outputs), QStringLiteral("handled, changed"));
    QTEST(rangesOf(node), "ranges");
    QCOMPARE(called.takeFirst(), QStringLiteral("node.hasProperty(%1)").arg(rangeKey));
    QCOMPARE(called.takeFirst(), QStringLiteral("node.getProperty(%1)").arg(rangeKey));
    QVERIFY2(called.takeFirst().startsWith(QStringLiteral("node.changeProperty(%1").arg(rangeKey)),
             "a property is changed, never added");
    QCOMPARE(called, QStringList());
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManipulatorMeasurementRangeTest::secondWriteChangesNothing()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    const auto node = nodeFromJson(R"({ "@measurementRangeAttributes": [] })");

    QCOMPARE(text(manipulate(*wrapper, node, T::pressure)), QStringLiteral("handled, changed"));
    QCOMPARE(text(manipulate(*wrapper, node, T::pressure)), QStringLiteral("handled, -"));
    QCOMPARE(text(manipulate(*wrapper, node, T::temperature)), QStringLiteral("handled, changed"));
}

void UnitManipulatorMeasurementRangeTest::readOnlyNodeIsNotHandled()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    const auto node = nodeFromJson(R"({ "@readOnly": true, "@measurementRangeAttributes": [] })");

    QCOMPARE(text(manipulate(*wrapper, node, T::pressure)), QStringLiteral("-, -"));
    QCOMPARE(rangesOf(node), QVariantList());
}

void UnitManipulatorMeasurementRangeTest::unknownUnitTypeIsWrittenAsEmptyUnit()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    const auto node = nodeFromJson(R"({ "@measurementRangeAttributes": [] })");
    LogCapture log;

    QCOMPARE(text(manipulate(*wrapper, node, T::unknown)), QStringLiteral("handled, changed"));
    QCOMPARE(rangesOf(node), (QVariantList{QVariantMap{{"unit", ""}, {"unitText", QVariant()}}}));
    QCOMPARE(takeMessageTexts(log),
             (QStringList{Expected::unknownTextMapType(T::unknown), Expected::noBaseUnit(T::unknown)}));
}

void UnitManipulatorMeasurementRangeTest::withoutUnitManagerEmptyTextsAreWritten()
{
    m_service->setDocument(TestSource::unitSwitchName, QString());
    const auto wrapper = create(NoNames, Asynchronous, Polled);
    const LogCapture quiet;
    QVERIFY(waitForUnits(*wrapper));
    QVERIFY(!*wrapper);
    const auto node = nodeFromJson(R"({ "@measurementRangeAttributes": [] })");

    QCOMPARE(text(manipulate(*wrapper, node, T::pressure)), QStringLiteral("handled, changed"));
    const QVariantMap range = rangesOf(node).value(0).toMap();
    QCOMPARE(toDebugText(range.value("unit")), QStringLiteral("QString "));
    QCOMPARE(toDebugText(range.value("unitText")), QStringLiteral("QString "));
    QCOMPARE(range.size(), 2);
}

void UnitManipulatorMeasurementRangeTest::walkerAppliesIt()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    const auto node = nodeFromJson(R"({ "Range": { "@unitType": "UnitManager/UnitType/Pressure",
                                                   "@measurementRangeAttributes": [] } })");
    DependencyWalker walker;
    QVERIFY(walker.initDependencyGraphByJsonString(R"({ "Unit": ["Range"] })"));
    QList<QVariant> visited;

    QVERIFY(walker.traverseDependencyGraph(
        "Unit", node, {}, visited, {}, QSharedPointer<UnitManipulatorMeasurementRange>::create(*wrapper)));
    const QVariantMap range = rangesOf(node->getChild("Range")).value(0).toMap();
    QCOMPARE(range, (QVariantMap{{"unit", T::pressure + "/Bar"}, {"unitText", barTexts}}));
}

static const TestClass<UnitManipulatorMeasurementRangeTest> testClass;
#include "UnitManipulatorMeasurementRangeTest.moc"
