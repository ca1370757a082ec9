#include "ProcessMeasurementAttributes.h"

#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"

class ProcessMeasurementAttributesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rangesAreReadFrom_data();
    void rangesAreReadFrom();
    void aUnitIsSet_data();
    void aUnitIsSet();
    void aUnitTextIsSet();
    void otherMembersStay();
    void anImpossibleIndexIsIgnored_data();
    void anImpossibleIndexIsIgnored();
    void theLastPossibleRangeIsCreated();
    void theOriginalIsNotTouched();
};

void ProcessMeasurementAttributesTest::rangesAreReadFrom_data()
{
    QTest::addColumn<QVariant>("attributes");
    QTest::addColumn<QVariantList>("ranges");

    const QVariantMap range{{"unit", "Bar"}, {"min", 0}, {"max", 10}};
    QTest::newRow("a list") << QVariant(QVariantList{range, range}) << QVariantList{range, range};
    QTest::newRow("an empty list") << QVariant(QVariantList()) << QVariantList();
    QTest::newRow("a single map") << QVariant(range) << QVariantList{range};
    QTest::newRow("a list of something else") << QVariant(QVariantList{1, "two"}) << QVariantList{1, "two"};
    QTest::newRow("nothing") << QVariant() << QVariantList();
    QTest::newRow("a number") << QVariant(1) << QVariantList();
    QTest::newRow("a text") << QVariant("Bar") << QVariantList();
}

void ProcessMeasurementAttributesTest::rangesAreReadFrom()
{
    QFETCH(const QVariant, attributes);
    QFETCH(const QVariantList, ranges);
    const ProcessMeasurementAttributes view(attributes);
    QCOMPARE(view.getMeasurementAttributeObject(), QVariant(ranges));
    QCOMPARE(view.getUnit(0), ranges.value(0).toMap().value("unit").toString());
    QCOMPARE(view.getUnit(2), QString());
    QCOMPARE(view.getUnit(-1), QString());
    QVERIFY(!view.getUnitText(0).isValid());
}

void ProcessMeasurementAttributesTest::aUnitIsSet_data()
{
    QTest::addColumn<QVariant>("attributes");
    QTest::addColumn<int>("index");
    QTest::addColumn<QVariantList>("edited");

    const QVariantMap empty;
    const QVariantMap bar{{"unit", "Bar"}};
    const QVariantMap pascal{{"unit", "Pascal"}};
    row("of the first range", QVariant(QVariantList{pascal, pascal}), 0, QVariantList{bar, pascal});
    row("of the last range", QVariant(QVariantList{pascal, pascal}), 1, QVariantList{pascal, bar});
    row("beyond the end", QVariant(QVariantList{pascal}), 3, QVariantList{pascal, empty, empty, bar});
    row("of no attributes", QVariant(), 0, QVariantList{bar});
    row("of attributes of another type", QVariant("text"), 0, QVariantList{bar});
    row("of a range that is not a map", QVariant(QVariantList{7}), 0, QVariantList{bar});
}

void ProcessMeasurementAttributesTest::aUnitIsSet()
{
    QFETCH(const QVariant, attributes);
    QFETCH(const int, index);
    QFETCH(const QVariantList, edited);
    ProcessMeasurementAttributes view(attributes);
    view.setUnit(index, "Bar");
    QCOMPARE(view.getUnit(index), QStringLiteral("Bar"));
    QCOMPARE(view.getMeasurementAttributeObject(), QVariant(edited));
}

void ProcessMeasurementAttributesTest::aUnitTextIsSet()
{
    ProcessMeasurementAttributes view{QVariant()};
    const QVariantMap texts{{"en", "bar"}, {"de", "Bar"}};
    view.setUnitText(0, texts);
    QCOMPARE(view.getUnitText(0), QVariant(texts));
    const QVariantList expected{QVariantMap{{"unitText", texts}}};
    QCOMPARE(view.getMeasurementAttributeObject(), QVariant(expected));
}

void ProcessMeasurementAttributesTest::otherMembersStay()
{
    const QVariantMap range{{"unit", "Pascal"}, {"min", 0.5}, {"max", 10}, {"scale", QVariantList{1, 2}}};
    ProcessMeasurementAttributes view{QVariantList{range}};
    view.setUnit(0, "Bar");
    view.setUnitText(0, "bar");

    QVariantMap expected = range;
    expected["unit"] = "Bar";
    expected["unitText"] = "bar";
    QCOMPARE(view.getMeasurementAttributeObject(), QVariant(QVariantList{expected}));
}

void ProcessMeasurementAttributesTest::anImpossibleIndexIsIgnored_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("a negative one") << -1;
    QTest::newRow("the smallest") << std::numeric_limits<int>::min();
    QTest::newRow("one too many") << ProcessMeasurementAttributes::maximumRangeCount;
    QTest::newRow("the largest") << std::numeric_limits<int>::max();
}

void ProcessMeasurementAttributesTest::anImpossibleIndexIsIgnored()
{
    QFETCH(const int, index);
    ProcessMeasurementAttributes view{QVariantList{1}};
    view.setUnit(index, "Bar");
    view.setUnitText(index, "bar");
    QCOMPARE(view.getMeasurementAttributeObject(), QVariant(QVariantList{1}));
    QCOMPARE(view.getUnit(index), QString());
}

void ProcessMeasurementAttributesTest::theLastPossibleRangeIsCreated()
{
    constexpr int last = ProcessMeasurementAttributes::maximumRangeCount - 1;
    ProcessMeasurementAttributes view{QVariant()};
    view.setUnit(last, "Bar");
    QCOMPARE(view.getMeasurementAttributeObject().toList().size(), last + 1);
    QCOMPARE(view.getUnit(last), QStringLiteral("Bar"));
}

void ProcessMeasurementAttributesTest::theOriginalIsNotTouched()
{
    const QVariant original = QVariantList{QVariantMap{{"unit", "Pascal"}}};
    ProcessMeasurementAttributes view(original);
    view.setUnit(0, "Bar");
    QCOMPARE(original.toList().first().toMap().value("unit"), QVariant("Pascal"));
}

static const TestClass<ProcessMeasurementAttributesTest> testClass;
#include "ProcessMeasurementAttributesTest.moc"
