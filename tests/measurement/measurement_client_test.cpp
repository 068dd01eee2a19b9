#include "measurement/measurement_client.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include "measurement/collector.h"
#include "measurement/otlp.h"
#include "platform/application_context.h"
#include "platform/test_support.h"

namespace tavi {
namespace {

using namespace std::chrono_literals;

class Measurement : public testing::Test {
 protected:
  // As fast as it goes, so that a test need not wait for pauses.
  MeasurementSettings settings(const QUrl& endpoint) const {
    return {.endpoint = endpoint,
            .allowsLoopbackHttp = true,
            .interval = 0ms,
            .shortestPause = 1ms,
            .longestPause = 2ms};
  }

  QString path() const { return folder_.filePath("measurement.sqlite"); }
  QStringList kept() const { return runSql(path(), "SELECT record FROM events"); }
  bool isAnyFile() const { return QFile::exists(path()) || QFile::exists(path() + "-wal"); }

  QTemporaryDir folder_;
};

// An event that can be told apart; the collector tells of it by that name.
AnalyticsEvent named(const QString& name) {
  return {"Tapped Rating in Menu", QVariantMap{{"taviApp", name}}};
}

void well(qsizetype /*batch*/, QTcpSocket& socket) {
  Collector::say(socket);
}

TEST_F(Measurement, KeepsAndSendsNothingWithoutConsent) {
  Collector collector(well);
  MeasurementClient client(settings(collector.address()), path());
  client.take({"tapped_clear", std::nullopt});
  client.finish();
  EXPECT_FALSE(isAnyFile());

  client.setConsent(true);
  client.take(named("asked"));
  EXPECT_TRUE(waitUntil([&] { return collector.names() == QStringList{"asked"}; }));
}

TEST_F(Measurement, AWithdrawalDeletesAtOnceAlsoWhatIsOnItsWay) {
  Collector collector([](qsizetype, QTcpSocket&) {});
  MeasurementClient client(settings(collector.address()), path());
  client.setConsent(true);
  client.take(named("one"));
  EXPECT_TRUE(waitUntil([&] { return collector.batches().size() == 1; }));
  client.setConsent(false);
  EXPECT_FALSE(isAnyFile());
  client.take(named("two"));
  EXPECT_FALSE(isAnyFile());
}

TEST_F(Measurement, AnAnswerToWhatWasWithdrawnTouchesNothingNew) {
  QList<QTcpSocket*> asking;
  Collector collector([&asking](qsizetype, QTcpSocket& socket) { asking.append(&socket); });
  MeasurementClient client(settings(collector.address()), path());
  client.setConsent(true);
  client.take(named("one"));
  ASSERT_TRUE(waitUntil([&] { return asking.size() == 1; }));
  client.setConsent(false);
  client.setConsent(true);
  client.take(named("two"));
  Collector::say(*asking[0]);
  ASSERT_TRUE(waitUntil([&] { return asking.size() == 2; }));
  EXPECT_EQ(client.waiting(), 1);
  Collector::say(*asking[1]);
  ASSERT_TRUE(waitUntil([&] { return client.waiting() == 0; }));
  EXPECT_EQ(collector.names(), (QStringList{"one", "two"}));
}

// A failure that is told while the network's thread is not heard is no second one beside the withdrawal.
TEST_F(Measurement, AWithdrawalDuringAFailureIsQuiet) {
  bool isHungUp = false;
  Collector collector([&isHungUp](qsizetype, QTcpSocket& socket) {
    socket.write("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\n{");
    socket.flush();
    socket.abort();
    isHungUp = true;
  });
  const ConsoleLines console;
  for (int round = 0; round < 20; ++round) {
    MeasurementClient client(settings(collector.address()), path());
    client.setConsent(true);
    isHungUp = false;
    client.take(named("one"));
    ASSERT_TRUE(waitUntil([&isHungUp] { return isHungUp; }));
    QThread::msleep(2);
    client.setConsent(false);
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(console.lines(), QStringList());
}

TEST_F(Measurement, SendsLogsAsCollectorsReadThem) {
  nameApplication();
  Collector collector(well);
  MeasurementSettings some = settings(collector.address());
  some.interval = 1h;
  some.endTimeout = 10s;
  MeasurementClient client(some, path());
  client.setConsent(true);
  client.take({"taviAds_presented",
               QVariantMap{{"taviAdId", "π"}, {"countTaviAdsPresented", 7}, {"told nowhere", "secret"}}});
  client.take({"told nowhere", std::nullopt});
  client.take({"Tapped App Link", QVariantMap{{"has_app", true}}});
  client.take({"tapped_rated_app", QVariantMap{{"rating", 4.5}}});
  client.finish();
  ASSERT_EQ(collector.batches().size(), 1);
  EXPECT_TRUE(collector.lastHead().startsWith("post /v1/logs http/1.1"));
  EXPECT_TRUE(collector.lastHead().contains("content-type: application/json"));
  EXPECT_TRUE(collector.lastHead().contains("content-encoding: gzip"));
  EXPECT_TRUE(collector.lastHead().contains("accept-language: *\r\n")) << "nothing of the user's language";

  const QJsonValue logs = collector.batches()[0]["resourceLogs"][0];
  EXPECT_EQ(logs["resource"]["attributes"][0]["key"].toString(), "service.name");
  EXPECT_EQ(logs["resource"]["attributes"][0]["value"]["stringValue"].toString(), "tavi");
  EXPECT_FALSE(logs["resource"]["attributes"][1]["value"]["stringValue"].toString().isEmpty()) << "version";
  const QJsonArray records = logs["scopeLogs"][0]["logRecords"].toArray();
  ASSERT_EQ(records.size(), 3);
  const QJsonValue record = records[0];
  EXPECT_EQ(record["eventName"].toString(), "taviAds_presented");
  EXPECT_EQ(record["body"]["stringValue"].toString(), "taviAds_presented");
  EXPECT_EQ(record["severityNumber"].toInt(), 9);
  EXPECT_GT(record["timeUnixNano"].toString().toLongLong(), 1'600'000'000'000'000'000);
  QStringList attributes;
  for (const QJsonValue each : records) {
    for (const QJsonValue attribute : each["attributes"].toArray()) {
      const QJsonObject value = attribute["value"].toObject();
      attributes.append(
          attribute["key"].toString() + ' ' + value.keys().join(',') + ' ' +
          (attribute["key"] == "tavi.day" ? QString("*") : value.begin()->toVariant().toString()));
    }
  }
  EXPECT_EQ(attributes,
            (QStringList{"countTaviAdsPresented intValue 7", "tavi.day stringValue *",
                         "taviAdId stringValue π", "has_app boolValue true", "tavi.day stringValue *",
                         "rating doubleValue 4.5", "tavi.day stringValue *"}));
}

TEST_F(Measurement, SendsWhatWasTypedOnlyIfTheSettingSaysSo) {
  const AnalyticsEvent calculated{
      "tavi_calculate", QVariantMap{{"solutionSteps", QVariantList{QVariantMap{{"title", "secret"}}}},
                                    {"solutionStepsCount", 1}}};
  const AnalyticsEvent opened{
      "tapped_history_item",
      QVariantMap{{"calc_parameters", QVariantMap{{"aTextField", "secret"}}}, {"latex_string", "secret"}}};
  // Nor is sent what was kept while it said so.
  for (const bool isAllowed : {false, true, false, true}) {
    MeasurementSettings some = settings(QUrl("https://collector.invalid/v1/logs"));
    some.sendsWorkings = isAllowed;
    {
      MeasurementClient client(some, path());
      client.setConsent(true);
      client.take(calculated);
      client.take(opened);
    }
    ASSERT_EQ(kept().size(), 2);
    EXPECT_EQ(kept().join("").count("secret"), isAllowed ? 3 : 0);
    EXPECT_TRUE(kept()[0].contains("solutionStepsCount"));
  }
}

struct Behaviour {
  const char* name;
  Collector::Answer answer;  // to the first batch; later ones are taken
  bool isSentAgain;
};

const Behaviour behaviours[] = {
    {"Well", well, false},
    {"WithNothing", [](qsizetype, QTcpSocket& s) { Collector::say(s, "200 OK", ""); }, false},
    {"PartlyRejected",
     [](qsizetype, QTcpSocket& s) {
       Collector::say(s, "200 OK", R"({"partialSuccess":{"rejectedLogRecords":"1","errorMessage":"no"}})");
     },
     false},
    {"Accepting", [](qsizetype, QTcpSocket& s) { Collector::say(s, "202 Accepted", "queued"); }, false},
    {"Packing",
     [](qsizetype, QTcpSocket& s) {
       Collector::say(s, "200 OK", otlp::gzip("{}"), "Content-Encoding: gzip\r\n");
     },
     false},
    {"WithAPage", [](qsizetype, QTcpSocket& s) { Collector::say(s, "200 OK", "<html>"); }, true},
    {"Refusing", [](qsizetype, QTcpSocket& s) { Collector::say(s, "400 Bad Request", ""); }, false},
    {"Timeout", [](qsizetype, QTcpSocket& s) { Collector::say(s, "408 Timeout", ""); }, true},
    {"TooMany", [](qsizetype, QTcpSocket& s) { Collector::say(s, "429 Too Many", ""); }, true},
    {"Elsewhere",
     [](qsizetype, QTcpSocket& s) { Collector::say(s, "307 Moved", "", "Location: /other\r\n"); }, true},
    {"Broken",
     [](qsizetype, QTcpSocket& s) { Collector::say(s, "503 Unavailable", "", "Retry-After: x\r\n"); }, true},
    {"Halfway",
     [](qsizetype, QTcpSocket& s) {
       s.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{");
       s.disconnectFromHost();
     },
     true},
    {"HangingUp", [](qsizetype, QTcpSocket& s) { s.abort(); }, true},
    {"WithNoise",
     [](qsizetype, QTcpSocket& s) {
       s.write(QByteArray(1000, '\xff'));
       s.disconnectFromHost();
     },
     true},
    {"TooLong", [](qsizetype, QTcpSocket& s) { Collector::say(s, "200 OK", QByteArray(1'000'000, ' ')); },
     true},
    {"Never", [](qsizetype, QTcpSocket&) {}, true},
};

class MeasurementAnswers : public Measurement, public testing::WithParamInterface<Behaviour> {};

// The second event shows what became of the first one's batch: it comes alone, or behind the first again.
TEST_P(MeasurementAnswers, EndInAcknowledgementOrAnotherAttempt) {
  Collector collector([](qsizetype batch, QTcpSocket& socket) {
    if (batch == 0) return GetParam().answer(batch, socket);
    Collector::say(socket);
  });
  MeasurementSettings some = settings(collector.address());
  if (std::string_view(GetParam().name) == "Never") some.timeout = 50ms;
  MeasurementClient client(some, path());
  client.setConsent(true);
  client.take(named("first"));
  const qsizetype attempts = GetParam().isSentAgain ? 2 : 1;
  ASSERT_TRUE(waitUntil([&] { return collector.batches().size() >= attempts; }));
  ASSERT_TRUE(waitUntil([&] { return client.waiting() == 0; }));
  client.take(named("second"));
  ASSERT_TRUE(waitUntil([&] { return collector.names().contains("second"); }));
  // A slow machine may miss the short timeout more than once.
  if (GetParam().isSentAgain) {
    EXPECT_GE(collector.names().count("first"), 2);
  } else {
    EXPECT_EQ(collector.names(), (QStringList{"first", "second"}));
  }
}

INSTANTIATE_TEST_SUITE_P(Of, MeasurementAnswers, testing::ValuesIn(behaviours),
                         [](const auto& behaviour) { return behaviour.param.name; });

TEST_F(Measurement, KeepsItsPauseOverAWithdrawalAndANewStart) {
  const QString inAnHour = QLocale::c().toString(QDateTime::currentDateTimeUtc().addSecs(3600),
                                                 u"ddd, dd MMM yyyy HH:mm:ss 'GMT'");
  for (const QByteArray& asked : {QByteArray("3600"), inAnHour.toLatin1()}) {
    EventStore::discard(path());
    Collector collector([&](qsizetype, QTcpSocket& socket) {
      Collector::say(socket, "503 Unavailable", "", "Retry-After: " + asked + "\r\n");
    });
    MeasurementSettings some = settings(collector.address());
    some.endTimeout = 10s;
    {
      MeasurementClient client(some, path());
      client.setConsent(true);
      client.take(named("one"));
      ASSERT_TRUE(waitUntil([&] { return collector.batches().size() == 1; }));
      client.finish();
      client.setConsent(false);
      client.setConsent(true);
      client.take(named("two"));
      client.finish();
    }
    EXPECT_GT(EventStore(path(), some.terms().toUtf8()).sendState().notBefore,
              QDateTime::currentMSecsSinceEpoch() + 3000 * 1000);
    MeasurementClient client(some, path());
    client.setConsent(true);
    client.take(named("three"));
    client.finish();
    EXPECT_EQ(collector.batches().size(), 1) << asked.toStdString();
  }
}

// However short a use is, and whoever ends it: after a failure the next one does not knock at once.
TEST_F(Measurement, KnocksOnceWhereNobodyAnswers) {
  const std::pair<Collector::Answer, std::chrono::milliseconds> silences[] = {
      {[](qsizetype, QTcpSocket& socket) { socket.abort(); }, 10s},
      {[](qsizetype, QTcpSocket&) {}, 10ms},
  };
  for (const auto& [answer, endTimeout] : silences) {
    EventStore::discard(path());
    Collector collector(answer);
    MeasurementSettings some = settings(collector.address());
    some.shortestPause = some.longestPause = 1h;
    some.endTimeout = endTimeout;
    for (int use = 0; use < 3; ++use) {
      MeasurementClient client(some, path());
      client.setConsent(true);
      client.take(named("one"));
      ASSERT_TRUE(waitUntil([&] { return collector.batches().size() == 1; }));
      client.finish();
    }
    EXPECT_EQ(collector.names(), QStringList{"one"});
  }
}

TEST_F(Measurement, SendsALastBatchAtTheEnd) {
  Collector collector(well);
  MeasurementSettings some = settings(collector.address());
  some.interval = 1h;
  some.endTimeout = 10s;
  MeasurementClient client(some, path());
  client.setConsent(true);
  client.take(named("one"));
  client.take(named("two"));
  client.take(named(QString(300'000, 'x')));
  client.finish();
  EXPECT_EQ(collector.batches().size(), 1);
  client.take(named("three"));
  client.finish();
  EXPECT_EQ(collector.names(), (QStringList{"one", "two", "three"}));
}

TEST_F(Measurement, IsNotMadeWithoutAnAddress) {
  EXPECT_EQ(MeasurementClient::fromBundle(ResourceBundle::main()), nullptr);
  EXPECT_TRUE(settings(QUrl("https://collector.invalid/v1/logs")).isUsable());
  EXPECT_FALSE(settings(QUrl("http://collector.invalid/v1/logs")).isUsable());
  EXPECT_FALSE(settings(QUrl()).isUsable());
}

// What the process said it kept is kept, or was received, whenever it is killed.
TEST_F(Measurement, NothingIsLostWhenTheProcessIsKilled) {
  Collector collector(well);
  QStringList acknowledged;
  for (int round = 0; round < 10; ++round) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                {"--child", path(), collector.address().toString(), QString::number(round)});
    const int wanted = 1 + (round * 37) % 90;
    int seen = 0;
    ASSERT_TRUE(waitUntil([&] {
      while (child.canReadLine()) {
        acknowledged.append(QString::fromUtf8(child.readLine()).trimmed());
        ++seen;
      }
      return seen >= wanted;
    }));
    child.kill();
    ASSERT_TRUE(waitUntil([&] { return child.state() == QProcess::NotRunning; }));
    while (child.canReadLine()) acknowledged.append(QString::fromUtf8(child.readLine()).trimmed());
  }
  const QString stored = kept().join('\n');
  const QStringList received = collector.names();
  const QSet<QString> arrived(received.begin(), received.end());
  for (const QString& name : acknowledged) {
    EXPECT_TRUE(arrived.contains(name) || stored.contains('"' + name + '"')) << name.toStdString();
  }
}

}  // namespace
}  // namespace tavi
