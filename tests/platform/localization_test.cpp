#include "platform/localization.h"

#include <QFile>
#include <QMap>
#include <QRawFont>
#include <QXmlStreamReader>
#include <algorithm>
#include <ostream>
#include <vector>

#include <gtest/gtest.h>

#include "appearance/interface_fonts.h"
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

/// The font built in for all scripts but those of China, Japan, Korea and India, and the recommended ones for
/// these. None where one is not installed.
std::vector<QRawFont> fontsOfWords() {
  std::vector<QRawFont> fonts{QRawFont::fromFont(InterfaceFont::book(16))};
  for (const char* family : {"WenQuanYi Micro Hei", "Lohit Devanagari"}) {
    fonts.push_back(QRawFont::fromFont(QFont(family)));
    if (fonts.back().familyName() != family) return {};
  }
  return fonts;
}

TEST(LocalizationTest, EveryCharacterIsInABundledOrRecommendedFont) {
  const auto fonts = fontsOfWords();
  if (fonts.empty()) GTEST_SKIP() << "a recommended font is missing; ./dev setup installs it";
  for (const QString& language : translatedLanguages())
    for (const QString& words : wordsOf(qPrintable(language)))
      for (const char32_t character : words.toStdU32String())
        EXPECT_TRUE(character == U'\n' || std::ranges::any_of(fonts,
                                                              [character](const QRawFont& font) {
                                                                return font.supportsCharacter(character);
                                                              }))
            << qPrintable(language + ": U+" + QString::number(character, 16) + " in " + words);
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
                                         Choice{"ALaterOne", {"sv", "de"}, "Ergebnis"},
                                         Choice{"EnglishFirst", {"en-GB", "de"}, "Result"},
                                         Choice{"None", {"sv", "C"}, "Result"}),
                         [](const auto& choice) { return choice.param.name; });

}  // namespace
}  // namespace tavi
