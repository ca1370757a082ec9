#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtQml/QQmlEngine>

#include <memory>

/// A Units object of the QML module, with identifiers for the expressions of the tests: `pressure`,
/// `fixedBar`, `temperature`, `humidity`, `resistance`, `noUnit` and `unknown`. Its binding `shown` has
/// counted its evaluations in `evaluations`.
class LoadedUnits
{
public:
    /// Loads the module of the build, or that of the folder that UNITMANAGER_QML_DIR names in the
    /// environment. Ends the program if it cannot be loaded.
    LoadedUnits();

    /// The value of a JavaScript expression in the scope of the object; the text of an exception.
    QVariant evaluate(const QString& expression);
    /// Runs the event loop until the expression has the value. @return false if it has not within a minute
    bool waitFor(const QString& expression, const QVariant& value);

private:
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_units;
};
