// A program's own functions take precedence over those of a library: these replace the platform's functions,
// record the call and forward it. Getters of constants are not recorded.

#include <dlfcn.h>

#include "Array2dDataTypeWrapper.h"
#include "ConfigurationAndProcessDataBase.h"
#include "FloatRound.h"
#include "ProcessDataValue.h"
#include "RecordedCalls.h"

namespace {

/// The platform's function that a symbol of this program replaces.
template <typename Function>
Function* next(const char* symbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
}

QString unsignedText(unsigned int number)
{
    return QString::number(number);
}

} // namespace

double FloatRound::roundValue(double value, unsigned int decimalPlaces)
{
    RecordedCalls::add(
        QStringLiteral("round(%1, %2)").arg(RecordedCalls::exactBits(value), unsignedText(decimalPlaces)));
    static auto* const original = next<double(double, unsigned int)>("_ZN10FloatRound10roundValueEdj");
    return original(value, decimalPlaces);
}

bool ConfigurationAndProcessDataBase::isNumberType() const
{
    RecordedCalls::add(QStringLiteral("isNumberType"));
    static auto* const original = next<bool(const ConfigurationAndProcessDataBase*)>(
        "_ZNK31ConfigurationAndProcessDataBase12isNumberTypeEv");
    return original(this);
}

bool ConfigurationAndProcessDataBase::isNumberNoInput() const
{
    RecordedCalls::add(QStringLiteral("isNumberNoInput"));
    static auto* const original = next<bool(const ConfigurationAndProcessDataBase*)>(
        "_ZNK31ConfigurationAndProcessDataBase15isNumberNoInputEv");
    return original(this);
}

QStringList Array2dDataTypeWrapper::getColumnUnitTypes() const
{
    RecordedCalls::add(QStringLiteral("getColumnUnitTypes"));
    static auto* const original = next<QStringList(const Array2dDataTypeWrapper*)>(
        "_ZNK22Array2dDataTypeWrapper18getColumnUnitTypesEv");
    return original(this);
}

QVector<unsigned int> Array2dDataTypeWrapper::getArrayType() const
{
    RecordedCalls::add(QStringLiteral("getArrayType"));
    static auto* const original = next<QVector<unsigned int>(const Array2dDataTypeWrapper*)>(
        "_ZNK22Array2dDataTypeWrapper12getArrayTypeEv");
    return original(this);
}

QList<QVariant> Array2dDataTypeWrapper::getRowValues(unsigned int row) const
{
    RecordedCalls::add(QStringLiteral("getRowValues(%1)").arg(row));
    static auto* const original = next<QList<QVariant>(const Array2dDataTypeWrapper*, unsigned int)>(
        "_ZNK22Array2dDataTypeWrapper12getRowValuesEj");
    return original(this, row);
}

QList<QVariant> Array2dDataTypeWrapper::getRowValues(unsigned int row, unsigned int firstColumn,
                                                     unsigned int columnCount) const
{
    RecordedCalls::add(QStringLiteral("getRowValues(%1, %2, %3)").arg(row).arg(firstColumn).arg(columnCount));
    using Function = QList<QVariant>(const Array2dDataTypeWrapper*, unsigned int, unsigned int, unsigned int);
    static auto* const original = next<Function>("_ZNK22Array2dDataTypeWrapper12getRowValuesEjjj");
    return original(this, row, firstColumn, columnCount);
}

QList<QVariant> Array2dDataTypeWrapper::getColumnValues(unsigned int column) const
{
    RecordedCalls::add(QStringLiteral("getColumnValues(%1)").arg(column));
    static auto* const original = next<QList<QVariant>(const Array2dDataTypeWrapper*, unsigned int)>(
        "_ZNK22Array2dDataTypeWrapper15getColumnValuesEj");
    return original(this, column);
}

bool Array2dDataTypeWrapper::setRowValues(const QList<QVariant>& values, unsigned int row)
{
    RecordedCalls::add(QStringLiteral("setRowValues(%1, %2)").arg(RecordedCalls::exactBits(values)).arg(row));
    using Function = bool(Array2dDataTypeWrapper*, const QList<QVariant>&, unsigned int);
    static auto* const original =
        next<Function>("_ZN22Array2dDataTypeWrapper12setRowValuesERK5QListI8QVariantEj");
    return original(this, values, row);
}

void ProcessDataValue::getValueNoLock(ProcessValue& value, bool lastGood) const
{
    RecordedCalls::add(QStringLiteral("getValueNoLock(%1)").arg(lastGood));
    using Function = void(const ProcessDataValue*, ProcessValue&, bool);
    static auto* const original = next<Function>("_ZNK16ProcessDataValue14getValueNoLockER12ProcessValueb");
    original(this, value, lastGood);
}

bool ProcessDataValue::setValueNoLock(const ProcessValue& value)
{
    RecordedCalls::add(QStringLiteral("setValueNoLock(%1)").arg(RecordedCalls::exactBits(value.getValue())));
    using Function = bool(ProcessDataValue*, const ProcessValue&);
    static auto* const original = next<Function>("_ZN16ProcessDataValue14setValueNoLockERK12ProcessValue");
    return original(this, value);
}
