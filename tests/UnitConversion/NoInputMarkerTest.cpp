#include "UnitConversion/NoInputMarker.h"

#include <QtTest/QTest>

#include <cmath>
#include <limits>

#include "TestProgram.h"

using NoInputMarker::Content;

namespace {

int markerQueries = 0;

} // namespace

bool ConfigurationAndProcessDataTools::isVariantNumber(const QVariant& value)
{
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Int;
}

bool ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(const QVariant& value)
{
    ++markerQueries;
    return isVariantNumber(value) && (value.toDouble() == -999.0 || std::isnan(value.toDouble()));
}

/// If the platform does not declare that its marker is a NaN, the library tests every number.
class NoInputMarkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsPromised();
    void everyNumberIsTested_data();
    void everyNumberIsTested();
};

void NoInputMarkerTest::nothingIsPromised()
{
    QVERIFY(!NoInputMarker::isAlwaysNan);
}

void NoInputMarkerTest::everyNumberIsTested_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isSet");
    QTest::addColumn<int>("content");

    const auto row = [](const char* name, const QVariant& value, bool isSet, Content content) {
        QTest::newRow(name) << value << isSet << static_cast<int>(content);
    };
    row("number", 2.5, false, Content::Number);
    row("marker that is a number", -999.0, true, Content::Marker);
    row("marker that is a NaN", std::numeric_limits<double>::quiet_NaN(), true, Content::Marker);
    row("integer", 7, false, Content::Number);
    row("marker as an integer", -999, true, Content::Marker);
    row("text", QStringLiteral("-999"), false, Content::Other);
    row("invalid", QVariant(), false, Content::Other);
}

void NoInputMarkerTest::everyNumberIsTested()
{
    QFETCH(QVariant, value);
    QFETCH(bool, isSet);
    QFETCH(int, content);

    markerQueries = 0;
    QCOMPARE(NoInputMarker::isSet(value), isSet);
    QCOMPARE(markerQueries, 1);
    double number = 0.0;
    QCOMPARE(static_cast<int>(NoInputMarker::read(value, number)), content);
    QCOMPARE(markerQueries, content == static_cast<int>(Content::Other) ? 1 : 2);
    if (content == static_cast<int>(Content::Number))
        QCOMPARE(number, value.toDouble());
}

static const TestClass<NoInputMarkerTest> testClass;

#include "NoInputMarkerTest.moc"
