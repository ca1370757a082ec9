#include "DeviceBusEnvironment.h"

void useDeviceBus(const QString& address, int callTimeout)
{
    qputenv("DEVICE_BUS", address.toLocal8Bit());
    setCallTimeout(callTimeout);
}

bool startDeviceBus(PrivateBus& bus, int callTimeout)
{
    useDeviceBus(bus.address(), callTimeout);
    return bus.start();
}

void setCallTimeout(int milliseconds)
{
    qputenv("DEVICE_BUS_TIMEOUT_MS", QByteArray::number(milliseconds));
}
