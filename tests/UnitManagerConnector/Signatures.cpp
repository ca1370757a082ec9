// The signatures that other programs rely on. The test is that this file compiles.

#include <type_traits>

#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusPendingReply.h"
#include "Operation.h"
#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationASynchron.h"
#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationSynchron.h"
#include "UnitManagerConnector/UnitManagerConnectorStateWaitForReply.h"
#include "UnitManagerConnector/UnitManagerDBusConnector.h"

namespace {

using Definitions = UnitManagerConnectorDefinitions;
using Type = Definitions::ConnectorType;
using Status = Definitions::ConnectionStatus;
using Manager = QSharedPointer<UnitManagerDevice>;
using Walker = QSharedPointer<DependencyWalker>;
using Changes = QMap<Type, QString>;
using InitSignature = bool(bool, const QString&, const QString&, const QString&, const QString&,
                           const QString&, const QString&);

template <typename Class, typename... Flags>
constexpr bool isBuiltFromNames =
    std::is_constructible_v<Class, QObject*, Flags..., const QString&, const QString&, const QString&,
                            const QString&, const QString&, const QString&>;

static_assert(hasStaticOperation<const QString&()>(&Definitions::getKeyOptional));
static_assert(hasStaticOperation<const QString&()>(&Definitions::getKeyMandatory));
static_assert(hasStaticOperation<const QString&()>(&Definitions::getKeyConfigurationFile));
static_assert(hasStaticOperation<const QString&()>(&Definitions::getKeyConfigurationDependencyFile));

using Data = UnitManagerConnectionData;
static_assert(isBuiltFromNames<Data, bool, bool, bool>);
static_assert(hasOperation<Data, InitSignature>(&Data::init));
static_assert(hasOperation<Data, bool() const>(&Data::useAsynchronInterface));
static_assert(hasOperation<Data, Status(Type)>(&Data::openConnector));
static_assert(hasOperation<Data, bool() const>(&Data::isConnectedToDBus));
static_assert(hasOperation<Data, bool()>(&Data::updateObjects));
static_assert(hasOperation<Data, bool()>(&Data::resetCachedObjects));
static_assert(hasOperation<Data, bool()>(&Data::resetObject));
static_assert(hasOperation<Data, bool()>(&Data::closeConnections));
static_assert(hasOperation<Data, bool()>(&Data::pollChangeFlags));
static_assert(hasOperation<Data, Changes() const>(&Data::getConfigurationChangeMap));
static_assert(hasOperation<Data, bool(Manager&)>(&Data::initializeUnitManager));
static_assert(hasOperation<Data, bool(Walker&)>(&Data::initializeDependencyWalker));

using Handling = DBusConfigurationChangeSignalHandling;
static_assert(hasOperation<Handling, bool(const QMap<Type, QStringList>&)>(&Handling::init));
static_assert(hasOperation<Handling, Status()>(&Handling::connectUnitSwitchChangeFlag));
static_assert(hasOperation<Handling, Status()>(&Handling::connectDependencyFileChangeFlag));
static_assert(hasOperation<Handling, Status()>(&Handling::connectDefaultUnitChangeFlag));
static_assert(hasOperation<Handling, bool()>(&Handling::pollChangeFlags));
static_assert(hasOperation<Handling, Changes() const>(&Handling::getConfigurationChangeMap));
static_assert(hasOperation<Handling, bool()>(&Handling::resetCachedObjects));
static_assert(hasOperation<Handling, bool()>(&Handling::reset));
static_assert(hasOperation<Handling, bool()>(&Handling::closeDbusConnections));
static_assert(hasOperation<Handling, void(const QString&)>(&Handling::unitSwitchConfigurationFileChange));
static_assert(hasOperation<Handling, void(const QString&)>(&Handling::defaultUnitFileChange));
static_assert(hasOperation<Handling, void(const QString&)>(&Handling::dependencyFileChanged));

using Machine = UnitManagerStateMachineWrapper;
static_assert(isBuiltFromNames<Machine, bool, bool>);
static_assert(hasOperation<Machine, InitSignature>(&Machine::init));
static_assert(hasOperation<Machine, bool()>(&Machine::reset));
static_assert(
    hasOperation<Machine, bool(const QString&, const StateMachineEvent&)>(&Machine::moveToNextState));
static_assert(hasOperation<Machine, QString() const>(&Machine::getCurrentStateIdentifier));
static_assert(hasOperation<Machine, Data*()>(&Machine::getConnectionDataObject));
static_assert(hasOperation<Machine, bool(Walker&)>(&Machine::initializeDependencyWalker));
static_assert(hasOperation<Machine, bool(Manager&)>(&Machine::initializeUnitManager));

using StateBase = UnitManagerConnectorStateBase;
static_assert(hasOperation<StateBase, bool()>(&StateBase::isValid));
static_assert(hasOperation<StateBase, bool()>(&StateBase::operator bool));
using Read = UnitManagerConnectorStateReadConfigurationSynchron;
static_assert(hasOperation<Read, bool(Type)>(&Read::readConfiguration));
using AsynchronousRead = UnitManagerConnectorStateReadConfigurationASynchron;
static_assert(hasOperation<AsynchronousRead, bool(Type)>(&AsynchronousRead::startConfigurationRead));
using Wait = UnitManagerConnectorStateWaitForReply;
static_assert(hasOperation<Wait, int(QSharedPointer<DBusPendingReply>&, QString&)>(&Wait::checkReplyState));

using Connector = UnitManagerDBusConnector;
static_assert(isBuiltFromNames<Connector, bool, bool>);
static_assert(hasOperation<Connector, InitSignature>(&Connector::init));
static_assert(hasOperation<Connector, bool()>(&Connector::isUnitManagerInitialized));
static_assert(hasOperation<Connector, bool()>(&Connector::hasConfigurationChanged));
static_assert(hasOperation<Connector, bool()>(&Connector::reset));
static_assert(hasOperation<Connector, bool(Walker&)>(&Connector::initializeDependencyWalker));
static_assert(hasOperation<Connector, bool(Manager&)>(&Connector::initializeUnitManager));
static_assert(hasOperation<Connector, void()>(&Connector::unitManagerConfigurationChanged));
static_assert(hasOperation<Connector, void()>(&Connector::unitManagerIsInitialized));

} // namespace
