#include "NumberLists.h"

#include <algorithm>

namespace {

bool isNumber(const JsonValue& value)
{
    return value.type() == JsonType::Number;
}

bool isRow(const JsonValue& row, std::size_t columns)
{
    const std::vector<JsonValue> cells = row.children();
    return row.type() == JsonType::Array && cells.size() == columns &&
           std::all_of(cells.begin(), cells.end(), isNumber);
}

/// What to do about a text in place of a number.
QString adviceForText(QString text)
{
    text = text.replace(QLatin1Char(','), QLatin1Char('.')).trimmed();
    bool isConvertible = false;
    text.toDouble(&isConvertible);
    return isConvertible ? "write " + text + " without quotes"
                         : QStringLiteral("write the number without quotes");
}

QString adviceForList(std::size_t columns)
{
    return columns == 1 ? QStringLiteral("write one list per number, as in [[0], [1000]]")
                        : QStringLiteral("write one list per point, as in [[0, 4], [10, 20]]");
}

/// What to do about a row with the wrong number of cells.
QString adviceForRow(const std::vector<JsonValue>& cells, std::size_t columns, bool isOnlyRow)
{
    if (columns != 1 || cells.size() != 2)
        return columns == 1 ? QStringLiteral("write one number in brackets")
                            : QStringLiteral("write two numbers in brackets");
    const bool hasDecimalComma = !isOnlyRow && std::all_of(cells.begin(), cells.end(), isNumber);
    return hasDecimalComma ? QStringLiteral("write a decimal point instead of the comma")
                           : adviceForList(columns);
}

void reportList(const JsonValue& list, const QString& path, std::size_t columns, Findings& findings)
{
    findings.addAtValue(Rule::CoefficientsInvalid, list, path,
                        list.type() == JsonType::Array ? QStringLiteral("the list is empty")
                                                       : QStringLiteral("this is not a list of lists"),
                        adviceForList(columns));
}

void reportRow(const JsonValue& row, const QString& path, std::size_t columns, bool isOnlyRow,
               Findings& findings)
{
    const std::vector<JsonValue> cells = row.children();
    if (row.type() == JsonType::Array && cells.size() == columns) {
        const auto cell = std::find_if_not(cells.begin(), cells.end(), isNumber);
        NumberLists::checkNumber(*cell, path + '/' + QString::number(cell - cells.begin()), findings);
        return;
    }
    const QString numbers = columns == 1 ? QStringLiteral("one number") : QStringLiteral("two numbers");
    findings.addAtValue(Rule::CoefficientsInvalid, row, path, "this is not a list with " + numbers,
                        adviceForRow(cells, columns, isOnlyRow));
}

} // namespace

bool NumberLists::check(const JsonValue& list, const QString& path, std::size_t columns, Findings& findings)
{
    const std::vector<JsonValue> rows = list.children();
    if (list.type() != JsonType::Array || rows.empty()) {
        reportList(list, path, columns, findings);
        return false;
    }
    const auto row = std::find_if_not(rows.begin(), rows.end(), [columns](const JsonValue& candidate) {
        return isRow(candidate, columns);
    });
    if (row == rows.end())
        return true;
    reportRow(*row, path + '/' + QString::number(row - rows.begin()), columns, rows.size() == 1, findings);
    return false;
}

bool NumberLists::checkNumber(const JsonValue& value, const QString& path, Findings& findings)
{
    if (isNumber(value))
        return true;
    if (value.type() == JsonType::Null)
        findings.addAtValue(Rule::NullNode, value, path, QStringLiteral("null in place of a number"));
    else
        findings.addAtValue(Rule::CoefficientsInvalid, value, path, QStringLiteral("this is not a number"),
                            value.type() == JsonType::String ? adviceForText(value.string()) : QString());
    return false;
}
