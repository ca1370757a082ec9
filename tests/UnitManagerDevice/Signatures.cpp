// The signatures that other programs rely on. The test is that this file compiles.

#include "Array2dDataTypeWrapper.h"
#include "Operation.h"
#include "ProcessDataValue.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"
#include "UnitManagerDevice/UnitManipulatorMeasurementRange.h"
#include "UnitManagerUnitTypeStringHandling.h"

namespace {

using Node = QSharedPointer<ConfigurationAndProcessDataBase>;
using ProcessNode = QSharedPointer<ProcessDataValue>;
using Array = Array2dDataTypeWrapper;

using Wrapper = UnitManagerWrapper;
static_assert(hasOperation<Wrapper, bool(bool, const QString&, const QString&, const QString&, const QString&,
                                         const QString&, const QString&)>(&Wrapper::init));
static_assert(hasOperation<Wrapper, bool()>(&Wrapper::checkInitialized));
static_assert(hasOperation<Wrapper, bool()>(&Wrapper::hasUnitManagerConfigurationChanged));
static_assert(hasOperation<Wrapper, bool()>(&Wrapper::reset));
static_assert(hasOperation<Wrapper, bool() const>(&Wrapper::operator bool));
static_assert(
    hasOperation<Wrapper, QVariant(const QString&, const Node&, const QString&) const>(&Wrapper::getValue));
static_assert(hasOperation<Wrapper, QVariant(const QVariant&, const QString&, const QString&) const>(
    &Wrapper::getValue));
static_assert(hasOperation<Wrapper, QList<QVariant>(const Array&, unsigned int, unsigned int, unsigned int,
                                                    const QString&) const>(&Wrapper::getValueArray));
static_assert(
    hasOperation<Wrapper, bool(Array&, unsigned int, unsigned int, unsigned int, const QList<QVariant>&,
                               const QString&) const>(&Wrapper::setValueArray));
static_assert(hasOperation<Wrapper, int(const QString&, const Node&, const QVariant&, const QString&)>(
    &Wrapper::setValueStatus));
static_assert(hasOperation<Wrapper, bool(const QString&, const Node&, const QVariant&, const QString&)>(
    &Wrapper::setValue));
static_assert(
    hasOperation<Wrapper, QString(const QString&, const Node&, const QString&)>(&Wrapper::getUnitText));
static_assert(hasOperation<Wrapper, QString(const QString&, const QString&)>(&Wrapper::getUnitText));
static_assert(
    hasOperation<Wrapper, QString(const Array&, unsigned int, const QString&)>(&Wrapper::getUnitTextArray));
static_assert(hasOperation<Wrapper, QVariant(const QString&) const>(&Wrapper::getUnitTextJsonMap));
static_assert(hasOperation<Wrapper, QString(const QString&) const>(&Wrapper::getBaseUnit));
static_assert(
    hasOperation<Wrapper, bool(const QString&, const Node&, const Node&)>(&Wrapper::resolveDependency));

using Device = UnitManagerDevice;
static_assert(
    hasOperation<Device, ProcessValue(const ProcessNode&, const QString&) const>(&Device::getValueNoLock));
static_assert(hasOperation<Device, bool(const ProcessNode&, const ProcessValue&, const QString&) const>(
    &Device::setValueNoLock));

using Manipulator = UnitManipulatorMeasurementRange;
static_assert(
    hasOperation<Manipulator, void(const Node&, const QString&, bool&, bool&)>(&Manipulator::manipulate));

using Mapping = UnitManagerUnitTypeStringHandling;
using Numbers = QHash<unsigned int, QString>;
static_assert(
    hasStaticOperation<bool(const QString&, unsigned int&)>(&Mapping::mapUnitTypeStringToHashValue));
static_assert(hasStaticOperation<bool(const Numbers&, const unsigned int&, QString&)>(
    &Mapping::mapHashValueToUnitTypeString));
static_assert(
    hasStaticOperation<void(Numbers&, const QSharedPointer<UnitManager>&)>(&Mapping::updateUnitTypeHashMap));

} // namespace
