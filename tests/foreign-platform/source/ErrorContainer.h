#pragma once

#include <QtCore/QString>

/// Why a read failed; an empty text: it did not.
class ErrorContainer
{
public:
    ErrorContainer();
    explicit ErrorContainer(const QString& reason);

    QString getReason() const;

private:
    QString m_reason;
};
