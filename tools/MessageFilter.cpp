#include "MessageFilter.h"

#include <QtCore/QString>

#include "Console.h"

namespace {

bool verbose = false;

void filter(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (verbose || type == QtFatalMsg)
        Console::printError(message);
}

} // namespace

void MessageFilter::install()
{
    qInstallMessageHandler(filter);
}

void MessageFilter::setVerbose()
{
    verbose = true;
}
