#pragma once

#include "ConversionProgram.h"

/// UDUNITS, which prints only six digits of a result. It is therefore queried for the value in a unit whose
/// origin is the expected result, so that it prints the deviation itself.
class Udunits : public ConversionProgram
{
public:
    Udunits();

    /// UDUNITS treats an origin close to zero as zero.
    bool isAnswerable(const Conversion& conversion) const override;

private:
    QString query(const Conversion& conversion) const override;
    QStringList answers(const QString& output) const override;
    double deviation(const QString& answer, const Conversion& conversion, bool* ok) const override;
};
