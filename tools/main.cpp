#include <QtCore/QCoreApplication>
#include <QtCore/QTextCodec>

#include "CommandLine.h"
#include "Console.h"
#include "MessageFilter.h"

int main(int argc, char* argv[])
{
    // Treat arguments and file names as UTF-8, even if the locale only knows ASCII.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QCoreApplication application(argc, argv);
    MessageFilter::install();
    return Console::finish(CommandLine().run(QCoreApplication::arguments().mid(1)));
}
