// Preloaded into the service: simulates a file system that stalls. While the file that the environment
// variable STALL_FILE names exists, reading a document does not return; that it waits is shown by another
// file, whose name ends in ".reached".

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <unistd.h>

#include "WaitUntil.h"

namespace {

bool isDocument(int descriptor)
{
    char link[64];
    char path[PATH_MAX];
    snprintf(link, sizeof(link), "/proc/self/fd/%d", descriptor);
    const ssize_t length = ::readlink(link, path, sizeof(path));
    const char* const ending = "/units.json";
    const auto endingLength = static_cast<ssize_t>(std::strlen(ending));
    return length > endingLength && std::memcmp(path + length - endingLength, ending, endingLength) == 0;
}

void waitForEndOfStall(const char* stallFile)
{
    char reached[PATH_MAX];
    snprintf(reached, sizeof(reached), "%s.reached", stallFile);
    waitUntil([stallFile, &reached] {
        if (::access(stallFile, F_OK) != 0)
            return true;
        ::close(::open(reached, O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
        return false;
    });
}

} // namespace

extern "C" __attribute__((visibility("default"))) ssize_t read(int descriptor, void* buffer, size_t size)
{
    using Read = ssize_t (*)(int, void*, size_t);
    static const Read next = reinterpret_cast<Read>(::dlsym(RTLD_NEXT, "read"));
    const char* const stallFile = std::getenv("STALL_FILE");
    if (stallFile != nullptr && isDocument(descriptor))
        waitForEndOfStall(stallFile);
    return next(descriptor, buffer, size);
}
