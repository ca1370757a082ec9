// Registers the creators of the connector's states when the library is loaded.

#include "StateMachineStateBase.h"
#include "UnitConversion/Factory.h"
#include "UnitManagerConnector/UnitManagerConnectorStateError.h"
#include "UnitManagerConnector/UnitManagerConnectorStateIdle.h"
#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"
#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationASynchron.h"
#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationSynchron.h"
#include "UnitManagerConnector/UnitManagerConnectorStateUpdate.h"
#include "UnitManagerConnector/UnitManagerConnectorStateWaitForReply.h"

namespace {

struct StateRegistration
{
    StateRegistration()
    {
        registerState<UnitManagerConnectorStateInitial>();
        registerState<UnitManagerConnectorStateReadConfigurationASynchron>();
        registerState<UnitManagerConnectorStateReadConfigurationSynchron>();
        registerState<UnitManagerConnectorStateError>();
        registerState<UnitManagerConnectorStateIdle>();
        registerState<UnitManagerConnectorStateUpdate>();
        registerState<UnitManagerConnectorStateWaitForReply>();
    }

private:
    template <typename State>
    void registerState()
    {
        VESKFactories::Factory<StateMachineStateBase, QObject*>::instance().registerClass<State>(
            VESKFactories::createFactoryKey<State>());
    }
};

const StateRegistration registration;

} // namespace
