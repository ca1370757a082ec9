#include "PanelFixture.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>
#include <QtGui/QImage>
#include <QtTest/QTest>

#include <memory>

#include "Row.h"

namespace {

QByteArray contentOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The device panel as a person sees and uses it, with the running service and the shipped documents.
class PanelTest : public PanelFixture
{
    Q_OBJECT

private Q_SLOTS:
    void showsValues_data();
    void showsValues();
    void translatesEveryText();
    void choosesUnit();
    void closesChooserWithoutChoice();
    void movesWithProcess();
    void relabelsAxis();
    void drawsChart();
    void marksAlarm();
    void waitsForService();
    void adoptsDocument();
    void reportsRefusedDocument();
    void forgetsChosenUnitThatIsGone();
    void savesPictures_data();
    void savesPictures();
};

void PanelTest::showsValues_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("numbers");
    QTest::addColumn<QStringList>("units");

    const QStringList numbers{"1013.3", "-40.3", "45.7", "6.500", "1042.1"};
    const QStringList numbersWithComma{"1013,3", "-40,3", "45,7", "6,500", "1042,1"};
    row("English", QString("en"), QString("Measuring device"), numbers,
        QStringList{"hPa", "°C", "%RH", "bar", "hPa"});
    row("German", QString("de"), QString("Messgerät"), numbersWithComma,
        QStringList{"hPa", "°C", "% r.F.", "bar", "hPa"});
    row("French", QString("fr"), QString("Appareil de mesure"), numbersWithComma,
        QStringList{"hPa", "°C", "% HR", "bar", "hPa"});
}

void PanelTest::showsValues()
{
    QFETCH(QString, language);
    m_panel->click("language-" + language);
    QTEST(m_panel->text("title"), "title");
    QStringList numbers;
    QStringList units;
    for (const QString row : {"linePressure", "dewPoint", "humidity", "supplyPressure"}) {
        numbers.append(m_panel->text(row + "Number"));
        units.append(m_panel->text(row + "Unit"));
    }
    numbers.append(m_panel->text("alarmLimitInput"));
    units.append(m_panel->text("alarmLimitUnit"));
    QTEST(numbers, "numbers");
    QTEST(units, "units");
}

void PanelTest::translatesEveryText()
{
    const QJsonObject languages = QJsonDocument::fromJson(contentOf(":/panel/texts.json")).object();
    QCOMPARE(languages.keys(), QStringList({"de", "fr"}));
    QCOMPARE(languages["de"].toObject().keys(), languages["fr"].toObject().keys());

    const QRegularExpression translated("qsTr\\(\"([^\"]*)\"\\)");
    QStringList texts;
    for (const QString& file : QDir(":/panel").entryList({"*.qml"})) {
        QRegularExpressionMatchIterator match = translated.globalMatch(contentOf(":/panel/" + file));
        while (match.hasNext())
            texts.append(match.next().captured(1));
    }
    QVERIFY(texts.contains("Dew point"));
    for (const QString& text : texts)
        QVERIFY2(languages["de"].toObject().contains(text), qPrintable(text));
}

void PanelTest::choosesUnit()
{
    m_panel->click("dewPointUnit");
    QCOMPARE(m_panel->texts("choose"), QStringList({"°C", "°F", "K", "°R"}));
    m_panel->click("chooseDegreeFahrenheit");
    QVERIFY(!m_panel->isVisible("chooseDegreeFahrenheit"));
    QCOMPARE(m_panel->text("dewPointNumber"), QString("-40.5"));
    QCOMPARE(m_panel->text("dewPointUnit"), QString("°F"));
    QCOMPARE(m_panel->text("linePressureUnit"), QString("hPa"));

    m_panel->click("linePressureUnit");
    m_panel->click("chooseBar");
    QCOMPARE(m_panel->text("linePressureNumber"), QString("1.013"));
    QCOMPARE(m_panel->text("alarmLimitInput"), QString("1.042"));
    QCOMPARE(m_panel->text("alarmLimitUnit"), QString("bar"));
    QCOMPARE(m_panel->text("dewPointUnit"), QString("°F"));
}

void PanelTest::closesChooserWithoutChoice()
{
    m_panel->click("linePressureUnit");
    QVERIFY(m_panel->isVisible("chooseBar"));
    m_panel->press(Qt::Key_Escape);
    QVERIFY(!m_panel->isVisible("chooseBar"));
    // Neither has a choice: only one unit, and a fixed unit.
    m_panel->click("humidityUnit");
    m_panel->click("supplyPressureUnit");
    QCOMPARE(m_panel->texts("choose"), QStringList());
    QCOMPARE(m_panel->text("linePressureNumber"), QString("1013.3"));
}

void PanelTest::movesWithProcess()
{
    for (int period = 0; period < m_panel->process().historyLength() / 4; ++period)
        m_panel->process().advance();
    // A quarter of the cycle of the dew point, the quarter of three cycles of the supply pressure.
    QCOMPARE(m_panel->text("dewPointNumber"), QString("-38.8"));
    QCOMPARE(m_panel->text("supplyPressureNumber"), QString("6.480"));
}

void PanelTest::relabelsAxis()
{
    QCOMPARE(m_panel->text("chartTitle"), QString("Line pressure (hPa)"));
    QCOMPARE(m_panel->texts("tick"), QStringList({"1060.0", "1040.0", "1020.0", "1000.0", "980.0"}));
    m_panel->click("linePressureUnit");
    m_panel->click("chooseMegaPascal");
    QCOMPARE(m_panel->text("chartTitle"), QString("Line pressure (MPa)"));
    QCOMPARE(m_panel->texts("tick"), QStringList({"0.1060", "0.1040", "0.1020", "0.1000", "0.0980"}));
    m_panel->click("language-de");
    QCOMPARE(m_panel->text("chartTitle"), QString("Leitungsdruck (MPa)"));
    QCOMPARE(m_panel->texts("tick"), QStringList({"0,1060", "0,1040", "0,1020", "0,1000", "0,0980"}));
}

void PanelTest::drawsChart()
{
    // The last value, 1013.25 hPa, is at the right edge, about two thirds above 1000 hPa.
    const QPoint lower = m_panel->place("tick1").center();
    const QPoint upper = m_panel->place("tick2").center();
    QCOMPARE(m_panel->texts("tick").mid(2, 2), QStringList({"1020.0", "1000.0"}));
    const int expected = lower.y() - qRound((1013.25 - 1000.0) / 20.0 * (lower.y() - upper.y()));
    const QImage picture = m_panel->picture();
    const int right = m_panel->place("limitLine").right();
    // The only bluish colour from the top to the time axis.
    QList<int> rows;
    for (int y = 0; y < picture.height(); ++y) {
        if (picture.pixelColor(right, y).blue() > 160)
            rows.append(y);
    }
    QVERIFY(!rows.isEmpty());
    QVERIFY2(qAbs(rows.first() - expected) <= 2, qPrintable(QString::number(rows.first() - expected)));
}

void PanelTest::marksAlarm()
{
    const QColor usual = m_panel->color("linePressureNumber");
    QCOMPARE(m_panel->color("dewPointNumber"), usual);
    m_panel->click("alarmLimitInput");
    m_panel->type("1013");
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->color("linePressureNumber"), m_panel->color("limitLine"));
    QCOMPARE(m_panel->color("dewPointNumber"), usual);
    m_panel->click("alarmLimitInput");
    m_panel->type("1014");
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->color("linePressureNumber"), usual);
}

void PanelTest::waitsForService()
{
    m_panel.reset();
    m_service = std::make_unique<ShippedService>();
    QVERIFY(m_service->startBus());
    m_panel = std::make_unique<DrivenPanel>();
    QCOMPARE(m_panel->text("state"), QString("Waiting for the service"));
    QCOMPARE(m_panel->text("linePressureNumber"), QString("–"));
    QCOMPARE(m_panel->text("linePressureUnit"), QString());
    QCOMPARE(m_panel->texts("tick"), QStringList());

    QVERIFY(m_service->start());
    QVERIFY(m_panel->waitFor("state", "Connected"));
    QCOMPARE(m_panel->text("linePressureNumber"), QString("1013.3"));
    QVERIFY(!m_panel->isVisible("banner"));
}

void PanelTest::adoptsDocument()
{
    QVERIFY(!m_panel->isVisible("banner"));
    QVERIFY(m_service->change("units.json", R"("en": "%RH")", R"("en": "% rel")"));
    QVERIFY(m_panel->waitFor("humidityUnit", "% rel"));
    QVERIFY(m_panel->waitFor("banner", "New configuration adopted"));
    QVERIFY(m_panel->waitFor("state", "Connected"));
    QVERIFY(m_panel->picture().save(PANEL_PICTURES "/adopted.png"));
}

void PanelTest::reportsRefusedDocument()
{
    QVERIFY(m_service->change("units.json", R"("RelHumidity": {)", R"("RelHumidity": )"));
    const QString reason = R"(units.json:157:25: expected "," or "}")";
    QVERIFY(m_panel->waitFor("banner", "Configuration refused: " + reason));
    QCOMPARE(m_panel->text("state"), QString("Connected"));
    QCOMPARE(m_panel->text("humidityNumber"), QString("45.7"));
    QCOMPARE(m_panel->clippedTexts().join('\n'), QString());
    QVERIFY(m_panel->picture().save(PANEL_PICTURES "/refused.png"));
    m_panel->click("language-fr");
    QCOMPARE(m_panel->text("banner"), "Configuration refusée : " + reason);
    QCOMPARE(m_panel->clippedTexts().join('\n'), QString());

    QVERIFY(m_service->change("units.json", R"("fr": "% HR")", R"("fr": "% rel")"));
    QVERIFY(m_panel->waitFor("humidityUnit", "% rel"));
    QVERIFY(m_panel->waitFor("banner", "Nouvelle configuration adoptée"));
}

void PanelTest::forgetsChosenUnitThatIsGone()
{
    m_panel->click("linePressureUnit");
    m_panel->click("chooseTorr");
    QCOMPARE(m_panel->text("linePressureUnit"), QString("Torr"));
    QVERIFY(m_service->change("units.json", R"("Torr": {)", R"("OtherTorr": {)"));
    QVERIFY(m_panel->waitFor("linePressureUnit", "hPa"));
    QCOMPARE(m_panel->text("linePressureNumber"), QString("1013.3"));
}

void PanelTest::savesPictures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("language");
    for (const QSize size : {QSize(800, 480), QSize(1920, 1080)}) {
        for (const QString language : {"en", "de", "fr"})
            QTest::addRow("%dx%d-%s", size.width(), size.height(), qPrintable(language)) << size << language;
    }
}

void PanelTest::savesPictures()
{
    QFETCH(QSize, size);
    QFETCH(QString, language);
    m_panel.reset();
    m_panel = std::make_unique<DrivenPanel>(size);
    QVERIFY(m_panel->waitFor("state", "Connected"));
    m_panel->click("language-" + language);
    QCOMPARE(m_panel->clippedTexts().join('\n'), QString());
    const QString file = QString(PANEL_PICTURES "/%1.png").arg(QTest::currentDataTag());
    QVERIFY(m_panel->picture().save(file));
    QCOMPARE(QImage(file).size(), size);

    m_panel->click("linePressureUnit");
    QCOMPARE(m_panel->texts("choose").size(), 14);
    QCOMPARE(m_panel->clippedTexts().join('\n'), QString());
    QVERIFY(m_panel->picture().save(QString(PANEL_PICTURES "/chooser-%1.png").arg(QTest::currentDataTag())));
}

int main(int argc, char** argv)
{
    const PanelApplication application(argc, argv);
    PanelTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PanelTest.moc"
