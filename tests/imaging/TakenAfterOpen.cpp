#include "tests/imaging/TakenAfterOpen.h"

#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

struct Taking {
    std::string path;
    std::optional<sw::test::Bytes> replacement;
};

std::optional<Taking>& armed() {
    static std::optional<Taking> taking;
    return taking;
}

template <typename Function> Function* next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

// The replacement is a new file renamed over the old one, as an editor or a
// download saves it: whoever holds the old file open still reads the old one.
void takeAway(const Taking& taking) {
    if (!taking.replacement) {
        ::unlink(taking.path.c_str());
        return;
    }
    const std::string fresh = taking.path + ".new";
    sw::test::WriteBytes(fresh, *taking.replacement);
    std::rename(fresh.c_str(), taking.path.c_str());
}

// The two ways a file is opened here: the system call, and the C library's
// stream under a C++ file stream.
template <typename Result> Result afterOpen(const char* path, Result opened, Result failed) {
    if (opened != failed && armed() && path != nullptr && armed()->path == path) {
        const Taking taking = std::move(*armed());
        armed().reset();
        takeAway(taking);
    }
    return opened;
}

mode_t modeOf(int flags, va_list& arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(arguments, int)) : 0;
}

} // namespace

namespace sw::test {

void TakeAfterOpen(const std::string& path, std::optional<Bytes> replacement) {
    armed() = Taking{path, std::move(replacement)};
}

} // namespace sw::test

extern "C" int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return afterOpen(path, next<int(const char*, int, ...)>("open")(path, flags, mode), -1);
}

extern "C" FILE* fopen64(const char* path, const char* mode) {
    return afterOpen(path, next<FILE*(const char*, const char*)>("fopen64")(path, mode),
                     static_cast<FILE*>(nullptr));
}
