#include <limits>
#include <memory>

#include "Checks.h"
#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "ProcessDataValue.h"
#include "VendorHooks.h"

namespace {

using Tools = ConfigurationAndProcessDataTools;
using Limits = std::numeric_limits<double>;

/// Values that platforms commonly use as marker, and others.
QVariantList candidates()
{
    return {VendorHooks::noInputMarker(),
            Limits::quiet_NaN(),
            Limits::infinity(),
            -Limits::infinity(),
            Limits::max(),
            Limits::lowest(),
            -999.0,
            -9999.0,
            9.91e37,
            1e30,
            0.0,
            1.5,
            -40};
}

QList<bool> answers()
{
    QList<bool> result;
    const QVariantList values = candidates();
    for (const QVariant& value : values)
        result.append(Tools::isNoInputValueIndicatorSet(value));
    return result;
}

QList<bool> answersOfAnotherThread()
{
    QList<bool> result;
    const std::unique_ptr<QThread> thread(QThread::create([&result] { result = answers(); }));
    thread->start();
    thread->wait();
    return result;
}

void markerIsRecognised(Faults& faults)
{
    faults.expect(Tools::isNoInputValueIndicatorSet(VendorHooks::noInputMarker()), "the marker is set");
    for (const QVariant& value : {QVariant(0.0), QVariant(1.5), QVariant(-40), QVariant(), QVariant("abc")})
        faults.expect(!Tools::isNoInputValueIndicatorSet(value),
                      QString("%1 is not the marker").arg(value.toString()));
}

void markerIsTheSameThroughoutTheProcess(Faults& faults)
{
    const QList<bool> first = answers();
    faults.expect(answers() == first, "a second query has the same answers");
    faults.expect(answersOfAnotherThread() == first, "another thread has the same answers");
}

template <typename Platform>
auto checkPromise(Faults& faults, int /*preferred*/) -> decltype(Platform::getNanOnlyNoInputTest(), void())
{
    faults.expect(Platform::getNanOnlyNoInputTest() == Platform::getNanOnlyNoInputTest(),
                  "the promised test is always the same function");
    if (Platform::getNanOnlyNoInputTest() != &Platform::isNoInputValueIndicatorSet)
        return;
    const QVariantList values = candidates();
    for (const QVariant& value : values)
        faults.expect(value.toDouble() != value.toDouble() || !Tools::isNoInputValueIndicatorSet(value),
                      QString("%1 is not the marker, as promised").arg(value.toString()));
}

/// The operation is optional: without it the platform promises nothing.
template <typename Platform>
void checkPromise(Faults& /*faults*/, long /*otherwise*/)
{}

void promiseAboutNanIsKept(Faults& faults)
{
    checkPromise<Tools>(faults, 0);
}

void numbersAreRecognised(Faults& faults)
{
    for (const QVariant& value : {QVariant(1.5), QVariant(1.5F), QVariant(-1), QVariant(1U),
                                  QVariant(Q_INT64_C(1)), QVariant(Q_UINT64_C(1))})
        faults.expect(Tools::isVariantNumber(value), QString("%1 is a number").arg(value.typeName()));
    for (const QVariant& value : {QVariant(), QVariant("1.5"), QVariant(true), QVariant(QVariantList{1.5})})
        faults.expect(!Tools::isVariantNumber(value), QString("%1 is not a number").arg(value.typeName()));
}

void nodesTellNumbersFromMarkers(Faults& faults)
{
    const QSharedPointer<ProcessDataValue> value = VendorHooks::createProcessData("Any/Type");
    const QString& key = ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue();
    value->setProperty(key, 1.5);
    faults.expect(value->isNumberType() && !value->isNumberNoInput(), "a node with a number is a number");
    value->setProperty(key, VendorHooks::noInputMarker());
    faults.expect(value->isNumberType() && value->isNumberNoInput(),
                  "a node with the marker is a number and has no input");
}

} // namespace

QList<Check> valueChecks()
{
    const QString isMarker = "ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(QVariant const&)";
    return {
        {"marker: it is recognised", {isMarker}, markerIsRecognised},
        {"marker: it is the same throughout the process", {isMarker}, markerIsTheSameThroughoutTheProcess},
        {"marker: a promise about NaN is kept",
         {isMarker, "ConfigurationAndProcessDataTools::getNanOnlyNoInputTest()"},
         promiseAboutNanIsKept},
        {"values: numbers are recognised",
         {"ConfigurationAndProcessDataTools::isVariantNumber(QVariant const&)"},
         numbersAreRecognised},
        {"values: nodes tell numbers from markers",
         {"ConfigurationAndProcessDataBase::isNumberType() const",
          "ConfigurationAndProcessDataBase::isNumberNoInput() const"},
         nodesTellNumbersFromMarkers},
    };
}
