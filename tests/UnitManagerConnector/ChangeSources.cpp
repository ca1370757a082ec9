#include "ChangeSources.h"

#include <QtTest/QTest>

#include "MessageText.h"

using Definitions = UnitManagerConnectorDefinitions;

const char* ChangeSources::nameOf(Type type)
{
    const char* const names[] = {"unit switch", "dependency file", "default unit"};
    return names[type];
}

void ChangeSources::addModes()
{
    QTest::addColumn<bool>("polling");
    QTest::newRow("signals delivered") << false;
    QTest::newRow("signals polled") << true;
}

void ChangeSources::addModesAndSources()
{
    QTest::addColumn<bool>("polling");
    QTest::addColumn<Type>("type");
    for (const Type type : all) {
        QTest::addRow("%s, signals delivered", nameOf(type)) << false << type;
        QTest::addRow("%s, signals polled", nameOf(type)) << true << type;
    }
}

ChangeSources::Status ChangeSources::subscribe(DBusConfigurationChangeSignalHandling& handling, Type type)
{
    switch (type) {
    case Definitions::UnitSwitch:
        return handling.connectUnitSwitchChangeFlag();
    case Definitions::DependencyFile:
        return handling.connectDependencyFileChangeFlag();
    case Definitions::DefaultUnit:
        return handling.connectDefaultUnitChangeFlag();
    }
    return Definitions::NotConfigured;
}

bool ChangeSources::subscribeAll(DBusConfigurationChangeSignalHandling& handling)
{
    bool areConnected = true;
    for (const Type type : all)
        areConnected = subscribe(handling, type) == Definitions::Connected && areConnected;
    return areConnected;
}

void ChangeSources::report(DBusConfigurationChangeSignalHandling& handling, Type type,
                           const QString& instanceName)
{
    switch (type) {
    case Definitions::UnitSwitch:
        return handling.unitSwitchConfigurationFileChange(instanceName);
    case Definitions::DependencyFile:
        return handling.dependencyFileChanged(instanceName);
    case Definitions::DefaultUnit:
        return handling.defaultUnitFileChange(instanceName);
    }
}

QStringList ChangeSources::takeMessages(LogCapture& log)
{
    QList<LoggedMessage> messages = log.take();
    for (LoggedMessage& message : messages)
        message.function = message.function.mid(message.function.indexOf(QLatin1Char(' ')) + 1);
    return messageTexts(messages, LineNumbers::Any);
}

QString ChangeSources::messageOf(QtMsgType level, const QString& function, const QString& text)
{
    return messageText(
        {level, text, QStringLiteral("UnitManagerConnector/DBusConfigurationChangeSignalHandling"), anyLine,
         QStringLiteral("DBusConfigurationChangeSignalHandling::") + function, QStringLiteral("default")});
}
