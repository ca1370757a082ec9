#include "Checks.h"

void Faults::expect(bool holds, const QString& expectation)
{
    if (!holds)
        m_faults.append(expectation);
}

const QStringList& Faults::list() const
{
    return m_faults;
}
