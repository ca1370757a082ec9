#include <QtQml/QQmlEngine>
#include <QtQml/QQmlExtensionPlugin>

#include "UnitSource.h"

/// The QML module UnitManager.
class UnitManagerPlugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override
    {
        qmlRegisterType<UnitSource>(uri, 1, 0, "UnitSource");
    }
};

#include "UnitManagerPlugin.moc"
