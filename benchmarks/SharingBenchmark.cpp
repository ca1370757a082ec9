#include "Baselines.h"
#include "BenchmarkSupport.h"
#include "Documents.h"
#include "Themes.h"

namespace {

const QVariant bars(1.01325);
const QVariant hectoPascals(1013.3);

/// Readers share one manager and, as programs do, the texts of its keys.
void addReaders(const std::string& name, int threadCount, QVariant (*convert)())
{
    BenchmarkSupport::add(name, hectoPascals, convert)->Threads(threadCount)->UseRealTime();
}

} // namespace

void Themes::addSharing()
{
    BenchmarkSupport::add("sharing/copy", true, [] {
        const UnitManager copy(Documents::shippedManager());
        return copy.isValid();
    });
    for (const int threadCount : {1, 2}) {
        addReaders("sharing/fromBaseUnit", threadCount, [] {
            return Documents::shippedManager().fromBaseUnit(bars, Documents::pressure(),
                                                            Documents::hectoPascal());
        });
        addReaders("baseline/sharing/one look-up", threadCount, [] {
            return Baselines::instance().resolvedFromBaseUnit(bars, Documents::pressure(),
                                                              Documents::hectoPascal());
        });
    }
}
