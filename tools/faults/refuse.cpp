// Preloaded into a process, it lets the disk refuse: from the REFUSE_AFTER-th change of a file with
// REFUSE_FILE in its name on, every write to one fails with the error number REFUSE_WITH.

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

std::atomic<long> changes{0};

bool isStore(int descriptor) {
  char link[64];
  char path[4096];
  std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
  const ssize_t length = readlink(link, path, sizeof path - 1);
  if (length <= 0) return false;
  path[length] = '\0';
  static const char* const file = std::getenv("REFUSE_FILE");
  return file != nullptr && std::strstr(path, file) != nullptr;
}

bool refuses(int descriptor) {
  static const long after = std::atol(std::getenv("REFUSE_AFTER") ? std::getenv("REFUSE_AFTER") : "0");
  static const int error = std::atoi(std::getenv("REFUSE_WITH") ? std::getenv("REFUSE_WITH") : "0");
  if (error == 0 || !isStore(descriptor) || ++changes <= after) return false;
  errno = error;
  return true;
}

template <typename Function>
Function next(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

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
