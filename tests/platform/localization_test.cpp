#include "platform/localization.h"

#include <QFile>
#include <QMap>
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

TEST(LocalizationTest, GermanSaysEverythingThatEnglishSays) {
  const auto english = wordsOf("en");
  const auto german = wordsOf("de");
  for (auto each = english.begin(); each != english.end(); ++each) {
    const QString words = german.value(each.key());
    EXPECT_FALSE(words.isEmpty()) << each.key().toStdString();
    for (const char* limit : {"%0", "%1"})
      EXPECT_EQ(words.contains(QLatin1String(limit)), each->contains(QLatin1String(limit)))
          << each.key().toStdString();
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
