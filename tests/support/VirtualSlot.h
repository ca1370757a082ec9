#pragma once

#include <cstddef>
#include <cstring>

/// The index of a virtual function in the virtual table of its class, from 0; a destructor occupies two
/// entries.
///
/// A pointer to a virtual function contains the byte offset into the table. Most processors' ABIs add one to
/// it as a marker, which the division removes.
template <typename MemberFunction>
std::size_t virtualSlot(MemberFunction function)
{
    std::size_t words[2] = {0, 0};
    static_assert(sizeof(function) == sizeof(words));
    std::memcpy(words, &function, sizeof(words));
    return words[0] / sizeof(void*);
}
