#include <QtCore/QList>

#include <cmath>
#include <vector>

#include "Array2dDataTypeWrapper.h"
#include "Baselines.h"
#include "BenchmarkSupport.h"
#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataParser.h"
#include "Documents.h"
#include "ProcessDataValue.h"
#include "PropertyManagerConst.h"
#include "Themes.h"
#include "UnitManagerDevice/UnitManagerDevice.h"

namespace {

using BenchmarkSupport::add;
using BenchmarkSupport::check;

const QString key = QStringLiteral("LinePressure");

BaseClassSharedPointer makeNode()
{
    const QString text = QStringLiteral(R"({"LinePressure": {"@unitType": "%1", "@value": 1.01325}})");
    return ConfigurationAndProcessDataParser().parseFromJson(text.arg(Documents::pressure()),
                                                             PropertyManagerConst::getConfigFileExtension());
}

QSharedPointer<ProcessDataValue> makeProcessData()
{
    const auto processData = QSharedPointer<ProcessDataValue>::create(Documents::pressure());
    processData->setValue(ProcessValue(1.01325, ProcessDataDefinitions::ErrorTypeNone));
    return processData;
}

const UnitManagerDevice& shippedDevice()
{
    static const UnitManagerDevice device = [] {
        UnitManagerDevice loaded;
        loaded.initByJsonString(Documents::shippedUnits(), Documents::shippedDefaultUnits());
        return loaded;
    }();
    return device;
}

/// Times a write with a different value in each call, after checking that the first one stores @p expected.
template <typename Write, typename Read>
void addWrite(const std::string& name, double expected, const Write& write, const Read& read)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        const QVariant values[] = {1500.0, 1013.0};
        if (!check(state, write(values[0])) || !check(state, read() == QVariant(expected)))
            return;
        std::size_t next = 0;
        for (auto iteration : state) {
            Q_UNUSED(iteration)
            next ^= 1U;
            benchmark::DoNotOptimize(write(values[next]));
        }
    });
}

void addTreeNodes()
{
    const BaseClassSharedPointer node = makeNode();
    const QString& valueKey = ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue();
    const auto read = [node, &valueKey] {
        return node->getChild(key)->getProperty(valueKey);
    };
    add("node/getValue", QVariant(1013.25), [node = makeNode()] {
        return Documents::shippedManager().getValue(key, node, Documents::hectoPascal());
    });
    add("baseline/node read", QVariant(1.01325),
        [node = makeNode(), &valueKey] { return node->getChild(key)->getProperty(valueKey); });
    addWrite(
        "node/setValueStatus", 1.5,
        [node](const QVariant& value) {
            return Documents::shippedManager().setValueStatus(key, node, value, Documents::hectoPascal()) < 2;
        },
        read);
    addWrite(
        "baseline/node write", 1500.0,
        [node, &valueKey](const QVariant& value) {
            return node->getChild(key)->setProperty(valueKey, value) < 2;
        },
        read);
}

void addProcessData()
{
    const auto processData = makeProcessData();
    const auto read = [processData] {
        return processData->getValue().getValue();
    };
    add("process data/getValueNoLock", QVariant(1013.25), [data = makeProcessData()] {
        return shippedDevice().getValueNoLock(data, Documents::hectoPascal()).getValue();
    });
    add("baseline/process data read", QVariant(1.01325), [data = makeProcessData()] {
        ProcessValue value;
        data->getValueNoLock(value, false);
        return value.getValue();
    });
    addWrite(
        "process data/setValueNoLock", 1.5,
        [processData](const QVariant& value) {
            return shippedDevice().setValueNoLock(processData,
                                                  ProcessValue(value, ProcessDataDefinitions::ErrorTypeNone),
                                                  Documents::hectoPascal());
        },
        read);
    addWrite(
        "baseline/process data write", 1500.0,
        [processData](const QVariant& value) {
            processData->setValueNoLock(ProcessValue(value, ProcessDataDefinitions::ErrorTypeNone));
            return true;
        },
        read);
}

QList<QVariant> row(unsigned int columns, double factor)
{
    QList<QVariant> cells;
    for (unsigned int column = 0; column < columns; ++column)
        cells.append((column + 1) * factor);
    return cells;
}

Array2dDataTypeWrapper makeArray(unsigned int columns)
{
    QList<QVariant> unitTypes;
    for (unsigned int column = 0; column < columns; ++column)
        unitTypes.append(Documents::pressure());
    return {{QVariant(row(columns, 1.0))}, unitTypes};
}

void addArrays(unsigned int columns)
{
    const std::string count = std::to_string(columns);
    const QString& unit = Documents::hectoPascal();
    add("array/getValueArray/" + count, row(columns, 1000.0), [array = makeArray(columns), columns, &unit] {
        return Documents::shippedManager().getValueArray(array, 0, 0, columns, unit);
    });
    benchmark::RegisterBenchmark(
        ("array/setValueArray/" + count).c_str(), [=, &unit](benchmark::State& state) {
            Array2dDataTypeWrapper array = makeArray(columns);
            const QList<QVariant> values[] = {row(columns, 2000.0), row(columns, 3000.0)};
            const UnitManager& manager = Documents::shippedManager();
            if (!check(state, manager.setValueArray(array, 0, 0, columns, values[0], unit) &&
                                  array.getRowValues(0) == row(columns, 2.0)))
                return;
            std::size_t next = 0;
            for (auto iteration : state) {
                Q_UNUSED(iteration)
                next ^= 1U;
                benchmark::DoNotOptimize(manager.setValueArray(array, 0, 0, columns, values[next], unit));
            }
        });
    add("baseline/list of variants/" + count, row(columns, 1000.0),
        [cells = row(columns, 1.0),
         coefficients = Baselines::instance().find(Documents::pressure(), unit)->polynomial] {
            QList<QVariant> converted;
            for (const QVariant& cell : cells)
                converted.append(Baselines::polynomial(coefficients, cell.toDouble()));
            return converted;
        });
}

} // namespace

void Themes::addNodes()
{
    addTreeNodes();
    addProcessData();
    for (const unsigned int columns : {10U, 1000U})
        addArrays(columns);
}
