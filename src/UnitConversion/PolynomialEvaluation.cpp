#include "UnitConversion/PolynomialEvaluation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

// The bodies are inlined into one function per variant, which is compiled for its processor.
#define UNITMANAGER_INLINE inline __attribute__((always_inline))

namespace {

/// Polynomials with more coefficients are evaluated in several passes over a block.
constexpr std::size_t coefficientsPerPass = 4;
/// Bytes in the widest vector register.
constexpr std::size_t vectorSize = 64;
/// Chosen so that two blocks fit into the smallest first-level cache.
constexpr std::size_t blockLength = 512;

UNITMANAGER_INLINE double valueAt(const double* coefficients, std::size_t coefficientCount, double x)
{
    double result = 0.0;
    for (std::size_t index = 0; index < coefficientCount; ++index)
        result = std::fma(x, result, coefficients[index]);
    return result;
}

/// Continues Horner's scheme with a fixed number of coefficients. Has no loop of its own, so that the loop
/// over the numbers vectorises.
template <std::size_t... Index>
UNITMANAGER_INLINE double continued([[maybe_unused]] double x, double result,
                                    const std::array<double, sizeof...(Index)>& coefficients,
                                    std::index_sequence<Index...> /*indices*/)
{
    ((result = std::fma(x, result, coefficients[Index])), ...);
    return result;
}

template <std::size_t Count>
UNITMANAGER_INLINE std::array<double, Count> copied(const double* coefficients)
{
    std::array<double, Count> copy{};
    std::copy_n(coefficients, Count, copy.begin());
    return copy;
}

UNITMANAGER_INLINE double unlessNan(double x, double result)
{
    return std::isnan(x) ? x : result;
}

template <std::size_t Count>
UNITMANAGER_INLINE void evaluateFew(const double* coefficients, const double* values, double* results,
                                    std::size_t count)
{
    const std::array<double, Count> copy = copied<Count>(coefficients);
    for (std::size_t index = 0; index < count; ++index) {
        const double x = values[index];
        results[index] = unlessNan(x, continued(x, 0.0, copy, std::make_index_sequence<Count>()));
    }
}

UNITMANAGER_INLINE void evaluateUpToFour(const double* coefficients, std::size_t coefficientCount,
                                         const double* values, double* results, std::size_t count)
{
    switch (coefficientCount) {
    case 0:
        return evaluateFew<0>(coefficients, values, results, count);
    case 1:
        return evaluateFew<1>(coefficients, values, results, count);
    case 2:
        return evaluateFew<2>(coefficients, values, results, count);
    case 3:
        return evaluateFew<3>(coefficients, values, results, count);
    default:
        return evaluateFew<4>(coefficients, values, results, count);
    }
}

template <std::size_t Count>
UNITMANAGER_INLINE void continueBlock(const double* coefficients, const double* values, double* results,
                                      std::size_t count)
{
    const std::array<double, Count> copy = copied<Count>(coefficients);
    for (std::size_t index = 0; index < count; ++index)
        results[index] = continued(values[index], results[index], copy, std::make_index_sequence<Count>());
}

UNITMANAGER_INLINE void evaluateBlock(const double* coefficients, std::size_t coefficientCount,
                                      const double* values, double* results, std::size_t count)
{
    alignas(vectorSize) double x[blockLength];
    alignas(vectorSize) double value[blockLength];
    std::copy_n(values, count, x);
    std::fill_n(value, count, 0.0);
    std::size_t index = 0;
    for (; index + coefficientsPerPass <= coefficientCount; index += coefficientsPerPass)
        continueBlock<coefficientsPerPass>(coefficients + index, x, value, count);
    for (; index < coefficientCount; ++index)
        continueBlock<1>(coefficients + index, x, value, count);
    for (std::size_t position = 0; position < count; ++position)
        results[position] = unlessNan(x[position], value[position]);
}

UNITMANAGER_INLINE void valuesAt(const double* coefficients, std::size_t coefficientCount,
                                 const double* values, double* results, std::size_t count)
{
    if (coefficientCount > coefficientsPerPass) {
        for (std::size_t begin = 0; begin < count; begin += blockLength)
            evaluateBlock(coefficients, coefficientCount, values + begin, results + begin,
                          std::min(blockLength, count - begin));
        return;
    }
    // Separate cases: a loop over arrays that might overlap does not vectorise.
    if (values == results)
        return evaluateUpToFour(coefficients, coefficientCount, results, results, count);
    const double* const __restrict separateValues = values;
    double* const __restrict separateResults = results;
    evaluateUpToFour(coefficients, coefficientCount, separateValues, separateResults, count);
}

void evaluateArrayBaseline(const double* coefficients, std::size_t coefficientCount, const double* values,
                           double* results, std::size_t count)
{
    valuesAt(coefficients, coefficientCount, values, results, count);
}

#ifdef __x86_64__

#define UNITMANAGER_AVX2 __attribute__((target("avx2,fma")))
#define UNITMANAGER_AVX512 __attribute__((target("avx512f,avx2,fma")))

UNITMANAGER_AVX2 void evaluateArrayAvx2(const double* coefficients, std::size_t coefficientCount,
                                        const double* values, double* results, std::size_t count)
{
    valuesAt(coefficients, coefficientCount, values, results, count);
}

UNITMANAGER_AVX512 void evaluateArrayAvx512(const double* coefficients, std::size_t coefficientCount,
                                            const double* values, double* results, std::size_t count)
{
    valuesAt(coefficients, coefficientCount, values, results, count);
}

#endif

} // namespace

namespace PolynomialEvaluation {

double evaluateBaseline(const double* coefficients, std::size_t coefficientCount, double x)
{
    return valueAt(coefficients, coefficientCount, x);
}

#ifdef __x86_64__

const bool hasFma = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");

UNITMANAGER_AVX2 double evaluateFma(const double* coefficients, std::size_t coefficientCount, double x)
{
    return valueAt(coefficients, coefficientCount, x);
}

#endif

std::vector<Variant> supportedVariants()
{
    std::vector<Variant> variants;
#ifdef __x86_64__
    if (hasFma && __builtin_cpu_supports("avx512f"))
        variants.push_back({"AVX-512", &evaluateFma, &evaluateArrayAvx512});
    if (hasFma)
        variants.push_back({"AVX2 and FMA", &evaluateFma, &evaluateArrayAvx2});
#endif
    variants.push_back({"baseline", &evaluateBaseline, &evaluateArrayBaseline});
    return variants;
}

void evaluateArray(const double* coefficients, std::size_t coefficientCount, const double* values,
                   double* results, std::size_t count)
{
    static const EvaluateArray fastest = supportedVariants().front().evaluateArray;
    fastest(coefficients, coefficientCount, values, results, count);
}

} // namespace PolynomialEvaluation
