#include <QtCore/QCommandLineParser>
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>

#include "Panel.h"

namespace {

QSize sizeFrom(const QString& text)
{
    const QStringList parts = text.split('x');
    return {parts.value(0).toInt(), parts.value(1).toInt()};
}

/// Saves a picture of the panel, and ends the program.
void saveScreenshot(const Panel& panel, const QString& file)
{
    const auto picture = panel.picture();
    QObject::connect(picture.data(), &QQuickItemGrabResult::ready, &panel, [picture, file] {
        QCoreApplication::exit(qAsConst(*picture).saveToFile(file) ? 0 : 1);
    });
}

} // namespace

int main(int argc, char* argv[])
{
    Panel::useSoftwareRenderer();
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("A device panel: shows process values in the units of the running "
                                     "configuration service, and follows its changes.");
    parser.addHelpOption();
    const QCommandLineOption language("language", "en, de or fr.", "LANGUAGE", "en");
    const QCommandLineOption size("size", "Size of the window.", "WIDTHxHEIGHT", "800x480");
    const QCommandLineOption screenshot("screenshot", "Save a picture of the panel, and end.", "FILE");
    parser.addOptions({language, size, screenshot});
    parser.process(application);
    if (!sizeFrom(parser.value(size)).isValid() || sizeFrom(parser.value(size)).isEmpty()) {
        qCritical("panel: --size is not WIDTHxHEIGHT, such as 800x480");
        return 2;
    }

    Panel panel(parser.value(language), sizeFrom(parser.value(size)));
    if (panel.window().status() != QQuickView::Ready)
        return 1;
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, panel.process(), &ProcessValues::advance);
    if (parser.isSet(screenshot))
        QObject::connect(&panel, &Panel::unitsAvailable, &panel,
                         [&] { saveScreenshot(panel, parser.value(screenshot)); });
    else
        clock.start(static_cast<int>(1000 * panel.process()->period()));
    return QGuiApplication::exec();
}
