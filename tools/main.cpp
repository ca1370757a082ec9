#include <QtCore/QCoreApplication>
#include <QtCore/QTextCodec>

#include "CommandLine.h"
#include "Console.h"
#include "MessageFilter.h"

int main(int argc, char* argv[])
{
    // Arguments and file names are taken byte for byte, also where the locale knows ASCII only.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QCoreApplication application(argc, argv);
    MessageFilter::install();
    return Console::finish(CommandLine().run(QCoreApplication::arguments().mid(1)));
}
