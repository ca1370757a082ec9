#include "ExactText.h"

#include <QtTest/QTest>

#include <cmath>
#include <limits>

#include "TestProgram.h"

/// A comparison that ignores differences would hide faults in all tests that use it.
class ExactTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void neighboursDiffer_data();
    void neighboursDiffer();
    void signsOfZeroDiffer();
    void typesDiffer();
    void notANumberIsItself();
};

void ExactTextTest::neighboursDiffer_data()
{
    QTest::addColumn<double>("number");

    QTest::newRow("zero") << 0.0;
    QTest::newRow("smallest number") << std::numeric_limits<double>::denorm_min();
    QTest::newRow("tiny") << 5.5511151231257827e-17;
    QTest::newRow("fraction") << 0.1;
    QTest::newRow("negative") << -2.5;
    QTest::newRow("huge") << 1e300;
    QTest::newRow("largest number") << std::numeric_limits<double>::max();
}

void ExactTextTest::neighboursDiffer()
{
    QFETCH(double, number);
    const double above = std::nextafter(number, std::numeric_limits<double>::infinity());
    QVERIFY(exactText(number) != exactText(above));
    QVERIFY(exactText(QVariant(number)) != exactText(QVariant(above)));
    QVERIFY(exactTexts({number}) != exactTexts({above}));
    QCOMPARE(exactText(number), exactText(std::nextafter(above, -std::numeric_limits<double>::infinity())));
}

void ExactTextTest::signsOfZeroDiffer()
{
    QVERIFY(exactText(0.0) != exactText(-0.0));
    QVERIFY(exactText(QVariant(0.0)) != exactText(QVariant(-0.0)));
}

void ExactTextTest::typesDiffer()
{
    const QStringList texts{exactText(QVariant(3)),
                            exactText(QVariant(3.0)),
                            exactText(QVariant(3.0F)),
                            exactText(QVariant("3")),
                            exactText(QVariant(QVariantList{3})),
                            exactText(QVariant())};
    QCOMPARE(QSet<QString>(texts.begin(), texts.end()).size(), texts.size());
}

void ExactTextTest::notANumberIsItself()
{
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    QCOMPARE(exactText(notANumber), exactText(-notANumber));
    QVERIFY(exactText(notANumber) != exactText(std::numeric_limits<double>::infinity()));
}

static const TestClass<ExactTextTest> testClass;
#include "ExactTextTest.moc"
