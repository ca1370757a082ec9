#include "PanelFixture.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include "Row.h"

/// The edit field of the device panel.
class PanelEditTest : public PanelFixture
{
    Q_OBJECT

private Q_SLOTS:
    void writesTypedValue_data();
    void writesTypedValue();
    void refusesTypedText_data();
    void refusesTypedText();
    void keepsUneditedValue();
    void keepsValueWhenTextIsRestored();
    void keepsUnitOfEditing();
    void discardsEditing();
};

void PanelEditTest::writesTypedValue_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<double>("stored");

    row("point", QString("en"), QString("1050.25"), QString("1050.3"), 1.05025);
    row("comma", QString("de"), QString("1050,25"), QString("1050,3"), 1.05025);
    row("French comma", QString("fr"), QString("0,5"), QString("0,5"), 0.0005);
    row("groups", QString("de"), QString("1.050,25"), QString("1050,3"), 1.05025);
}

void PanelEditTest::writesTypedValue()
{
    QFETCH(QString, language);
    QFETCH(QString, typed);
    m_panel->click("language-" + language);
    m_panel->click("alarmLimitInput");
    m_panel->type(typed);
    QCOMPARE(m_panel->text("alarmLimitInput"), typed);
    QCOMPARE(m_panel->process().property("alarmLimit").toDouble(), 1.0421337);
    m_panel->press(Qt::Key_Return);
    QTEST(m_panel->process().property("alarmLimit").toDouble(), "stored");
    QTEST(m_panel->text("alarmLimitInput"), "shown");
    QVERIFY(!m_panel->isVisible("editError"));
}

void PanelEditTest::refusesTypedText_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("error");

    row("point for a comma", QString("de"), QString("1050.2"),
        QString("Das Dezimalzeichen ist „,“: 1050,2 eingeben."));
    row("ambiguous", QString("de"), QString("1.050"),
        QString("„1.050“ ist mehrdeutig: 1050 oder 1,050 eingeben."));
    row("ambiguous in English", QString("en"), QString("1,050"),
        QString("\"1,050\" is ambiguous: write 1050 or 1.050."));
    row("word", QString("fr"), QString("deux"), QString("« deux » n’est pas un nombre."));
    row("blank", QString("en"), QString(" "), QString("Enter a number."));
}

void PanelEditTest::refusesTypedText()
{
    QFETCH(QString, language);
    QFETCH(QString, typed);
    m_panel->click("language-" + language);
    m_panel->click("alarmLimitInput");
    m_panel->type(typed);
    m_panel->press(Qt::Key_Return);
    QTEST(m_panel->text("editError"), "error");
    QCOMPARE(m_panel->clippedTexts().join('\n'), QString());
    QCOMPARE(m_panel->text("alarmLimitInput"), typed);
    QCOMPARE(m_panel->process().property("alarmLimit").toDouble(), 1.0421337);

    m_panel->press(Qt::Key_Escape);
    QVERIFY(!m_panel->isVisible("editError"));
    QCOMPARE(m_panel->text("alarmLimitInput"), QString(language == "en" ? "1042.1" : "1042,1"));
}

void PanelEditTest::keepsUneditedValue()
{
    QSignalSpy written(&m_panel->process(), &ProcessValues::alarmLimitChanged);
    m_panel->click("alarmLimitInput");
    m_panel->press(Qt::Key_Return);
    m_panel->click("alarmLimitInput");
    m_panel->click("title");
    m_panel->click("language-de");
    m_panel->click("alarmLimitInput");
    m_panel->press(Qt::Key_Return);
    QCOMPARE(written.count(), 0);
    QCOMPARE(m_panel->text("alarmLimitInput"), QString("1042,1"));
}

void PanelEditTest::keepsValueWhenTextIsRestored()
{
    QSignalSpy written(&m_panel->process(), &ProcessValues::alarmLimitChanged);
    m_panel->click("alarmLimitInput");
    m_panel->press(Qt::Key_End);
    m_panel->type("7");
    m_panel->press(Qt::Key_Backspace);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(written.count(), 0);
    // The field follows the unit again.
    m_panel->click("alarmLimitUnit");
    m_panel->click("chooseKiloPascal");
    QCOMPARE(m_panel->text("alarmLimitInput"), QString("104.21"));
}

void PanelEditTest::keepsUnitOfEditing()
{
    m_panel->click("alarmLimitInput");
    m_panel->type("1050");
    QVERIFY(m_service->change("default-units.json", "HectoPascal", "KiloPascal"));
    QVERIFY(m_panel->waitFor("linePressureUnit", "kPa"));
    QCOMPARE(m_panel->text("alarmLimitUnit"), QString("hPa"));
    QCOMPARE(m_panel->text("alarmLimitInput"), QString("1050"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->process().property("alarmLimit").toDouble(), 1.05);
    QCOMPARE(m_panel->text("alarmLimitInput"), QString("105.00"));
    QCOMPARE(m_panel->text("alarmLimitUnit"), QString("kPa"));
}

void PanelEditTest::discardsEditing()
{
    QSignalSpy written(&m_panel->process(), &ProcessValues::alarmLimitChanged);
    m_panel->click("alarmLimitInput");
    m_panel->type("3");
    m_panel->press(Qt::Key_Escape);
    QCOMPARE(m_panel->text("alarmLimitInput"), QString("1042.1"));
    // The refused text would be another number in the other language.
    m_panel->click("alarmLimitInput");
    m_panel->type("1,050");
    m_panel->click("language-de");
    QCOMPARE(m_panel->text("alarmLimitInput"), QString("1042,1"));
    QVERIFY(!m_panel->isVisible("editError"));
    QCOMPARE(written.count(), 0);
}

int main(int argc, char** argv)
{
    const PanelApplication application(argc, argv);
    PanelEditTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PanelEditTest.moc"
