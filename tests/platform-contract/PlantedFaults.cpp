// Ten faults of a platform. A program's own functions take precedence over those of a library: these replace
// the platform's functions that the checks call.

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

#include <dlfcn.h>

#include <cmath>

#include "Array2dDataTypeWrapper.h"
#include "Checks.h"
#include "ConfigurationAndProcessDataParser.h"
#include "ConfigurationAndProcessDataTools.h"
#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusConnectionSignalPollingHandler.h"
#include "DBusReply.h"
#include "DeviceManagerDefinitions.h"
#include "FloatRound.h"
#include "TranslateableTextHelper.h"
#include "hashFromString.h"

namespace {

/// The platform's function that a symbol of this program replaces.
template <typename Function>
Function* next(const char* symbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
}

using Connector = ConfigurationFileHandlerDBusConnector;
using PollingHandler = DBusConnectionSignalPollingHandler;

} // namespace

// The last parameter is the last column instead of the number of columns.
QList<QVariant> Array2dDataTypeWrapper::getRowValues(unsigned int row, unsigned int firstColumn,
                                                     unsigned int lastColumn) const
{
    return getRowValues(row).mid(static_cast<int>(firstColumn), static_cast<int>(lastColumn - firstColumn));
}

// Each thread has a marker of its own.
bool ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(const QVariant& value)
{
    static auto* const original = next<bool(const QVariant&)>(
        "_ZN32ConfigurationAndProcessDataTools26isNoInputValueIndicatorSetERK8QVariant");
    const bool isMainThread = QThread::currentThread() == QCoreApplication::instance()->thread();
    return isMainThread ? original(value) : value == QVariant(-999.0);
}

// Signals are received in an event loop only.
bool DBusConnectionSignalPollingHandler::isSignalOccured()
{
    static auto* const original =
        next<bool(PollingHandler*)>("_ZN34DBusConnectionSignalPollingHandler15isSignalOccuredEv");
    return QThread::currentThread()->loopLevel() > 0 && original(this);
}

// Waits for an unknown module.
QSharedPointer<Connector> Connector::createAndConnect(const QString& service, const QString& object)
{
    static auto* const original = next<QSharedPointer<Connector>(const QString&, const QString&)>(
        "_ZN37ConfigurationFileHandlerDBusConnector16createAndConnectERK7QStringS2_");
    if (service != DeviceManagerDefinitions::getModuleName())
        QThread::msleep(answerLimit + 1);
    return original(service, object);
}

// No tree is ever released.
BaseClassSharedPointer ConfigurationAndProcessDataParser::parseFromJson(const QString& json,
                                                                        const QString& fileExtension) const
{
    using Function =
        BaseClassSharedPointer(const ConfigurationAndProcessDataParser*, const QString&, const QString&);
    static auto* const original =
        next<Function>("_ZNK33ConfigurationAndProcessDataParser13parseFromJsonERK7QStringS2_");
    static QList<BaseClassSharedPointer> kept;
    kept.append(original(this, json, fileExtension));
    return kept.last();
}

// A value of a missing node counts as written.
int ConfigurationAndProcessDataTools::setConfigValueWithStatus(const QString& key,
                                                               const BaseClassSharedPointer& node,
                                                               const QVariant& value)
{
    using Function = int(const QString&, const BaseClassSharedPointer&, const QVariant&);
    static auto* const original =
        next<Function>("_ZN32ConfigurationAndProcessDataTools24setConfigValueWithStatusERK7QStringRK"
                       "14QSharedPointerI31ConfigurationAndProcessDataBaseERK8QVariant");
    return node && node->getChild(key) ? original(key, node, value) : 0;
}

// Digits are cut off.
double FloatRound::roundValue(double value, unsigned int decimalPlaces)
{
    const double scale = std::pow(10.0, decimalPlaces);
    return std::trunc(value * scale) / scale;
}

// The same text has another number each time.
unsigned int hashFromString(const QVariant& /*text*/)
{
    static unsigned int hash = 0;
    return ++hash;
}

// A missing language has no text.
QString TranslateableTextHelper::getText(const QString& language) const
{
    return getTranslateableTextObject().toMap().value(language).toString();
}

// A reply that was never received is not an error.
bool DBusReply::isError() const
{
    return false;
}
