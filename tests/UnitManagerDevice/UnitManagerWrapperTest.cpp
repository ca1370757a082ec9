#include "UnitManagerDevice/UnitManagerWrapper.h"

#include <QtTest/QTest>

#include <cstring>
#include <type_traits>
#include <utility>

#include "DependencyWalker.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "ServiceFixture.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "VirtualSlot.h"
#include "WrapperSetup.h"

static_assert(!std::is_base_of_v<QObject, UnitManagerWrapper>);
static_assert(std::has_virtual_destructor_v<UnitManagerWrapper>);
static_assert(!std::is_default_constructible_v<UnitManagerWrapper>);
static_assert(!std::is_copy_constructible_v<UnitManagerWrapper> &&
              !std::is_copy_assignable_v<UnitManagerWrapper>);
static_assert(std::is_convertible_v<UnitManagerWrapper, bool>);
static_assert(std::is_same_v<decltype(std::declval<const UnitManagerWrapper&>().getUnitManager()),
                             QSharedPointer<const UnitManagerDevice>>);

namespace {

/// The members of the wrapper, so that the compiler pads both in the same way.
struct SameMembers
{
    virtual ~SameMembers();
    UnitManagerDBusConnector connector;
    QSharedPointer<DependencyWalker> dependencyWalker;
    QSharedPointer<UnitManagerDevice> unitManager;
};

static_assert(sizeof(UnitManagerWrapper) == sizeof(SameMembers), "connector by value, walker, manager");
static_assert(alignof(UnitManagerWrapper) == alignof(SameMembers));

template <typename... Arguments>
constexpr bool isBuiltFrom = std::is_constructible_v<UnitManagerWrapper, Arguments...>;

using Literal = decltype(("literal"));
static_assert(isBuiltFrom<bool, bool>);
static_assert(isBuiltFrom<Literal, Literal, Literal, bool, bool>);
static_assert(isBuiltFrom<Literal, Literal, Literal, Literal, Literal, Literal, bool, bool>);
static_assert(!isBuiltFrom<Literal, Literal>, "two names are not two flags");
static_assert(!isBuiltFrom<const char*, const char*>);
static_assert(!isBuiltFrom<char*, char*>);

} // namespace

using namespace WrapperSetup;

/// Construction, the first configuration, init() and reset(). For changes see UnitManagerWrapperChangeTest.
class UnitManagerWrapperTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initHasTheThirdSlot();
    void unitManagerIsReleasedFirst();
    void newWrapperHasNoUnits();
    void constructionReads_data();
    void constructionReads();
    void firstConfigurationIsAdopted_data();
    void firstConfigurationIsAdopted();
    void withoutServiceThereAreNoUnits_data();
    void withoutServiceThereAreNoUnits();
    void idleWithoutUnitManagerLogsAWarning_data();
    void idleWithoutUnitManagerLogsAWarning();
    void initDiscardsTheBuiltObjects_data();
    void initDiscardsTheBuiltObjects();
    void initKeepsARecordedChange();
    void initAppliesNewSettings();
    void resetKeepsTheBuiltObjects_data();
    void resetKeepsTheBuiltObjects();
    void resetClearsARecordedChange();
};

namespace {

namespace T = TestUnitType;

QString wrapperWarning(const char* function, const char* text)
{
    return warningText("UnitManagerDevice/UnitManagerWrapper", anyLine, function, text);
}

} // namespace

void UnitManagerWrapperTest::initHasTheThirdSlot()
{
    // Part of the binary interface: callers use the position in the virtual table.
    QCOMPARE(virtualSlot(&UnitManagerWrapper::init), std::size_t(2));
}

void UnitManagerWrapperTest::unitManagerIsReleasedFirst()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    // The order of the members is part of the binary interface. They are destroyed in reverse order; the last
    // one is the unit manager.
    using Pointer = QSharedPointer<UnitManagerDevice>;
    const auto* const end = reinterpret_cast<const char*>(wrapper.get() + 1);
    const UnitManagerDevice* last = nullptr;
    std::memcpy(&last, end - sizeof(Pointer), sizeof(last));
    QVERIFY(last != nullptr);
    QCOMPARE(last, static_cast<const UnitManagerDevice*>(wrapper->getUnitManager().data()));
}

void UnitManagerWrapperTest::newWrapperHasNoUnits()
{
    LogCapture log;
    const auto wrapper = createUnused();

    const bool usable = *wrapper;
    QVERIFY(!usable);
    QVERIFY(!wrapper->getUnitManager());
    QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());
    QCOMPARE(shown(*wrapper), asStored);
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerWrapperTest::constructionReads_data()
{
    QTest::addColumn<int>("names");
    QTest::addColumn<bool>("reading");
    QTest::addColumn<bool>("changeSignals");
    QTest::addColumn<QStringList>("requests");

    const struct
    {
        const char* row;
        Names names;
        QStringList documents;
    } constructors[] = {
        {"no names", NoNames, {TestCall::units}},
        {"default units", DefaultUnitNames, {TestCall::units, TestCall::defaults}},
        {"all names", AllNames, {TestCall::units, TestCall::dependencies, TestCall::defaults}},
    };
    const QStringList nothing;
    for (const auto& constructor : constructors) {
        const auto add = [&](const char* mode, Reading reading, Signals changeSignals,
                             const QStringList& requests) {
            QTest::addRow("%s, %s", constructor.row, mode)
                << int(constructor.names) << bool(reading) << bool(changeSignals) << requests;
        };
        add("blocking, delivered", Blocking, Delivered, constructor.documents);
        // One attempt is one step here, which opens the sources.
        add("asynchronous, delivered", Asynchronous, Delivered, nothing);
        add("blocking, polled", Blocking, Polled, nothing);
        add("asynchronous, polled", Asynchronous, Polled, nothing);
    }
}

void UnitManagerWrapperTest::constructionReads()
{
    QFETCH(int, names);
    QFETCH(QStringList, requests);
    const auto wrapper = createInFetchedMode(Names(names));

    QCOMPARE(m_service->takeCalls(), requests);
    QCOMPARE(bool(*wrapper), !requests.isEmpty());
    QCOMPARE(shown(*wrapper), requests.isEmpty() ? asStored : converted);
}

void UnitManagerWrapperTest::firstConfigurationIsAdopted_data()
{
    addModes();
}

void UnitManagerWrapperTest::firstConfigurationIsAdopted()
{
    LogCapture log;
    for (const Names names : {NoNames, DefaultUnitNames, AllNames}) {
        const auto wrapper = createInFetchedMode(names);

        QVERIFY(waitForUnits(*wrapper));
        QVERIFY(*wrapper);
        QCOMPARE(shown(*wrapper), converted);
        QVERIFY(wrapper->getUnitManager()->isValid());
        QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
        QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());
        QVERIFY(wrapper->checkInitialized());
        QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());
        QCOMPARE(takeMessageTexts(log), QStringList());
        QCOMPARE(wrapper->getUnitManager()->getDefaultUnit(T::pressure),
                 names == NoNames ? QString() : QStringLiteral("HectoPascal"));
        log.take();
    }
}

void UnitManagerWrapperTest::withoutServiceThereAreNoUnits_data()
{
    addModes();
}

void UnitManagerWrapperTest::withoutServiceThereAreNoUnits()
{
    QFETCH(bool, reading);
    m_service->stop();
    LogCapture log;
    const auto wrapper = createInFetchedMode(AllNames);
    log.take();

    QVERIFY(!wrapper->checkInitialized());
    QCOMPARE(log.take().size(), Reading(reading) == Blocking ? 100 : 1);
    QVERIFY(!*wrapper);
    QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());

    QVERIFY(m_service->start());
    QVERIFY(waitForUnits(*wrapper));
    QCOMPARE(shown(*wrapper), converted);
}

void UnitManagerWrapperTest::idleWithoutUnitManagerLogsAWarning_data()
{
    QTest::addColumn<QVariant>("answer");
    QTest::newRow("an empty text") << QVariant(QString());
    QTest::newRow("not a text") << QVariant(QVariantList{1, 2});
}

void UnitManagerWrapperTest::idleWithoutUnitManagerLogsAWarning()
{
    QFETCH(QVariant, answer);
    m_service->setDocument(TestSource::unitSwitchName, answer);
    const auto wrapper = create(NoNames, Asynchronous, Delivered);
    LogCapture log;
    const QString notInitialized =
        wrapperWarning("bool UnitManagerWrapper::checkInitialized()", "Unable to initialize UnitManager");

    QVERIFY(waitForUnits(*wrapper));
    QCOMPARE(takeMessageTexts(log), QStringList{notInitialized});
    QVERIFY(!*wrapper);
    QVERIFY(!wrapper->getUnitManager());
    QCOMPARE(shown(*wrapper), asStored);
    QVERIFY(wrapper->checkInitialized());
    QCOMPARE(takeMessageTexts(log), QStringList{notInitialized});

    QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
    QCOMPARE(takeMessageTexts(log),
             QStringList{wrapperWarning("bool UnitManagerWrapper::hasUnitManagerConfigurationChanged()",
                                        "Unable to change configuration of UnitManager")});
    QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerWrapperTest::initDiscardsTheBuiltObjects_data()
{
    addModes();
}

void UnitManagerWrapperTest::initDiscardsTheBuiltObjects()
{
    QFETCH(bool, reading);
    const auto wrapper = createInFetchedMode(AllNames);
    QVERIFY(waitForUnits(*wrapper));
    QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
    const QStringList requests = m_service->takeCalls();
    LogCapture log;

    QVERIFY(WrapperSetup::init(*wrapper, Reading(reading)));
    QVERIFY(!*wrapper);
    QVERIFY(!wrapper->getUnitManager());
    QCOMPARE(shown(*wrapper), asStored);
    QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());
    QVERIFY(!*wrapper);
    QCOMPARE(m_service->takeCalls(), QStringList());
    QCOMPARE(takeMessageTexts(log), QStringList());

    QVERIFY(waitForUnits(*wrapper));
    QCOMPARE(shown(*wrapper), converted);
    QCOMPARE(m_service->takeCalls(), requests);
    QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
}

void UnitManagerWrapperTest::initKeepsARecordedChange()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    const auto units = wrapper->getUnitManager();
    QVERIFY(units);

    QVERIFY(WrapperSetup::init(*wrapper, Blocking));
    QVERIFY(!*wrapper);
    QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
    QCOMPARE(wrapper->getUnitManager(), units);
    QCOMPARE(shown(*wrapper), converted);
}

void UnitManagerWrapperTest::initAppliesNewSettings()
{
    const auto wrapper = create(NoNames, Blocking, Delivered);
    QCOMPARE(m_service->takeCalls(), QStringList{TestCall::units});

    QVERIFY(WrapperSetup::init(*wrapper, Asynchronous));
    QVERIFY2(!wrapper->checkInitialized(), "one step does not reach a configuration");
    QVERIFY(waitForUnits(*wrapper));
    QCOMPARE(wrapper->getUnitManager()->getDefaultUnit(T::pressure), QStringLiteral("HectoPascal"));

    QVERIFY(initWithoutNames(*wrapper, Blocking));
    QVERIFY2(wrapper->checkInitialized(), "a blocking attempt reaches it at once");
    QVERIFY(*wrapper);
}

void UnitManagerWrapperTest::resetKeepsTheBuiltObjects_data()
{
    addModes();
}

void UnitManagerWrapperTest::resetKeepsTheBuiltObjects()
{
    const auto wrapper = createInFetchedMode(AllNames);
    QVERIFY(waitForUnits(*wrapper));
    const auto units = wrapper->getUnitManager();
    const QStringList requests = m_service->takeCalls();
    LogCapture log;

    QVERIFY(wrapper->reset());
    QVERIFY(*wrapper);
    QCOMPARE(wrapper->getUnitManager(), units);
    QCOMPARE(shown(*wrapper), converted);
    QCOMPARE(m_service->takeCalls(), QStringList());
    QCOMPARE(takeMessageTexts(log), QStringList());

    QVERIFY(waitForUnits(*wrapper));
    QCOMPARE(m_service->takeCalls(), requests);
    QVERIFY(wrapper->getUnitManager() != units);
    QVERIFY(units->isValid());
    QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
}

void UnitManagerWrapperTest::resetClearsARecordedChange()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    QVERIFY(*wrapper);
    QVERIFY(wrapper->reset());
    QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());
}

static const TestClass<UnitManagerWrapperTest> testClass;
#include "UnitManagerWrapperTest.moc"
