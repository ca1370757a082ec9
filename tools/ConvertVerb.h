#pragma once

#include <functional>

#include "ValueVerb.h"

/// Converts one value, or the values on standard input, from one unit to another.
class ConvertVerb : public ValueVerb
{
public:
    ConvertVerb();

protected:
    int convert(const UnitCatalogue& catalogue, const Source& source, const QCommandLineParser& options,
                const QStringList& arguments) override;

private:
    int convertLines(const std::function<QString(double)>& convertedText) const;
};
