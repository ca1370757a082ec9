#pragma once

#include <QtCore/QObject>

#include <memory>

#include "ConfigurationService.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

/// Base of the tests that compare a wrapper that has loaded the units with one that has not.
class TwoWrappersFixture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

protected:
    std::unique_ptr<UnitManagerWrapper> m_units;
    std::unique_ptr<UnitManagerWrapper> m_noUnits;

private:
    ConfigurationService m_service;
};
