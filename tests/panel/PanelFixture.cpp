#include "PanelFixture.h"

#include <QtTest/QTest>

PanelApplication::PanelApplication(int& argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Panel::useSoftwareRenderer();
    m_application = std::make_unique<QGuiApplication>(argc, argv);
}

void PanelFixture::init()
{
    m_service = std::make_unique<ShippedService>();
    QVERIFY(m_service->startBus());
    QVERIFY(m_service->start());
    m_panel = std::make_unique<DrivenPanel>();
    QVERIFY(m_panel->waitFor("state", "Connected"));
}

void PanelFixture::cleanup()
{
    m_panel.reset();
    m_service.reset();
}
