#include "Competitors.h"

#include <KUnitConversion/Converter>
#include <udunits2.h>

#include <array>

namespace {

using SystemPointer = std::unique_ptr<ut_system, decltype(&ut_free_system)>;
using UnitPointer = std::unique_ptr<ut_unit, decltype(&ut_free)>;
using ConverterPointer = std::unique_ptr<cv_converter, decltype(&cv_free)>;

SystemPointer readSystem()
{
    ut_set_error_message_handler(&ut_ignore);
    return {ut_read_xml(nullptr), &ut_free_system};
}

ut_system* udunitsSystem()
{
    static const SystemPointer system = readSystem();
    return system.get();
}

UnitPointer parseUnit(const char* name)
{
    return {ut_parse(udunitsSystem(), name, UT_UTF8), &ut_free};
}

ConverterPointer makeConverter(const char* from, const char* to)
{
    const UnitPointer source = parseUnit(from);
    const UnitPointer target = parseUnit(to);
    return {ut_get_converter(source.get(), target.get()), &cv_free};
}

} // namespace

namespace Competitors {

double convertByKUnitConversion(double value, const QString& from, const QString& to)
{
    static const KUnitConversion::Converter converter;
    return converter.convert(KUnitConversion::Value(value, from), to).number();
}

QString symbolByKUnitConversion(const QString& unit)
{
    static const KUnitConversion::Converter converter;
    return converter.unit(unit).symbol();
}

double convertByUdunits(double value, const char* from, const char* to)
{
    return cv_convert_double(makeConverter(from, to).get(), value);
}

QString symbolByUdunits(const char* unit)
{
    std::array<char, 32> text = {};
    const int length = ut_format(parseUnit(unit).get(), text.data(), text.size(), UT_UTF8);
    return QString::fromUtf8(text.data(), length);
}

bool loadUdunits()
{
    return readSystem() != nullptr;
}

struct UdunitsConverter::Private
{
    ConverterPointer converter;
};

UdunitsConverter::UdunitsConverter(const char* from, const char* to)
    : m_private(new Private{makeConverter(from, to)})
{}

UdunitsConverter::~UdunitsConverter() = default;

double UdunitsConverter::convert(double value) const
{
    return cv_convert_double(m_private->converter.get(), value);
}

void UdunitsConverter::convert(const double* in, double* out, std::size_t count) const
{
    cv_convert_doubles(m_private->converter.get(), in, count, out);
}

} // namespace Competitors
