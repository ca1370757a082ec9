#include "Mode.h"

namespace {

QString levelName(Mode::Level level)
{
    switch (level) {
    case Mode::Wrapper:
        return QStringLiteral("wrapper");
    case Mode::Connector:
        return QStringLiteral("connector");
    case Mode::Machine:
        return QStringLiteral("machine");
    }
    return {};
}

} // namespace

QString Mode::name() const
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(isBlocking ? QLatin1String("blocking") : QLatin1String("asynchronous"),
             isPolled ? QLatin1String("polled") : QLatin1String("delivered"), levelName(level),
             isDeferred ? QLatin1String("deferred") : QLatin1String("immediate"));
}
