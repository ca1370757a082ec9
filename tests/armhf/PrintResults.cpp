// Prints the numbers and the results of every conversion in hexadecimal, one per line. A headline that begins
// with "#" precedes each list.

#include <cstdio>

#include "ConversionResults.h"
#include "ShippedCatalogue.h"

using namespace ConversionResults;

namespace {

void print(const QByteArray& headline, const Numbers& list)
{
    QByteArray text = "# " + headline + '\n';
    for (const double number : list)
        text += hexadecimal(number) + '\n';
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
}

} // namespace

int main()
{
    const ShippedCatalogue catalogue;
    if (!catalogue.isLoaded())
        return 1;
    print("numbers", numbers());
    for (const UnitName& name : unitNames(catalogue.manager())) {
        for (const Form& form : forms())
            print(form.name + (' ' + name.unitType.toUtf8()) + ' ' + name.unit.toUtf8(),
                  form.results(catalogue.manager(), name, numbers()));
    }
    return 0;
}
