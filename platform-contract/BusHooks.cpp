// Hooks for a platform whose documents come from a service on the session bus. Run the program on a bus of
// its own: dbus-run-session -- platform-contract

#include <QtCore/QThread>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

#include <limits>
#include <memory>

#include "DeviceManagerDefinitions.h"
#include "ProcessDataValue.h"
#include "PropertyManagerConst.h"
#include "VendorHooks.h"

namespace {

const QString connectionName = QStringLiteral("platform-contract");
const QString rootPath = QStringLiteral("/");

/// Answers every call to every object with one text.
class Answers : public QDBusVirtualObject
{
public:
    explicit Answers(const QString& text) : m_text(text) {}

    QString introspect(const QString& /*path*/) const override
    {
        return {};
    }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        return connection.send(message.createReply(m_text));
    }

private:
    const QString m_text;
};

/// A service with its own connection and thread, so that it answers while the checks block.
class Service
{
public:
    explicit Service(const QString& text) : m_answers(text)
    {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName);
        const bool isRegistered = bus.registerVirtualObject(rootPath, &m_answers, QDBusConnection::SubPath);
        m_answers.moveToThread(&m_thread);
        m_thread.start();
        m_isRunning =
            isRegistered && bus.registerService(PropertyManagerConst::getDBusPrefix() + QLatin1Char('.') +
                                                DeviceManagerDefinitions::getModuleName());
    }
    ~Service()
    {
        QDBusConnection(connectionName).unregisterObject(rootPath, QDBusConnection::UnregisterTree);
        QDBusConnection::disconnectFromBus(connectionName);
        m_thread.quit();
        m_thread.wait();
    }
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    bool isRunning() const
    {
        return m_isRunning;
    }

private:
    QThread m_thread;
    Answers m_answers;
    bool m_isRunning = false;
};

std::unique_ptr<Service> service;

} // namespace

QVariant VendorHooks::noInputMarker()
{
    return std::numeric_limits<double>::quiet_NaN();
}

QSharedPointer<ProcessDataValue> VendorHooks::createProcessData(const QString& unitType)
{
    return QSharedPointer<ProcessDataValue>::create(unitType);
}

bool VendorHooks::startSource(const QString& /*object*/, const QString& /*configuration*/,
                              const QString& text)
{
    service = std::make_unique<Service>(text);
    return service->isRunning();
}

void VendorHooks::announceChange(const QString& object, const QString& configuration)
{
    QDBusMessage signal = QDBusMessage::createSignal(rootPath + object,
                                                     PropertyManagerConst::getDBusPrefix() +
                                                         QStringLiteral(".ConfigurationFileHandler"),
                                                     QStringLiteral("configurationChanged"));
    signal.setArguments({configuration});
    QDBusConnection(connectionName).send(signal);
}

void VendorHooks::stopSource()
{
    service.reset();
}
