#pragma once

#include <QtCore/QVariant>

class DBusReply
{
public:
    DBusReply();

    bool isError() const;
    QVariant getValue() const;
};
