#include "UnitConversion/NoInputMarker.h"

namespace {

using Tools = ConfigurationAndProcessDataTools;
using Test = bool (*)(const QVariant&);

/// The test for which the platform promises false for every number except NaN.
template <typename Platform>
auto testOfNanOnly(int /*preferred*/) -> decltype(Platform::getNanOnlyNoInputTest())
{
    return Platform::getNanOnlyNoInputTest();
}

/// Null for a platform without that promise.
template <typename Platform>
Test testOfNanOnly(long /*otherwise*/)
{
    return nullptr;
}

} // namespace

// The promise only covers the platform's own test, and a program can replace the test that is called here.
const bool NoInputMarker::isAlwaysNan = testOfNanOnly<Tools>(0) == &Tools::isNoInputValueIndicatorSet;
