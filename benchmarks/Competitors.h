#pragma once

#include <QtCore/QString>

#include <cstddef>
#include <memory>

/// The other unit libraries of the system, on the same work.
namespace Competitors {

/// KUnitConversion by names, as its users write it.
double convertByKUnitConversion(double value, const QString& from, const QString& to);
/// The symbol that KUnitConversion knows for a unit.
QString symbolByKUnitConversion(const QString& unit);

/// UDUNITS-2 with both names parsed in every call.
double convertByUdunits(double value, const char* from, const char* to);
/// The symbol that UDUNITS-2 writes for a unit given by name.
QString symbolByUdunits(const char* unit);
/// Loads the database of UDUNITS-2 anew. @return whether that worked.
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
