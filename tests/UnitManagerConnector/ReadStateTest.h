#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>

#include "RecordingWrapper.h"
#include "ServiceFixture.h"
#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"

/// Tests that the blocking and the asynchronous read state have in common. The test of each state derives
/// from this class and inherits them.
class ReadStateTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void theListedSourcesAreRequestedInOrder_data();
    void theListedSourcesAreRequestedInOrder();
    void withoutListNothingIsRequested_data();
    void withoutListNothingIsRequested();
    void anUnknownKindIsNotRequested_data();
    void anUnknownKindIsNotRequested();
    void withoutConnectionNothingIsRequested();
    void aMissingConnectorFailsSilently();
    void withoutWrapperNothingIsRequested();

protected:
    using State = UnitManagerConnectorStateBase;
    using Type = UnitManagerConnectorDefinitions::ConnectorType;

    /// What distinguishes the tested class.
    struct TestedClass
    {
        QString name;
        QString readFunction;
        QString nextState; ///< the state that follows successful reads
        bool createsText;  ///< whether a read creates the entry of the source's text
    };
    explicit ReadStateTest(const TestedClass& testedClass);

    /// A warning of the tested class, as messageTexts() returns it.
    QString warning(const QString& text) const;

private:
    /// A state of the tested class.
    virtual std::unique_ptr<State> createState(QObject* wrapper) const = 0;
    /// Calls the function of the tested class that reads one source.
    virtual bool read(State& state, Type type) const = 0;
    /// The values that the successful reads have delivered.
    virtual QMap<Type, QVariant> deliveredValues(RecordingWrapper& wrapper) const = 0;

    const TestedClass m_testedClass;
};
