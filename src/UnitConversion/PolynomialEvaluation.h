#pragma once

#include <cstddef>
#include <vector>

/// Evaluates polynomials by Horner's scheme with fused multiply-add.
///
/// Coefficients are ordered from the highest power to the constant term; without coefficients the result is
/// 0.0. There is one variant for each kind of vector unit that the compiler can target; all variants give
/// identical bits. The fastest variant that the processor supports is selected when the library is loaded.
/// All functions are thread-safe.
namespace PolynomialEvaluation {

/// The value of a polynomial at @p x.
using Evaluate = double (*)(const double* coefficients, std::size_t coefficientCount, double x);

/// The values of a polynomial at @p count numbers. A NaN among @p values is copied with all its bits.
///
/// @param results room for @p count numbers; may be equal to @p values, but must not overlap it otherwise
using EvaluateArray = void (*)(const double* coefficients, std::size_t coefficientCount, const double* values,
                               double* results, std::size_t count);

/// Both functions, compiled for one kind of processor.
struct Variant
{
    const char* name;            ///< of the kind of processor, for tests and benchmarks
    Evaluate evaluate;           ///< one number
    EvaluateArray evaluateArray; ///< many numbers
};

/// The variants that this processor supports, fastest first. The last one runs on every processor.
std::vector<Variant> supportedVariants();

/// The value of a polynomial at @p x, by the variant that runs on every processor.
double evaluateBaseline(const double* coefficients, std::size_t coefficientCount, double x);

#ifdef __x86_64__

/// Whether the processor has AVX2 and FMA.
extern const bool hasFma;

/// The value of a polynomial at @p x, by the variant for processors with AVX2 and FMA.
double evaluateFma(const double* coefficients, std::size_t coefficientCount, double x);

#endif

/// The value of a polynomial at @p x, by the fastest variant.
inline double evaluate(const double* coefficients, std::size_t coefficientCount, double x)
{
#ifdef __x86_64__
    // A branch is faster than a call through a pointer.
    if (hasFma)
        return evaluateFma(coefficients, coefficientCount, x);
#endif
    return evaluateBaseline(coefficients, coefficientCount, x);
}

/// The values of a polynomial at many numbers, by the fastest variant; see EvaluateArray.
void evaluateArray(const double* coefficients, std::size_t coefficientCount, const double* values,
                   double* results, std::size_t count);

} // namespace PolynomialEvaluation
