#include <QCoreApplication>
#include <QStandardPaths>
#include <cstdio>

#include <gtest/gtest.h>

#include "measurement/measurement_client.h"

namespace {

// Logs events for ever, and says the name of each once it is kept; to be killed.
int runChild(const QString& path, const QString& endpoint, const QString& mark) {
  using namespace std::chrono_literals;
  tavi::MeasurementClient client(
      {.endpoint = QUrl(endpoint), .allowsLoopbackHttp = true, .batchEvents = 7, .interval = 1ms}, path);
  client.setConsent(true);
  QTimer timer;
  int count = 0;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    const QString name = QStringLiteral("event-%1-%2").arg(mark).arg(count++);
    client.take({"Tapped Rating in Menu", QVariantMap{{"taviApp", name}}});
    std::puts(qPrintable(name));
    std::fflush(stdout);
  });
  timer.start(0);
  return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QStandardPaths::setTestModeEnabled(true);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.value(1) == u"--child")
    return runChild(arguments.value(2), arguments.value(3), arguments.value(4));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
