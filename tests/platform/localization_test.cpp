#include "platform/localization.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <ostream>

#include <gtest/gtest.h>

#include "output/tavi_error.h"

namespace tavi {
namespace {

/// Translations by key, as they stand in a file of the sources.
QMap<QString, QString> wordsOf(const char* language) {
  QFile file(QStringLiteral(TAVI_TRANSLATIONS "/tavi_%1.ts").arg(QLatin1String(language)));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  QMap<QString, QString> words;
  QString key;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == u"message") key = xml.attributes().value("id").toString();
    if (xml.name() == u"translation") words[key] = xml.readElementText();
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return words;
}

/// What formulas and charts are said in: English words by key, as they stand in the sources.
QMap<QString, QString> spokenPhrases() {
  static const QRegularExpression phrase(R"re(\{"((?:math|chart)[A-Z]\w*)",\s*"([^"]*)"\})re");
  QMap<QString, QString> phrases;
  for (const char* folder : {"typeset", "charts"}) {
    QDirIterator files(QStringLiteral(TAVI_SOURCE_DIR "/src/") + folder, {"*.cpp", "*.h"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
      QFile file(files.next());
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      const QString source = QString::fromUtf8(file.readAll());
      for (auto found = phrase.globalMatch(source); found.hasNext();) {
        const auto match = found.next();
        phrases[match.captured(1)] = match.captured(2);
      }
    }
  }
  return phrases;
}

/// What of the words is put in at run time, in alphabetical order: "%1 %2 §appname".
QString places(const QString& words) {
  static const QRegularExpression place("%\\d|§\\w+", QRegularExpression::UseUnicodePropertiesOption);
  QStringList places;
  for (auto found = place.globalMatch(words); found.hasNext();) places.append(found.next().captured());
  places.sort();
  return places.join(' ');
}

TEST(LocalizationTest, EveryLanguageSaysEverythingThatEnglishSaysAndSpeaks) {
  auto english = wordsOf("en");
  const auto phrases = spokenPhrases();
  ASSERT_TRUE(phrases.contains("mathPower") && phrases.contains("chartPoints"));
  english.insert(phrases);
  for (const QString& file : QDir(TAVI_TRANSLATIONS).entryList({"tavi_*.ts"})) {
    const QString language = file.sliced(5, file.size() - 8);
    if (language == "en") continue;
    const auto words = wordsOf(qPrintable(language));
    for (auto each = english.begin(); each != english.end(); ++each) {
      EXPECT_FALSE(words.value(each.key()).isEmpty()) << qPrintable(language + ": " + each.key());
      EXPECT_EQ(places(words.value(each.key())), places(*each)) << qPrintable(language + ": " + each.key());
    }
  }
}

TEST(LocalizationTest, EveryErrorHasWordsThatAreNoKey) {
  const auto english = wordsOf("en");
  for (const std::string_view key :
       {TaviError::notEnoughInputValues, TaviError::inputParameterError, TaviError::fractionIncomplete,
        TaviError::inputZeroInDenominator, TaviError::toManyNaturalConstantsInSubstring,
        TaviError::naturalConstantInWrongPositionOfSubstring, TaviError::toManyVariablesInSubstring,
        TaviError::calculationTooLong, TaviError::calculationOutOfRange, TaviError::oppositionError,
        TaviError::mustBeBiggerThanXAndLessThanY, TaviError::mustBeGreatherThanX,
        TaviError::mustBeLessThanX}) {
    const QString words = english.value(QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())));
    EXPECT_TRUE(words.contains(u' ')) << key;
  }
}

struct Choice {
  const char* name;
  QStringList languages;
  const char* result;

  friend void PrintTo(const Choice& choice, std::ostream* out) { *out << choice.name; }
};

// Translations cannot be taken back, so each choice needs a process of its own.
class LanguageTest : public testing::TestWithParam<Choice> {};

TEST_P(LanguageTest, TakesTheFirstLanguageThereIs) {
  if (localized("Result") != "Result") GTEST_SKIP() << "translations are loaded already";
  loadTranslations(GetParam().languages);
  EXPECT_EQ(localized("Result"), QLatin1String(GetParam().result));
  EXPECT_EQ(localized("no such key"), "no such key");
}

INSTANTIATE_TEST_SUITE_P(All, LanguageTest,
                         testing::Values(Choice{"ACountry", {"de-AT", "en-US"}, "Ergebnis"},
                                         Choice{"ALaterOne", {"fr", "de"}, "Ergebnis"},
                                         Choice{"EnglishFirst", {"en-GB", "de"}, "Result"},
                                         Choice{"None", {"fr", "C"}, "Result"}),
                         [](const auto& choice) { return choice.param.name; });

}  // namespace
}  // namespace tavi
