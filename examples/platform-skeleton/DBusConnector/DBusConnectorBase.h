#pragma once

#include <QtCore/QObject>

class DBusConnectorBase : public QObject
{
    Q_OBJECT

public:
    bool isDBusInterfaceValid() const;
};
