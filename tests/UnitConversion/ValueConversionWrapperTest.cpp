#include "UnitConversion/ValueConversionWrapper.h"

#include <QtTest/QTest>

#include <memory>
#include <type_traits>

#include "ExactText.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "RecordingNode.h"
#include "Row.h"
#include "TestProgram.h"
#include "UnitConversion/ValueConverterFactory.h"

namespace {

static_assert(std::has_virtual_destructor_v<ValueConversionWrapper>);
static_assert(std::is_copy_constructible_v<ValueConversionWrapper> &&
              std::is_copy_assignable_v<ValueConversionWrapper>);
static_assert(std::is_convertible_v<const ValueConversionWrapper&, bool>);
static_assert(std::is_convertible_v<BaseClassSharedPointer, ValueConversionWrapper>);
// Device programs hold handles by value: the virtual table pointer and the shared pointer, nothing else.
static_assert(sizeof(ValueConversionWrapper) == sizeof(void*) + sizeof(QSharedPointer<ValueConverterBase>));

const QString linear =
    QStringLiteral(R"({"Polynomial": [[5], [2]], "InversePolynomial": [[-2.5], [0.5]], "DecimalPlaces": 3})");

/// Adds a number, and counts its live instances.
class AddingConverter : public ValueConverterBase
{
public:
    AddingConverter(double number, int& living) : m_number(number), m_living(living)
    {
        ++m_living;
        decimalPlaces = 9;
    }
    ~AddingConverter() override
    {
        --m_living;
    }
    AddingConverter(const AddingConverter&) = delete;
    AddingConverter& operator=(const AddingConverter&) = delete;
    double convertValue(double x) const override
    {
        return x + m_number;
    }
    double invertValue(double x) const override
    {
        return x - m_number;
    }

private:
    double m_number;
    int& m_living;
};

/// Replaces a creator of the registry during its lifetime; the destructor restores the original.
class CreatorSpy
{
public:
    CreatorSpy(const QString& key, double number) : m_key(key), m_number(number)
    {
        std::swap(place(), m_creator);
        place() = std::make_unique<Creator>(*this);
    }
    ~CreatorSpy()
    {
        std::swap(place(), m_creator);
    }
    CreatorSpy(const CreatorSpy&) = delete;
    CreatorSpy& operator=(const CreatorSpy&) = delete;

    QList<BaseClassSharedPointer> nodes; ///< the arguments of the creator, one per call
    int living = 0;                      ///< the number of its live converters

private:
    class Creator : public ValueConverterFactory::AbstractCreator
    {
    public:
        explicit Creator(CreatorSpy& spy) : m_spy(spy) {}
        ValueConverterBase* create(const BaseClassSharedPointer& node) override
        {
            m_spy.nodes.append(node);
            return new AddingConverter(m_spy.m_number, m_spy.living);
        }

    private:
        CreatorSpy& m_spy;
    };

    std::unique_ptr<ValueConverterFactory::AbstractCreator>& place()
    {
        return ValueConverterFactory::instance().creators[m_key];
    }

    QString m_key;
    double m_number;
    std::unique_ptr<ValueConverterFactory::AbstractCreator> m_creator;
};

} // namespace

Q_DECLARE_METATYPE(BaseClassSharedPointer)

class ValueConversionWrapperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutConverter_data();
    void withoutConverter();
    void decimalPlacesWithoutConverterWarn();
    void firstChildNamesTheKind_data();
    void firstChildNamesTheKind();
    void probesInOrderAndStopsAtTheFirst_data();
    void probesInOrderAndStopsAtTheFirst();
    void converterReadsTheUnitsNode();
    void convertsBothWays();
    void decimalPlacesComeFromTheConverter();
    void copiesShareOneConverter();
    void initReplacesTheConverter();
    void failedInitDropsTheConverter_data();
    void failedInitDropsTheConverter();
    void missingCreatorLeavesNoConverter();
    void doesNotKeepTheNode();
};

void ValueConversionWrapperTest::withoutConverter_data()
{
    QTest::addColumn<BaseClassSharedPointer>("node");

    row("null node", BaseClassSharedPointer());
    row("empty node", nodeFromJson(QStringLiteral("{}")));
    row("null children", nodeFromJson(QStringLiteral(
                             R"({"Polynomial": null, "ArbitraryTable": null, "EquidistantTable": null})")));
    row("inverse only", nodeFromJson(QStringLiteral(R"({"InversePolynomial": [[1]], "Table": [[1, 2]]})")));
    row("other spelling", nodeFromJson(QStringLiteral(R"({"polynomial": [[1]], "Polynom": [[1]]})")));
}

void ValueConversionWrapperTest::withoutConverter()
{
    QFETCH(BaseClassSharedPointer, node);
    LogCapture log;
    ValueConversionWrapper byInit;
    QVERIFY(!byInit.init(node));
    for (const ValueConversionWrapper& wrapper :
         {ValueConversionWrapper(), ValueConversionWrapper(node), byInit}) {
        const bool usable = wrapper;
        QVERIFY(!usable);
        QVERIFY(!wrapper.isValid());
        QCOMPARE(exactText(wrapper.convertValue(12.5)), exactText(12.5));
        QCOMPARE(exactText(wrapper.invertValue(-0.0)), exactText(-0.0));
    }
    QCOMPARE(log.takeTexts(), QStringList());
}

void ValueConversionWrapperTest::decimalPlacesWithoutConverterWarn()
{
    LogCapture log;
    unsigned int places = 77;
    QVERIFY(!ValueConversionWrapper().getDecimalPlacesForUnit(places));
    QCOMPARE(places, 77U);
    QCOMPARE(
        messageTexts(log.take()),
        QStringList(warningText("UnitConversion/ValueConversionWrapper", 85,
                                "bool ValueConversionWrapper::getDecimalPlacesForUnit(unsigned int&) const",
                                "invalid pointer to conversion object!")));
}

void ValueConversionWrapperTest::firstChildNamesTheKind_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<double>("number");

    row("polynomial", R"({"Polynomial": [[1]]})", 1.0);
    row("arbitrary table", R"({"ArbitraryTable": {}})", 2.0);
    row("equidistant table", R"({"EquidistantTable": {}})", 3.0);
    row("both tables", R"({"EquidistantTable": {}, "ArbitraryTable": {}})", 2.0);
    row("all three", R"({"EquidistantTable": {}, "ArbitraryTable": {}, "Polynomial": [[1]]})", 1.0);
    row("polynomial and equidistant table", R"({"EquidistantTable": {}, "Polynomial": {}})", 1.0);
    row("null polynomial", R"({"Polynomial": null, "EquidistantTable": {}})", 3.0);
    row("polynomial that is a text", R"({"Polynomial": "x", "ArbitraryTable": {}})", 1.0);
}

void ValueConversionWrapperTest::firstChildNamesTheKind()
{
    QFETCH(QString, json);
    QFETCH(double, number);
    CreatorSpy polynomial(QStringLiteral("Polynomial"), 1);
    CreatorSpy arbitrary(QStringLiteral("ArbitraryTable"), 2);
    CreatorSpy equidistant(QStringLiteral("EquidistantTable"), 3);
    LogCapture log;
    const BaseClassSharedPointer node = nodeFromJson(json);
    const ValueConversionWrapper wrapper(node);
    QVERIFY(wrapper.isValid());
    QCOMPARE(wrapper.convertValue(100), 100 + number);
    // The creator is called once, with the unit's own node rather than the child that was found.
    QCOMPARE(polynomial.nodes + arbitrary.nodes + equidistant.nodes, QList<BaseClassSharedPointer>{node});
    QCOMPARE(log.takeTexts(), QStringList());
}

void ValueConversionWrapperTest::probesInOrderAndStopsAtTheFirst_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QStringList>("expected");

    const QStringList all{"unit.getChild(Polynomial)", "unit.getChild(ArbitraryTable)",
                          "unit.getChild(EquidistantTable)"};
    row("no child", "{}", all);
    row("polynomial", R"({"Polynomial": [[1]], "ArbitraryTable": {}})", QStringList(all.mid(0, 1)));
    row("arbitrary table", R"({"ArbitraryTable": {}, "EquidistantTable": {}})", QStringList(all.mid(0, 2)));
    row("equidistant table", R"({"EquidistantTable": {}})", all);
}

// Calls and their order are visible to the node classes of other libraries.
void ValueConversionWrapperTest::probesInOrderAndStopsAtTheFirst()
{
    QFETCH(QString, json);
    CreatorSpy polynomial(QStringLiteral("Polynomial"), 1);
    CreatorSpy arbitrary(QStringLiteral("ArbitraryTable"), 2);
    CreatorSpy equidistant(QStringLiteral("EquidistantTable"), 3);
    const auto calls = RecordingNode::Calls::create();
    const ValueConversionWrapper wrapper(recordingNodeFromJson(json, QStringLiteral("unit"), calls));
    QTEST(*calls, "expected");
}

// Calls and their order are visible to the node classes of other libraries.
void ValueConversionWrapperTest::converterReadsTheUnitsNode()
{
    const auto calls = RecordingNode::Calls::create();
    const auto node = recordingNodeFromJson(R"({"ArbitraryTable": {}, "Table": [[0, 0], [10, 100]]})",
                                            QStringLiteral("unit"), calls);
    const ValueConversionWrapper wrapper(node);
    QVERIFY(wrapper.isValid());
    QCOMPARE(takeCallsOf(QStringLiteral("unit"), calls),
             QStringList({"unit.getChild(Polynomial)", "unit.getChild(ArbitraryTable)",
                          "unit.getChild(Table)", "unit.getChild(InverseTable)"}));
    QCOMPARE(exactText(wrapper.convertValue(5)), exactText(5));
}

void ValueConversionWrapperTest::convertsBothWays()
{
    const ValueConversionWrapper wrapper(nodeFromJson(linear));
    QCOMPARE(exactText(wrapper.convertValue(3)), exactText(11));
    QCOMPARE(exactText(wrapper.invertValue(11)), exactText(3));
}

void ValueConversionWrapperTest::decimalPlacesComeFromTheConverter()
{
    LogCapture log;
    unsigned int places = 77;
    QVERIFY(ValueConversionWrapper(nodeFromJson(linear)).getDecimalPlacesForUnit(places));
    QCOMPARE(places, 3U);
    QVERIFY(
        ValueConversionWrapper(nodeFromJson(QStringLiteral(R"({"ArbitraryTable": {}, "DecimalPlaces": 4})")))
            .getDecimalPlacesForUnit(places));
    QCOMPARE(places, 0U);
    QCOMPARE(log.takeTexts(), QStringList());
}

void ValueConversionWrapperTest::copiesShareOneConverter()
{
    CreatorSpy spy(QStringLiteral("Polynomial"), 1);
    {
        ValueConversionWrapper original(nodeFromJson(linear));
        const ValueConversionWrapper copy(original);
        ValueConversionWrapper assigned;
        assigned = original;
        QCOMPARE(spy.nodes.size(), 1);
        QCOMPARE(spy.living, 1);

        QVERIFY(!original.init(BaseClassSharedPointer()));
        QCOMPARE(original.convertValue(5), 5.0);
        QCOMPARE(copy.convertValue(5), 6.0);
        QCOMPARE(assigned.convertValue(5), 6.0);
        QCOMPARE(spy.living, 1);
    }
    QCOMPARE(spy.living, 0);
}

void ValueConversionWrapperTest::initReplacesTheConverter()
{
    CreatorSpy spy(QStringLiteral("Polynomial"), 1);
    CreatorSpy later(QStringLiteral("ArbitraryTable"), 2);
    ValueConversionWrapper wrapper(nodeFromJson(linear));
    QVERIFY(wrapper.init(nodeFromJson(QStringLiteral(R"({"ArbitraryTable": {}})"))));
    QCOMPARE(wrapper.convertValue(5), 7.0);
    QCOMPARE(wrapper.invertValue(5), 3.0);
    QCOMPARE(spy.living, 0);
    QCOMPARE(later.living, 1);
}

void ValueConversionWrapperTest::failedInitDropsTheConverter_data()
{
    withoutConverter_data();
}

void ValueConversionWrapperTest::failedInitDropsTheConverter()
{
    QFETCH(BaseClassSharedPointer, node);
    CreatorSpy spy(QStringLiteral("Polynomial"), 1);
    ValueConversionWrapper wrapper(nodeFromJson(linear));
    QVERIFY(wrapper.isValid());
    QVERIFY(!wrapper.init(node));
    QVERIFY(!wrapper.isValid());
    QCOMPARE(wrapper.convertValue(5), 5.0);
    QCOMPARE(spy.living, 0);
}

void ValueConversionWrapperTest::missingCreatorLeavesNoConverter()
{
    LogCapture log;
    ValueConversionWrapper wrapper(nodeFromJson(QStringLiteral(R"({"Polynomial": [[5], [2]]})")));
    auto& creators = ValueConverterFactory::instance().creators;
    auto removed = creators.extract(QStringLiteral("EquidistantTable"));
    const bool initialised = wrapper.init(nodeFromJson(QStringLiteral(R"({"EquidistantTable": {}})")));
    creators.insert(std::move(removed));

    QVERIFY(!initialised);
    QVERIFY(!wrapper.isValid());
    QCOMPARE(wrapper.convertValue(3), 3.0);
    QCOMPARE(log.takeTexts(), QStringList());
}

void ValueConversionWrapperTest::doesNotKeepTheNode()
{
    BaseClassSharedPointer node = nodeFromJson(linear);
    const QWeakPointer<ConfigurationAndProcessDataBase> watched = node;
    const ValueConversionWrapper wrapper(node);
    node.clear();
    QVERIFY(watched.isNull());
    QCOMPARE(wrapper.convertValue(3), 11.0);
}

static const TestClass<ValueConversionWrapperTest> testClass;
#include "ValueConversionWrapperTest.moc"
