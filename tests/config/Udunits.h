#pragma once

#include "ConversionProgram.h"

/// UDUNITS. It prints six digits of a result. So it is asked for the value in a unit whose origin lies at the
/// expected result: what it prints then is the deviation itself.
class Udunits : public ConversionProgram
{
public:
    Udunits();

    /// UDUNITS takes an origin that is almost zero for zero.
    bool isAnswerable(const Conversion& conversion) const override;

private:
    QString question(const Conversion& conversion) const override;
    QStringList answers(const QString& output) const override;
    double deviation(const QString& answer, const Conversion& conversion, bool* ok) const override;
};
