#include "DocumentService.h"

#include <QtCore/QMutexLocker>
#include <QtDBus/QDBusConnection>

#include "DBusConnection.h"
#include "FakeBusService.h"
#include "TestDocuments.h"

namespace {

const QString serviceName = QStringLiteral("org.measuringdevice.DeviceManager");

struct Source
{
    QString path;
    QString operation;
    QString name;
};

Source sourceOf(DocumentService::Document document)
{
    switch (document) {
    case DocumentService::Units:
        return {"/UnitManagerConfiguration", "getConfiguration", "UnitManager/UnitType"};
    case DocumentService::DefaultUnits:
        return {"/DefaultUnitConfiguration", "getConfiguration", "UnitManager/DefaultUnit"};
    case DocumentService::Dependencies:
        return {"/DependencyConfiguration", "getConfigurationDependency", "UnitManager/Dependency"};
    }
    return {};
}

} // namespace

DocumentService::DocumentService(const QString& address)
{
    replace(Units, TestDocuments::units());
    replace(DefaultUnits, TestDocuments::defaultUnits());
    replace(Dependencies, QStringLiteral(R"({ "Value": ["Dependent"] })"));
    const auto answer = [this](const QDBusMessage& call) {
        const QMutexLocker locker(&m_mutex);
        return call.createReply(m_answers.value(call.path(), QString()));
    };
    m_service = std::make_unique<FakeBusService>(address, serviceName, answer);
}

DocumentService::~DocumentService() = default;

bool DocumentService::isRunning() const
{
    return m_service->isRunning();
}

void DocumentService::replace(Document document, const QVariant& answer)
{
    const QMutexLocker locker(&m_mutex);
    m_answers.insert(sourceOf(document).path, answer);
}

bool DocumentService::announce(Document document) const
{
    const Source source = sourceOf(document);
    if (!m_service->sendSignal(source.path, QStringLiteral("configurationChanged"), {source.name}))
        return false;
    // The reply uses the same connection as the signal and therefore arrives after it.
    const QDBusMessage call =
        QDBusMessage::createMethodCall(serviceName, "/Nowhere", QString(), "hasSignalArrived");
    return DBusConnection::getQDBusConnection().call(call).type() == QDBusMessage::ReplyMessage;
}

QStringList DocumentService::requests() const
{
    QStringList requests;
    for (const QDBusMessage& call : m_service->calls()) {
        const QMutexLocker locker(&m_mutex);
        if (m_answers.contains(call.path()))
            requests.append(call.path() + ' ' + call.member() + ' ' + call.arguments().value(0).toString());
    }
    requests.sort();
    return requests;
}

QStringList DocumentService::readsOf(const QList<Document>& documents)
{
    QStringList requests;
    for (const Document document : documents) {
        const Source source = sourceOf(document);
        requests.append(source.path + ' ' + source.operation + ' ' + source.name);
    }
    requests.sort();
    return requests;
}
