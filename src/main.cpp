#include "shell/application.h"

int main(int argumentCount, char** arguments) {
  tavi::Application application(argumentCount, arguments);
  application.launch();
  return tavi::Application::exec();
}
