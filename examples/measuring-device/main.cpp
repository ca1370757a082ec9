#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include "MeasuringDevice.h"

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A minimal device application: shows process values in the units of the "
                       "running configuration service, and follows its changes."));
    parser.addHelpOption();
    const QCommandLineOption language(QStringLiteral("language"), QStringLiteral("Language of the labels."),
                                      QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    const QCommandLineOption changes(QStringLiteral("changes"),
                                     QStringLiteral("End after that many changes."), QStringLiteral("COUNT"));
    parser.addOptions({language, changes});
    parser.process(application);

    MeasuringDevice device(parser.value(language));
    const int configurations = parser.isSet(changes) ? parser.value(changes).toInt() + 1 : -1;
    QTimer loop;
    QObject::connect(&loop, &QTimer::timeout, [&device, configurations] {
        device.poll();
        if (device.adoptedConfigurations() == configurations)
            QCoreApplication::quit();
    });
    loop.start(20);
    return QCoreApplication::exec();
}
