#include "NumberText.h"

#include <QtCore/QLocale>

namespace {

const unsigned int mostDecimalPlaces = 17;

} // namespace

std::optional<double> NumberText::parse(const QString& text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber ? std::optional<double>(value) : std::nullopt;
}

QString NumberText::expectation()
{
    return "a decimal number such as -1234.5 or 1e-3, within the range of a double";
}

QString NumberText::shortest(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString NumberText::fixed(double value, unsigned int decimalPlaces)
{
    if (decimalPlaces > mostDecimalPlaces)
        return shortest(value);
    // Adding zero turns a negative zero into a positive one and changes nothing else.
    return QString::number(value + 0.0, 'f', static_cast<int>(decimalPlaces));
}
