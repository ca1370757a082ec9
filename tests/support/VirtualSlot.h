#pragma once

#include <cstddef>
#include <cstring>

/// The place of a virtual function in its class's table, the first being 0; a destructor takes two places.
///
/// A pointer to a virtual function holds the byte offset into the table. Most processors' binary interfaces
/// add one to it as a mark, which the division drops.
template <typename MemberFunction>
std::size_t virtualSlot(MemberFunction function)
{
    std::size_t words[2] = {0, 0};
    static_assert(sizeof(function) == sizeof(words));
    std::memcpy(words, &function, sizeof(words));
    return words[0] / sizeof(void*);
}
