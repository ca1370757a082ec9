#pragma once

#include <QtCore/QProcess>

/// A process that ends with this object, and with the test, even if the test crashes.
class ChildProcess : public QProcess
{
public:
    ~ChildProcess() override;

protected:
    void setupChildProcess() override;
};
