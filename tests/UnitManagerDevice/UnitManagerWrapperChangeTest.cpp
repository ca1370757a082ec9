#include <QtTest/QTest>

#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "ServiceFixture.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "WaitLimit.h"
#include "WaitUntil.h"
#include "WrapperSetup.h"

using namespace WrapperSetup;

/// How a wrapper handles documents that change while it runs.
class UnitManagerWrapperChangeTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void changeIsAdopted_data();
    void changeIsAdopted();
    void eventLoopIsNeeded_data();
    void eventLoopIsNeeded();
    void checkLoadsAChange();
    void queryDoesNotLookForChanges();
    void unitsRemainUsableDuringAnAsynchronousRead();
    void badDocumentReplacesGoodUnits_data();
    void badDocumentReplacesGoodUnits();
    void badDocumentIsAdoptedByTheQuery();
};

namespace {

namespace T = TestUnitType;

const QString milliBarAsDefault = QStringLiteral(R"({ "Pressure": { "@type": "Selection",
                                                                     "@value": "MilliBar" } })");

bool hasAdopted(UnitManagerWrapper& wrapper)
{
    return wrapper.checkInitialized() && wrapper.hasUnitManagerConfigurationChanged();
}

/// Polls the wrapper in an event loop until it adopts a change. @return false after a minute without one.
bool waitForAdoption(UnitManagerWrapper& wrapper)
{
    return QTest::qWaitFor([&wrapper] { return hasAdopted(wrapper); }, waitLimit);
}

QString defaultUnit(const UnitManagerWrapper& wrapper)
{
    return wrapper.getUnitManager()->getDefaultUnit(T::pressure);
}

} // namespace

void UnitManagerWrapperChangeTest::changeIsAdopted_data()
{
    addModes();
}

void UnitManagerWrapperChangeTest::changeIsAdopted()
{
    const auto wrapper = createInFetchedMode(AllNames);
    QVERIFY(waitForAdoption(*wrapper));
    const auto before = wrapper->getUnitManager();
    QCOMPARE(before->getDefaultUnit(T::pressure), QStringLiteral("HectoPascal"));
    LogCapture log;

    m_service->setDocument(TestSource::defaultUnitName, milliBarAsDefault);
    QVERIFY(m_service->announce(TestSource::defaults));
    QVERIFY(waitForAdoption(*wrapper));

    QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());
    QVERIFY(wrapper->checkInitialized());
    QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());
    QCOMPARE(defaultUnit(*wrapper), QStringLiteral("MilliBar"));
    QVERIFY(wrapper->getUnitManager() != before);
    QCOMPARE(before->getDefaultUnit(T::pressure), QStringLiteral("HectoPascal"));
    QCOMPARE(log.takeTexts(), QStringList("default unit configuration has been changed"));
}

void UnitManagerWrapperChangeTest::eventLoopIsNeeded_data()
{
    QTest::addColumn<int>("names");
    QTest::addColumn<bool>("changeSignals");
    QTest::addColumn<bool>("isNeeded");

    const auto add = [](const char* row, Names names, Signals changeSignals, bool isNeeded) {
        QTest::newRow(row) << int(names) << bool(changeSignals) << isNeeded;
    };
    add("no names, delivered", NoNames, Delivered, true);
    add("no names, polling requested", NoNames, Polled, true);
    add("default units, delivered", DefaultUnitNames, Delivered, true);
    add("default units, polled", DefaultUnitNames, Polled, false);
    add("all names, delivered", AllNames, Delivered, true);
    add("all names, polled", AllNames, Polled, false);
}

void UnitManagerWrapperChangeTest::eventLoopIsNeeded()
{
    QFETCH(int, names);
    QFETCH(bool, changeSignals);
    QFETCH(bool, isNeeded);
    const auto wrapper = create(Names(names), Blocking, Signals(changeSignals));
    QVERIFY(hasAdopted(*wrapper));

    m_service->setDocument(TestSource::unitSwitchName, TestDocuments::voltage());
    QVERIFY(m_service->announce(TestSource::units));
    QCOMPARE(hasAdopted(*wrapper), !isNeeded);
    QVERIFY(!isNeeded || waitForAdoption(*wrapper));
    QCOMPARE(wrapper->getUnitManager()->getListofUnitTypes(), QStringList{T::voltage});
}

void UnitManagerWrapperChangeTest::checkLoadsAChange()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    QVERIFY(hasAdopted(*wrapper));
    m_service->setDocument(TestSource::defaultUnitName, milliBarAsDefault);
    QVERIFY(m_service->announce(TestSource::defaults));

    QTRY_VERIFY_WITH_TIMEOUT(
        wrapper->checkInitialized() && defaultUnit(*wrapper) == QLatin1String("MilliBar"), waitLimit);
    const auto units = wrapper->getUnitManager();
    QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
    QCOMPARE(wrapper->getUnitManager(), units);
}

void UnitManagerWrapperChangeTest::queryDoesNotLookForChanges()
{
    const auto wrapper = create(AllNames, Blocking, Polled);
    QVERIFY(hasAdopted(*wrapper));
    m_service->takeCalls();
    m_service->setDocument(TestSource::defaultUnitName, milliBarAsDefault);
    QVERIFY(m_service->announce(TestSource::defaults));

    for (int call = 0; call < 10; ++call)
        QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());
    QCOMPARE(m_service->takeCalls(), QStringList());
    QVERIFY(hasAdopted(*wrapper));
}

void UnitManagerWrapperChangeTest::unitsRemainUsableDuringAnAsynchronousRead()
{
    const auto wrapper = create(AllNames, Asynchronous, Polled);
    QVERIFY(waitUntil([&] { return hasAdopted(*wrapper); }));
    m_service->setDocument(TestSource::unitSwitchName, TestDocuments::voltage());
    QVERIFY(m_service->announce(TestSource::units));

    QVERIFY(!wrapper->checkInitialized());
    QVERIFY(*wrapper);
    QCOMPARE(shown(*wrapper), converted);
    QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());

    QVERIFY(waitUntil([&] { return hasAdopted(*wrapper); }));
    QCOMPARE(wrapper->getUnitManager()->getListofUnitTypes(), QStringList{T::voltage});
}

void UnitManagerWrapperChangeTest::badDocumentReplacesGoodUnits_data()
{
    addModes();
}

void UnitManagerWrapperChangeTest::badDocumentReplacesGoodUnits()
{
    const auto wrapper = createInFetchedMode(AllNames);
    QVERIFY(waitForAdoption(*wrapper));
    const auto good = wrapper->getUnitManager();
    LogCapture log;

    m_service->setDocument(TestSource::unitSwitchName, QStringLiteral("{"));
    QVERIFY(m_service->announce(TestSource::units));
    QVERIFY(QTest::qWaitFor(
        [&] { return !wrapper->checkInitialized() && wrapper->hasUnitManagerConfigurationChanged(); },
        waitLimit));
    QVERIFY(!*wrapper);
    QVERIFY(wrapper->getUnitManager());
    QVERIFY(!wrapper->getUnitManager()->isValid());
    QCOMPARE(shown(*wrapper), asStored);
    QVERIFY(good->isValid());
    const QStringList messages = takeMessageTexts(log);
    QVERIFY(messages.contains(Expected::invalidUnitDocument("{")));
    QCOMPARE(messages.filter("UnitManagerWrapper"), QStringList());

    m_service->setDocument(TestSource::unitSwitchName, TestDocuments::units());
    QVERIFY(waitForUnits(*wrapper));
    QVERIFY(*wrapper);
    QCOMPARE(shown(*wrapper), converted);
    QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
}

void UnitManagerWrapperChangeTest::badDocumentIsAdoptedByTheQuery()
{
    const auto wrapper = create(AllNames, Blocking, Polled);
    QVERIFY(hasAdopted(*wrapper));
    m_service->setDocument(TestSource::unitSwitchName, QStringLiteral("{"));
    QVERIFY(m_service->announce(TestSource::units));
    const LogCapture quiet;

    QVERIFY(!wrapper->checkInitialized());
    QVERIFY(*wrapper);
    QCOMPARE(shown(*wrapper), converted);
    QVERIFY(wrapper->hasUnitManagerConfigurationChanged());
    QVERIFY(!*wrapper);
    QVERIFY(!wrapper->hasUnitManagerConfigurationChanged());
}

static const TestClass<UnitManagerWrapperChangeTest> testClass;
#include "UnitManagerWrapperChangeTest.moc"
