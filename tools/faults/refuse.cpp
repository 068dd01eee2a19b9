// Preloaded into a process, it lets the disk refuse: from the REFUSE_AFTER-th change of a file with
// REFUSE_FILE in its name on, every write to one fails with the error number REFUSE_WITH.

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include <dlfcn.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

std::atomic<long> changes{0};

bool isStore(int descriptor) {
  static const char* const file = std::getenv("REFUSE_FILE");
  std::error_code unknown;
  const auto path = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor), unknown);
  return file != nullptr && path.native().find(file) != std::string::npos;
}

long number(const char* name) {
  const char* text = std::getenv(name);
  return text == nullptr ? 0 : std::atol(text);
}

bool refuses(int descriptor) {
  static const long after = number("REFUSE_AFTER");
  static const auto error = static_cast<int>(number("REFUSE_WITH"));
  if (error == 0 || !isStore(descriptor) || ++changes <= after) return false;
  errno = error;
  return true;
}

template <typename Function>
Function next(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the system's own names are reserved.
extern "C" {

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset) {
  static const auto call = next<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64");
  return refuses(descriptor) ? -1 : call(descriptor, bytes, count, offset);
}

ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset) {
  static const auto call = next<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite");
  return refuses(descriptor) ? -1 : call(descriptor, bytes, count, offset);
}

ssize_t write(int descriptor, const void* bytes, size_t count) {
  static const auto call = next<ssize_t (*)(int, const void*, size_t)>("write");
  return refuses(descriptor) ? -1 : call(descriptor, bytes, count);
}

int fdatasync(int descriptor) {
  static const auto call = next<int (*)(int)>("fdatasync");
  return refuses(descriptor) ? -1 : call(descriptor);
}

int fsync(int descriptor) {
  static const auto call = next<int (*)(int)>("fsync");
  return refuses(descriptor) ? -1 : call(descriptor);
}

int ftruncate64(int descriptor, off64_t length) noexcept {
  static const auto call = next<int (*)(int, off64_t)>("ftruncate64");
  return refuses(descriptor) ? -1 : call(descriptor, length);
}
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
