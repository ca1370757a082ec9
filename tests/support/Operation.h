#pragma once

/// Checks that a class has a function with exactly this signature, as in
/// `hasOperation<Class, bool(int) const>(&Class::operation)`; otherwise the call does not compile.
template <typename Class, typename Signature>
constexpr bool hasOperation(Signature Class::*)
{
    return true;
}

/// Checks that a static function has exactly this signature, as in
/// `hasStaticOperation<bool(int)>(&Class::operation)`; otherwise the call does not compile.
template <typename Signature>
constexpr bool hasStaticOperation(Signature*)
{
    return true;
}
