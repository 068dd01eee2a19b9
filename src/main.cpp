#include <cstdio>
#include <cstdlib>
#include <exception>

#include "number/fatal_stop.h"
#include "shell/launch/application.h"
#include "shell/launch/command_line.h"

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
  if (argumentCount > 1)
    if (const auto answer = tavi::answerToOption(arguments[1])) {
      std::fwrite(answer->data(), 1, answer->size(), stdout);
      return 0;
    }
  tavi::Application application(argumentCount, arguments);
  const std::optional<int> ending = application.launch(tavi::Application::arguments().mid(1));
  return ending ? *ending : tavi::Application::exec();
}
