// Preloaded into the programs of the documentation that have a window: uses it as a person does, and closes
// it. The variable WINDOW_STEPS lists what to do, one step a line:
//
//     text TEXT     wait until an item of a window shows the text
//     choose INDEX  select an entry of the first list to choose from
//     run COMMAND   run a command of the shell
//     type TEXT     replace the text of the first edit field, and leave it
//
// The program's exit code is 1 if a text does not appear.

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtCore/QVariant>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <cstdio>

#include "WaitLimit.h"

namespace {

/// Everything in the windows of the program, of whichever user interface.
QList<QObject*> items()
{
    QList<QObject*> found;
    for (const QWindow* window : QGuiApplication::topLevelWindows())
        found += window->findChildren<QObject*>();
    if (qobject_cast<QApplication*>(QCoreApplication::instance())) {
        for (const QWidget* window : QApplication::topLevelWidgets())
            found += window->findChildren<QObject*>();
    }
    return found;
}

/// The first item that a person can use and that has the property.
QObject* firstWith(const char* property)
{
    for (QObject* item : items()) {
        if (item->property(property).isValid() && item->property("enabled").toBool())
            return item;
    }
    return nullptr;
}

bool isShown(const QString& text)
{
    for (const QObject* item : items()) {
        if (item->property("text") == text && item->property("visible").toBool())
            return true;
    }
    return false;
}

class Driver : public QObject
{
public:
    Driver() : m_steps(qEnvironmentVariable("WINDOW_STEPS").split('\n'))
    {
        startTimer(20);
        QTimer::singleShot(waitLimit, [this] {
            std::fprintf(stderr, "not done: %s\n", qUtf8Printable(m_steps.value(0)));
            QCoreApplication::exit(1);
        });
    }

protected:
    void timerEvent(QTimerEvent*) override
    {
        if (m_steps.isEmpty())
            QCoreApplication::exit(0);
        else if (isDone(m_steps.first().section(' ', 0, 0), m_steps.first().section(' ', 1)))
            m_steps.removeFirst();
    }

private:
    static bool isDone(const QString& verb, const QString& argument)
    {
        if (verb == "text")
            return isShown(argument);
        if (verb == "choose") {
            QObject* const list = firstWith("currentText");
            return list && list->setProperty("currentIndex", argument.toInt()) &&
                   QMetaObject::invokeMethod(list, "activated", Q_ARG(int, argument.toInt()));
        }
        if (verb == "run")
            return QProcess::execute("sh", {"-c", argument}) == 0;
        QObject* const field = verb == "type" ? firstWith("selectedText") : nullptr;
        return field && field->setProperty("text", argument) &&
               QMetaObject::invokeMethod(field, "editingFinished");
    }

    QStringList m_steps;
};

void drive()
{
    // Also loaded by other programs that the test starts.
    if (!qEnvironmentVariableIsEmpty("WINDOW_STEPS"))
        new Driver;
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(drive)
