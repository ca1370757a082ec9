#pragma once

#include <QtCore/QVariant>

#include "ErrorContainer.h"

class DBusPendingReply
{
public:
    /// @return 0 arrived, 1 failed, 2 outstanding.
    int isFinished(ErrorContainer& error) const;
    QVariant getReply() const;
};
