#pragma once

#include <QtCore/QProcess>

/// A process that ends with this object, and with the test, even when that crashes.
class ChildProcess : public QProcess
{
public:
    ~ChildProcess() override;

protected:
    void setupChildProcess() override;
};
