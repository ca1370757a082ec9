// A small program whose memory and instructions are measured.
//
// conversion-costs memory: loads the shipped documents and prints what they take on the heap, and the private
// dirty memory of the process. conversion-costs single COUNT: makes COUNT raw conversions by names.
// conversion-costs run COUNT: converts an array of 1,000 numbers COUNT times.

#include <QtCore/QFile>

#include <cstdio>
#include <malloc.h>
#include <vector>

#include "ShippedCatalogue.h"

namespace {

const QString unitType = QStringLiteral("UnitManager/UnitType/Pressure");
const QString unit = QStringLiteral("HectoPascal");

long heapBytes()
{
    const auto info = ::mallinfo2();
    return static_cast<long>(info.uordblks + info.hblkhd);
}

/// The pages that this process has written to and shares with no other one; -1 if unknown.
long privateDirtyKilobytes()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = file.readAll();
    const QByteArray key = "Private_Dirty:";
    const int found = text.indexOf(key);
    return found < 0 ? -1 : text.mid(found + key.size()).simplified().split(' ').first().toLong();
}

int printMemory()
{
    const long before = heapBytes();
    const ShippedCatalogue catalogue;
    const long after = heapBytes();
    if (!catalogue.isLoaded())
        return 1;
    std::printf("heap %ld\nprivate-dirty %ld\n", after - before, privateDirtyKilobytes() * 1024);
    return 0;
}

int convertSingly(const UnitManager& units, int count)
{
    double last = 0.0;
    for (int call = 0; call < count; ++call)
        last = units.fromBaseUnitRaw(1.0, unitType, unit).toDouble();
    return last == 1000.0 ? 0 : 1;
}

int convertRun(const UnitManager& units, int count)
{
    const std::vector<double> numbers(1000, 1.0);
    std::vector<double> results(numbers.size());
    for (int call = 0; call < count; ++call)
        units.fromBaseUnitArray(numbers.data(), results.data(), numbers.size(), unitType, unit);
    return results.back() == 1000.0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const QByteArray form = argc > 1 ? argv[1] : "";
    if (form == "memory")
        return printMemory();

    const int count = argc > 2 ? QByteArray(argv[2]).toInt() : 0;
    const ShippedCatalogue catalogue;
    if (!catalogue.isLoaded() || count <= 0)
        return 2;
    if (form == "single")
        return convertSingly(catalogue.manager(), count);
    return form == "run" ? convertRun(catalogue.manager(), count) : 2;
}
