#include "ProcessValues.h"

#include <cmath>

namespace {

const double fullCircle = 6.283185307179586;

} // namespace

ProcessValues::ProcessValues()
{
    while (m_history.size() < historyLength())
        advance();
}

void ProcessValues::advance()
{
    m_step = (m_step + 1) % historyLength();
    m_history.append(linePressure());
    if (m_history.size() > historyLength())
        m_history.removeFirst();
    Q_EMIT changed();
}

double ProcessValues::deviation(int cycles) const
{
    return std::sin(fullCircle * (m_step * cycles % historyLength()) / historyLength());
}

double ProcessValues::linePressure() const
{
    return 1.01325 + 0.02 * deviation(2) + 0.006 * deviation(7) + 0.001 * deviation(53);
}

double ProcessValues::dewPoint() const
{
    return -40.25 + 1.5 * deviation(1);
}

double ProcessValues::humidity() const
{
    return 45.678 + 4.0 * deviation(2);
}

double ProcessValues::supplyPressure() const
{
    return 6.5 + 0.02 * deviation(3);
}

QVariantList ProcessValues::linePressureHistory() const
{
    return m_history;
}

int ProcessValues::historyLength() const
{
    return 240;
}

double ProcessValues::period() const
{
    return 0.5;
}
