// Loaded before the C library: stops the program at the call number STOP_AT of those that change files, before it does
// anything, or, when STOP_WITH is an error number, lets that call fail with it. A write that is stopped has written
// half. How many there were is the exit status's business: a program that ends by itself had fewer.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>

namespace {

template <class Function>
Function next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int number_of(const char* variable) {
    const char* text = std::getenv(variable);
    return text ? std::atoi(text) : 0;
}

// Whether this call is the one; then it fails, unless the program ends here.
template <class Before>
bool stops(Before&& before) {
    static int calls = 0;
    if (++calls != number_of("STOP_AT")) return false;
    if (const int error = number_of("STOP_WITH")) {
        errno = error;
        return true;
    }
    before();
    std::raise(SIGKILL);
    return true;
}
bool stops() {
    return stops([] {});
}

}  // namespace

extern "C" {

ssize_t write(int file, const void* bytes, size_t count) {
    const auto real = next<ssize_t (*)(int, const void*, size_t)>("write");
    if (file > STDERR_FILENO && stops([&] { real(file, bytes, count / 2); })) return -1;
    return real(file, bytes, count);
}

int open(const char* path, int flags, ...) {
    std::va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    if ((flags & O_CREAT) != 0 && stops()) return -1;
    return next<int (*)(const char*, int, ...)>("open")(path, flags, mode);
}

int fchmod(int file, mode_t mode) noexcept { return stops() ? -1 : next<int (*)(int, mode_t)>("fchmod")(file, mode); }
int fsync(int file) { return stops() ? -1 : next<int (*)(int)>("fsync")(file); }
int rename(const char* from, const char* to) noexcept {
    return stops() ? -1 : next<int (*)(const char*, const char*)>("rename")(from, to);
}

}  // extern "C"
