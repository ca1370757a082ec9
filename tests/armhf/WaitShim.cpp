// Preloaded into every program of the ARM root. QEMU 7.2 accepts waitid(P_PIDFD), which Qt uses to find out
// whether the kernel knows process descriptors, but refuses the clone(CLONE_PIDFD) that Qt then starts
// processes with. Without the first, Qt starts them with fork().

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <sys/syscall.h>
#include <sys/wait.h>

extern "C" __attribute__((visibility("default"))) long syscall(long number, ...)
{
    long arguments[6];
    va_list list;
    va_start(list, number);
    for (long& argument : arguments)
        argument = va_arg(list, long);
    va_end(list);
    if (number == SYS_waitid && arguments[0] == P_PIDFD) {
        errno = EINVAL;
        return -1;
    }
    using SystemCall = long (*)(long, ...);
    static const auto original = reinterpret_cast<SystemCall>(::dlsym(RTLD_NEXT, "syscall"));
    return original(number, arguments[0], arguments[1], arguments[2], arguments[3], arguments[4],
                    arguments[5]);
}
