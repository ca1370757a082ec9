#pragma once

/// Whether a class has an operation of exactly this signature, as in
/// `hasOperation<Class, bool(int) const>(&Class::operation)`; if not, that does not compile.
template <typename Class, typename Signature>
constexpr bool hasOperation(Signature Class::*)
{
    return true;
}

/// The same for a static operation, as in `hasStaticOperation<bool(int)>(&Class::operation)`.
template <typename Signature>
constexpr bool hasStaticOperation(Signature*)
{
    return true;
}
