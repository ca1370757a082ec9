#include "ServiceFixture.h"

#include <QtTest/QTest>

void ServiceFixture::init()
{
    m_service = std::make_unique<ConfigurationService>();
    QVERIFY(m_service->start());
}

void ServiceFixture::cleanup()
{
    m_service.reset();
}
