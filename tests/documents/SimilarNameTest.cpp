#include "SimilarName.h"

#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"

class SimilarNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsSlips_data();
    void countsSlips();
    void findsTheNearestName_data();
    void findsTheNearestName();
};

namespace {

const int differentName = -1;

} // namespace

void SimilarNameTest::countsSlips_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("meant");
    QTest::addColumn<int>("slips");
    row("same", QString("Pressure"), QString("Pressure"), 0);
    row("other case", QString("hPa"), QString("HPA"), 0);
    row("other case of one letter", QString("K"), QString("k"), 0);
    row("missing letter", QString("Presure"), QString("Pressure"), 1);
    row("letter too many", QString("Baar"), QString("Bar"), 1);
    row("wrong letter", QString("Litre"), QString("Litra"), 1);
    row("swapped letters", QString("Liter"), QString("Litre"), 2);
    row("three wrong letters", QString("Litxxx"), QString("Litabc"), differentName);
    row("too long by three", QString("Barometer"), QString("Barome"), differentName);
    row("no letter would be right", QString("Xs"), QString("s"), differentName);
    row("one letter", QString("s"), QString("h"), differentName);
    row("empty name", QString(), QString("Bar"), differentName);
    row("empty names", QString(), QString(), differentName);
    row("longest", QString(200, 'x'), QString(201, 'x'), 1);
    row("too long", QString(201, 'x'), QString(201, 'x'), differentName);
}

void SimilarNameTest::countsSlips()
{
    QFETCH(QString, name);
    QFETCH(QString, meant);
    QFETCH(int, slips);
    QCOMPARE(SimilarName::slips(name, meant).value_or(differentName), slips);
}

void SimilarNameTest::findsTheNearestName_data()
{
    QTest::addColumn<QStringList>("known");
    QTest::addColumn<QString>("nearest");
    row("none", QStringList(), QString());
    row("fewest slips", QStringList{"Mbor", "mbar", "Bar"}, QString("mbar"));
    row("first of equal ones", QStringList{"Mbir", "Mbor"}, QString("Mbir"));
    row("no similar one", QStringList{"Torr", "Pascal"}, QString());
    row("many names", QStringList("mbar") + QVector<QString>(999, "x").toList(), QString("mbar"));
    row("too many names", QStringList("mbar") + QVector<QString>(1000, "x").toList(), QString());
}

void SimilarNameTest::findsTheNearestName()
{
    QFETCH(QStringList, known);
    QFETCH(QString, nearest);
    QCOMPARE(SimilarName::of("Mbar", known), nearest);
}

static const TestClass<SimilarNameTest> testClass;
#include "SimilarNameTest.moc"
