#include "TwoWrappersFixture.h"

#include <QtTest/QTest>

#include "WrapperSetup.h"

void TwoWrappersFixture::initTestCase()
{
    using namespace WrapperSetup;
    QVERIFY(m_service.start());
    m_units = create(AllNames, Blocking, Delivered);
    QVERIFY(*m_units);
    m_noUnits = createUnused();
    QVERIFY(!*m_noUnits);
}
