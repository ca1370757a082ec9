#include "Stage.h"

#include <QtCore/QCoreApplication>

#include "Conversion.h"
#include "DBusConnection.h"
#include "WaitUntil.h"

namespace {

QString answerText(bool answer)
{
    return answer ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

Stage::Stage(const Mode& mode, const QString& address, const World& world)
    : m_mode(mode), m_hasBus(world.hasBus), m_service(address, world)
{
    qputenv("DEVICE_BUS", address.toLocal8Bit());
    setCallTimeout(world.callTimeout);
    m_journal.dropMessages();
}

void Stage::setCallTimeout(int milliseconds)
{
    qputenv("DEVICE_BUS_TIMEOUT_MS", QByteArray::number(milliseconds));
}

void Stage::startApplication(const Settings& settings)
{
    m_applications.push_back(Application::create(m_mode, settings));
    m_acting = static_cast<int>(m_applications.size()) - 1;
}

void Stage::switchTo(int index)
{
    m_acting = index;
}

void Stage::init(const Settings& settings)
{
    application().init(settings);
}

void Stage::reset()
{
    application().reset();
}

void Stage::destroy()
{
    m_applications.at(static_cast<std::size_t>(m_acting)).reset();
}

void Stage::check()
{
    const bool isIdle = pumpAndCheck();
    m_journal.addStep(stepName(QStringLiteral("check")), answerText(isIdle));
}

void Stage::check(int count)
{
    int idle = 0;
    for (int i = 0; i < count; ++i)
        idle += pumpAndCheck() ? 1 : 0;
    m_journal.addStep(stepName(QStringLiteral("%1 checks").arg(count)), QStringLiteral("%1 true").arg(idle));
}

void Stage::checkUntilIdle()
{
    const bool isIdle = waitUntil([this] { return pumpAndCheck(); });
    m_journal.addStep(stepName(QStringLiteral("until idle")), answerText(isIdle));
}

void Stage::checkUntilChanged()
{
    const bool hasChanged = waitUntil([this] {
        pumpAndCheck();
        return application().hasChanged().value_or(false);
    });
    m_journal.addStep(stepName(QStringLiteral("until changed")), answerText(hasChanged));
}

void Stage::checkUntilEntered(const QString& state)
{
    const bool isReached = waitUntil([this, &state] {
        if (!m_journal.events().contains(state))
            pumpAndCheck();
        return m_journal.events().contains(state);
    });
    m_journal.addStep(stepName(QStringLiteral("until ") + state), answerText(isReached));
}

void Stage::checkUntilSettled()
{
    int quietChecks = 0;
    const bool isSettled = waitUntil([this, &quietChecks] {
        const int enteredBefore = m_journal.enteredStates();
        const bool isQuiet = pumpAndCheck() && m_journal.enteredStates() == enteredBefore;
        quietChecks = isQuiet ? quietChecks + 1 : 0;
        return quietChecks == 2;
    });
    m_journal.addStep(stepName(QStringLiteral("until settled")), answerText(isSettled));
}

void Stage::askChanged()
{
    if (const std::optional<bool> changed = application().hasChanged())
        m_journal.addAnswer(stepName(QStringLiteral("changed")), answerText(*changed));
}

void Stage::convert()
{
    m_journal.update();
    m_journal.addAnswer(stepName(QStringLiteral("convert")), application().converted());
    // What a conversion logs is not the connector's.
    m_journal.dropMessages();
}

void Stage::askDependents()
{
    if (const std::optional<QString> dependents = application().dependents())
        m_journal.addAnswer(stepName(QStringLiteral("dependents")), *dependents);
}

void Stage::keepUnits()
{
    m_kept.append(application().units());
}

void Stage::convertByKept()
{
    m_journal.update();
    for (const QSharedPointer<const UnitManagerDevice>& units : qAsConst(m_kept))
        m_journal.addAnswer(QStringLiteral("kept"), Conversion::by(units));
    m_journal.dropMessages();
}

void Stage::startModule(const QString& module)
{
    if (!m_service.start(module))
        m_journal.addAnswer(QStringLiteral("start of ") + module, QStringLiteral("failed"));
    synchronize();
}

void Stage::stopModule(const QString& module)
{
    if (!m_service.stop(module, DBusConnection::getQDBusConnection()))
        m_journal.addAnswer(QStringLiteral("end of ") + module, QStringLiteral("failed"));
}

void Stage::announce(const SourceName& name, const QVariantList& arguments, int count)
{
    if (!m_service.announce(name, arguments, count))
        m_journal.addAnswer(QStringLiteral("announcement"), QStringLiteral("failed"));
    synchronize();
}

void Stage::release(const SourceName& name)
{
    synchronize();
    m_service.release(name);
    synchronize();
}

QStringList Stage::takeRecord()
{
    synchronize();
    m_applications.clear();
    QStringList lines = m_journal.takeLines();
    for (const QString& read : m_service.reads())
        lines.append(QLatin1String("read ") + read);
    return lines + m_journal.messages();
}

Application& Stage::application()
{
    return *m_applications.at(static_cast<std::size_t>(m_acting));
}

bool Stage::pumpAndCheck()
{
    deliver();
    return application().check();
}

void Stage::deliver()
{
    if (m_mode.changes == Mode::Delivered)
        QCoreApplication::processEvents();
}

void Stage::synchronize()
{
    if (m_hasBus)
        m_service.synchronize(DBusConnection::getQDBusConnection());
}

QString Stage::stepName(const QString& step) const
{
    return m_acting == 0 ? step : QStringLiteral("application %1 %2").arg(m_acting + 1).arg(step);
}
