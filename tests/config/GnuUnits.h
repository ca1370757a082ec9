#pragma once

#include "ConversionProgram.h"

/// GNU Units, which prints every result with all its digits.
class GnuUnits : public ConversionProgram
{
public:
    GnuUnits();

private:
    QString query(const Conversion& conversion) const override;
    QStringList answers(const QString& output) const override;
    double deviation(const QString& answer, const Conversion& conversion, bool* ok) const override;
};
