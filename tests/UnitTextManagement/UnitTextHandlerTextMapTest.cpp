#include <QtTest/QTest>

#include "EmptyText.h"
#include "ExactText.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "Row.h"
#include "TestProgram.h"
#include "TextDocument.h"

using namespace TextDocument;

namespace {

QString mapWarning(const QString& text)
{
    return warningText("UnitTextManagement/UnitTextHandler", anyLine,
                       "QVariant UnitTextHandler::getUnitTextJsonMap(const QString&) const", text);
}

} // namespace

/// Look-ups of labels in all languages.
class UnitTextHandlerTextMapTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textMap_data();
    void textMap();
    void textOfTheTypeWithoutUnitIsEmpty();
    void unknownNamesInTextMapWarn_data();
    void unknownNamesInTextMapWarn();
};

void UnitTextHandlerTextMapTest::textMap_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QVariant>("expected");

    const QVariant bar = QVariantMap{{"en", "bar"}, {"de", "Bar"}, {"fr_CH", "bar suisse"}};
    row("plain type gives the base unit", pressure, bar);
    row("fixed unit", pressure + "/Bar", bar);
    row("fixed unit without name gives the base unit", pressure + "/", bar);
    row("one text for every language", pressure + "/HectoPascal", QVariant("hPa"));
    row("type without unit", prefix + "NoUnit", QVariant(QVariantMap{{"en", ""}}));
    row("fixed unit of the type without unit", prefix + "NoUnit/NoUnit", QVariant("none"));
    row("no base unit", prefix + "Headless", QVariant());
    row("base unit without label", prefix + "Tailless", QVariant());
}

void UnitTextHandlerTextMapTest::textMap()
{
    QFETCH(QString, unitType);
    QFETCH(QVariant, expected);
    const UnitTextHandler handler = load();
    LogCapture log;
    QCOMPARE(exactText(handler.getUnitTextJsonMap(unitType)), exactText(expected));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitTextHandlerTextMapTest::textOfTheTypeWithoutUnitIsEmpty()
{
    const QVariantMap texts = load().getUnitTextJsonMap(prefix + "NoUnit").toMap();
    QVERIFY(isEmptyText(texts.value("en").toString()));
}

void UnitTextHandlerTextMapTest::unknownNamesInTextMapWarn_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("text");

    const QString nopeUnit = pressure + "/Nope";
    const QString bareUnit = pressure + "/Bare";
    row("unknown type", prefix + "Nope", unknownType(prefix + "Nope"));
    row("fixed unit of an unknown type is reported in full", prefix + "Nope/Bar",
        unknownType(prefix + "Nope/Bar"));
    row("type without labels", prefix + "Unlabelled", unknownType(prefix + "Unlabelled"));
    row("no unit without prefix", "NoUnit", unknownType("NoUnit"));
    row("empty type", "", unknownType(""));
    row("unknown unit", nopeUnit, unknownUnit("Nope", nopeUnit));
    row("unit without label", bareUnit, unknownUnit("Bare", bareUnit));
}

void UnitTextHandlerTextMapTest::unknownNamesInTextMapWarn()
{
    QFETCH(QString, unitType);
    QFETCH(QString, text);
    const UnitTextHandler handler = load();
    LogCapture log;
    QCOMPARE(exactText(handler.getUnitTextJsonMap(unitType)), exactText(QVariant()));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), QStringList(mapWarning(text)));
}

static const TestClass<UnitTextHandlerTextMapTest> testClass;

#include "UnitTextHandlerTextMapTest.moc"
