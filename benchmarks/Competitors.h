#pragma once

#include <QtCore/QString>

#include <cstddef>
#include <memory>

/// Other unit libraries of the system, doing the same work.
namespace Competitors {

/// Converts with KUnitConversion by names, as its users do.
double convertByKUnitConversion(double value, const QString& from, const QString& to);
/// KUnitConversion's symbol for a unit.
QString symbolByKUnitConversion(const QString& unit);

/// Converts with UDUNITS-2; parses both names in every call.
double convertByUdunits(double value, const char* from, const char* to);
/// UDUNITS-2's symbol for a unit given by name.
QString symbolByUdunits(const char* unit);
/// Reloads the database of UDUNITS-2. @return whether that succeeded.
bool loadUdunits();

/// UDUNITS-2 with the conversion resolved once.
class UdunitsConverter
{
public:
    UdunitsConverter(const char* from, const char* to);
    ~UdunitsConverter();
    UdunitsConverter(const UdunitsConverter&) = delete;
    UdunitsConverter& operator=(const UdunitsConverter&) = delete;

    double convert(double value) const;
    void convert(const double* in, double* out, std::size_t count) const;

private:
    struct Private;
    const std::unique_ptr<Private> m_private;
};

} // namespace Competitors
