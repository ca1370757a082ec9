#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QThread>

/// Collects what a platform does wrong.
class Faults
{
public:
    /// Notes @p expectation as a fault unless it holds.
    void expect(bool holds, const QString& expectation);
    const QStringList& list() const;

private:
    QStringList m_faults;
};

/// One part of the contract.
struct Check
{
    QString name;
    /// The platform's operations that it uses, demangled.
    QStringList operations;
    void (*run)(Faults& faults);
};

/// Longest time in milliseconds in which the platform has to answer when no service is present.
constexpr int answerLimit = 2000;

/// Waits until `condition()` is true, without an event loop. @return false if it is not within five seconds.
template <typename Condition>
bool becomesTrue(Condition condition)
{
    const QDeadlineTimer deadline(5000);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(1);
    }
    return true;
}

QList<Check> treeChecks();
QList<Check> valueChecks();
QList<Check> tableChecks();
QList<Check> supportChecks();
QList<Check> stateMachineChecks();
QList<Check> sourceChecks();
QList<Check> processDataChecks();
QList<Check> dependencyChecks();
