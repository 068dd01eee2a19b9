#include <cstdio>
#include <exception>

#include "number/fatal_stop.h"
#include "shell/launch/application.h"

namespace {

/// A fatal stop ends the process; this says why.
[[noreturn]] void endWithReason() {
  try {
    if (const std::exception_ptr reason = std::current_exception()) std::rethrow_exception(reason);
  } catch (const tavi::FatalStop& stop) {
    std::fprintf(stderr, "Fatal stop: %s\n", stop.reason.c_str());
  } catch (...) {
    std::fputs("Ended by an unknown exception\n", stderr);
  }
  std::abort();
}

}  // namespace

int main(int argumentCount, char** arguments) {
  std::set_terminate(endWithReason);
  tavi::Application application(argumentCount, arguments);
  return application.launch() ? tavi::Application::exec() : 0;
}
