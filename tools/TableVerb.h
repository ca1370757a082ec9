#pragma once

#include "ValueVerb.h"

/// Shows one value in every unit of its type.
class TableVerb : public ValueVerb
{
public:
    TableVerb();

protected:
    int convert(const UnitCatalogue& catalogue, const Source& source, const QCommandLineParser& options,
                const QStringList& arguments) override;
};
