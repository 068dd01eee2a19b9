#include "platform/system_voice.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/test_support.h"

namespace tavi {
namespace {

/// Voices whose speaker is a file of the test's own.
class SystemVoiceTest : public testing::Test {
 protected:
  QUrl speaker(const QByteArray& qml) const {
    QFile file(folder.filePath("Speaker.qml"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(qml);
    return QUrl::fromLocalFile(file.fileName());
  }

  // Each text ends at once but one, which ends with the next.
  const QByteArray germanSpeaker = R"(import QtQml
QtObject {
    property string language
    property bool isSpoken: language === "de"
    property int late: 0
    signal ended(int number, bool isSaid)
    function read(text, number) {
        if (text === "late")
            return late = number;
        if (late)
            ended(late, true);
        ended(number, text !== "unspeakable");
    }
    function stop() {}
})";
  QTemporaryDir folder;
};

TEST_F(SystemVoiceTest, IsThereWhereWhatSpeaksKnowsTheLanguage) {
  struct Case {
    const char* name;
    QUrl source;
    const char* language;
    Voice::State expected;
  };
  const QUrl german = speaker(germanSpeaker);
  const Case cases[] = {
      {"its language", german, "de", Voice::State::Ready},
      {"another language", german, "hi", Voice::State::Missing},
      {"a module that is not installed", QUrl::fromLocalFile(folder.filePath("Other.qml")), "de",
       Voice::State::Missing},
  };
  for (const Case& each : cases) {
    SystemVoice voice(each.source, each.language);
    EXPECT_EQ(voice.state(), Voice::State::Unknown) << each.name;
    voice.prepare();
    voice.prepare();
    ASSERT_TRUE(waitUntil([&] { return voice.state() != Voice::State::Unknown; })) << each.name;
    EXPECT_EQ(voice.state(), each.expected) << each.name;
  }
  EXPECT_EQ(SystemVoice(QUrl(), "de").state(), Voice::State::Missing) << "known without a look";
}

TEST_F(SystemVoiceTest, IsWaitedForAtTheEnd) {
  SystemVoice voice(speaker(R"(import QtQml
QtObject {
    property string language
    property bool isSpoken: true
    signal ended(int number, bool isSaid)
    Component.onCompleted: {
        const begin = Date.now();
        while (Date.now() < begin + 600);
    }
})"),
                    "de");
  QSignalSpy changes(&voice, &Voice::stateChanged);
  QElapsedTimer timer;
  timer.start();
  voice.prepare();
  voice.end();
  EXPECT_GE(timer.elapsed(), 600);
  EXPECT_EQ(voice.state(), Voice::State::Missing);
  QCoreApplication::processEvents();
  EXPECT_TRUE(changes.isEmpty()) << "it is over";
}

TEST_F(SystemVoiceTest, TellsOfTheEndOfTheTextThatItIsAtOnly) {
  SystemVoice voice(speaker(germanSpeaker), "de");
  voice.prepare();
  ASSERT_TRUE(waitUntil([&] { return voice.state() == Voice::State::Ready; }));
  QList<bool> ends;
  QObject::connect(&voice, &Voice::ended, [&ends](bool isSaid) { ends.append(isSaid); });
  voice.say("eins");
  ASSERT_TRUE(waitUntil([&] { return ends.size() == 1; }));
  voice.say("late");
  voice.stop();
  voice.say("unspeakable");
  ASSERT_TRUE(waitUntil([&] { return ends.size() == 2; }));
  EXPECT_EQ(ends, (QList<bool>{true, false}));
}

}  // namespace
}  // namespace tavi
