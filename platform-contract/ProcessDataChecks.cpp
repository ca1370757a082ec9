#include "Checks.h"
#include "ProcessDataValue.h"
#include "ProcessMeasurementAttributes.h"
#include "ProcessValue.h"
#include "VendorHooks.h"

namespace {

const auto noError = ProcessDataDefinitions::ErrorTypes(0);
const auto notAvailable = ProcessDataDefinitions::ErrorTypes(3);

void valuesHaveErrors(Faults& faults)
{
    ProcessValue value(notAvailable);
    faults.expect(value.getErrorType() == notAvailable, "a value has the error type given");
    value.setValue(1.5);
    faults.expect(value.getValue() == QVariant(1.5), "a value is replaced");
    faults.expect(value.getErrorType() == notAvailable, "the error type stays");
    const ProcessValue copy = value;
    value.setValue(2.5);
    faults.expect(copy.getValue() == QVariant(1.5), "a copy is independent");
}

void liveValuesAreReadAndWritten(Faults& faults)
{
    const QSharedPointer<ProcessDataValue> live = VendorHooks::createProcessData("Any/Type");
    ProcessValue value(noError);
    live->getValueNoLock(value, false);
    faults.expect(value.getErrorType() != noError, "a new live value has an error");
    ProcessValue written(noError);
    written.setValue(1.5);
    live->setValueNoLock(written);
    live->getValueNoLock(value, false);
    faults.expect(value.getErrorType() == noError && value.getValue() == QVariant(1.5),
                  "a written value is read");
    live->setValueNoLock(ProcessValue(notAvailable));
    live->getValueNoLock(value, false);
    faults.expect(value.getErrorType() == notAvailable, "an error is read");
}

void attributesAreEdited(Faults& faults)
{
    ProcessMeasurementAttributes attributes(QVariantList{QVariantMap{{"max", 16}}});
    const QVariant before = attributes.getMeasurementAttributeObject();
    attributes.setUnit(0, "Any/Type/Unit");
    const QVariant withUnit = attributes.getMeasurementAttributeObject();
    attributes.setUnitText(0, QVariantMap{{"en", "u"}});
    const QVariant after = attributes.getMeasurementAttributeObject();
    faults.expect(before != withUnit && withUnit != after, "unit and text are part of the attributes");
    ProcessMeasurementAttributes same(after);
    same.setUnit(0, "Any/Type/Unit");
    same.setUnitText(0, QVariantMap{{"en", "u"}});
    faults.expect(same.getMeasurementAttributeObject() == after,
                  "setting the same unit and text again changes nothing");
}

} // namespace

QList<Check> processDataChecks()
{
    return {
        {"process data: values have errors",
         {"ProcessValue::ProcessValue(ProcessDataDefinitions::ErrorTypes)",
          "ProcessValue::getErrorType() const", "ProcessValue::getValue() const",
          "ProcessValue::setValue(QVariant const&)", "ProcessValue::~ProcessValue()"},
         valuesHaveErrors},
        {"process data: live values are read and written",
         {"ProcessDataValue::getValueNoLock(ProcessValue&, bool) const",
          "ProcessDataValue::setValueNoLock(ProcessValue const&)"},
         liveValuesAreReadAndWritten},
        {"process data: attributes are edited",
         {"ProcessMeasurementAttributes::ProcessMeasurementAttributes(QVariant const&)",
          "ProcessMeasurementAttributes::getMeasurementAttributeObject() const",
          "ProcessMeasurementAttributes::setUnit(int, QString const&)",
          "ProcessMeasurementAttributes::setUnitText(int, QVariant const&)"},
         attributesAreEdited},
    };
}
