#pragma once

#include <QtCore/QObject>

#include <memory>

#include "ConfigurationService.h"

/// Base of the tests that need the configuration-file service: each test function gets a new service on a new
/// bus.
class ServiceFixture : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    std::unique_ptr<ConfigurationService> m_service;
};
