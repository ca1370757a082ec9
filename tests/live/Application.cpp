#include "Application.h"

#include "ConnectorApplication.h"
#include "MachineApplication.h"
#include "WrapperApplication.h"

std::unique_ptr<Application> Application::create(const Mode& mode, const Settings& settings)
{
    switch (mode.level) {
    case Mode::Wrapper:
        return std::make_unique<WrapperApplication>(mode, settings);
    case Mode::Connector:
        return std::make_unique<ConnectorApplication>(mode, settings);
    case Mode::Machine:
        return std::make_unique<MachineApplication>(mode, settings);
    }
    return nullptr;
}
