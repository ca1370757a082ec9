#include "UnitConversion/NoInputMarker.h"

namespace {

using Tools = ConfigurationAndProcessDataTools;
using Test = bool (*)(const QVariant&);

/// The test that the platform promises to be false for every number except NaN.
template <typename Platform>
auto testOfNanOnly(int /*preferred*/) -> decltype(Platform::getNanOnlyNoInputTest())
{
    return Platform::getNanOnlyNoInputTest();
}

/// Null for a platform that makes no such promise.
template <typename Platform>
Test testOfNanOnly(long /*otherwise*/)
{
    return nullptr;
}

} // namespace

// The promise counts only for the test that is called here, which a program can replace by its own.
const bool NoInputMarker::isAlwaysNan = testOfNanOnly<Tools>(0) == &Tools::isNoInputValueIndicatorSet;
