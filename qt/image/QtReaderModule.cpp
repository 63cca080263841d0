#include "qt/image/QtReaderModule.h"

#include "qt/image/QtImageReading.h"

#include <dlfcn.h>
#include <filesystem>
#include <mutex>
#include <system_error>

namespace sw {
namespace {

struct Module {
    LoadWithQtFunction load = nullptr;
    std::string problem;
};

// Beside the installed program (its folder and the module's are known when
// it is built) or, for a program run from the build, where the build put it.
std::string modulePath() {
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) {
        const std::filesystem::path installed =
            program.parent_path() / SLICEWRIGHT_QTREADER_FROM_BINDIR / SLICEWRIGHT_QTREADER_NAME;
        if (std::filesystem::exists(installed, error)) {
            return installed.lexically_normal().string();
        }
    }
    return SLICEWRIGHT_QTREADER_BUILD_PATH;
}

Module openModule() {
    Module module;
    const std::string path = modulePath();
    // The module stays loaded for the life of the process.
    void* handle = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
        module.problem = ::dlerror();
    } else if (void* entry = ::dlsym(handle, kLoadWithQtSymbol); entry == nullptr) {
        module.problem = path + " has no entry " + kLoadWithQtSymbol;
    } else {
        module.load = reinterpret_cast<LoadWithQtFunction>(entry);
    }
    return module;
}

} // namespace

LoadedPicture LoadWithQtReaders(const std::string& path) {
    static std::once_flag opened;
    static Module module;
    std::call_once(opened, [] { module = openModule(); });
    if (module.load == nullptr) {
        return LoadedPicture::Failed(
            "pictures of this kind cannot be read: the program's reader for them is missing (" +
            module.problem + ")");
    }
    LoadedPicture result;
    module.load(path, result);
    return result;
}

} // namespace sw
