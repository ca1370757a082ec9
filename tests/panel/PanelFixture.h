#pragma once

#include <QtCore/QObject>
#include <QtGui/QGuiApplication>

#include <memory>

#include "DrivenPanel.h"
#include "ShippedService.h"

/// An application without display and GPU.
class PanelApplication
{
public:
    PanelApplication(int& argc, char** argv);

private:
    std::unique_ptr<QGuiApplication> m_application;
};

/// A test with a panel at 800x480 that shows the units of a running service, new for each function.
class PanelFixture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    std::unique_ptr<ShippedService> m_service;
    std::unique_ptr<DrivenPanel> m_panel;
};
