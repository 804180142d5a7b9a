#include <filesystem>
#include <map>
#include <set>

#include <QtCore/QRegularExpression>
#include <QtCore/QXmlStreamReader>

#include "app/StringTables.h"
#include "settings/ModeSwitch.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

namespace fs = std::filesystem;

const fs::path kSources = SOURCES;

using Texts = std::set<QString>;

void addMatches(Texts& texts, const QString& source, const char* pattern) {
  const QRegularExpression expression{QString::fromLatin1(pattern)};
  for (auto found = expression.globalMatch(source); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    for (int i = 1; i <= expression.captureCount(); ++i) {
      if (!match.captured(i).isEmpty()) texts.insert(match.captured(i));
    }
  }
}

/// Every text that the sources show: what they look up, what they hand to the alerts (which look it
/// up), and the refusals of the core, which are shown on the screens.
Texts shownTexts() {
  Texts texts{QString::fromUtf8(kSpotloomIsWorking), QString::fromUtf8(kWayloomIsWorking)};
  for (const auto& entry : fs::recursive_directory_iterator(kSources / "src")) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".cpp" && extension != ".qml") continue;
    const QString source = QString::fromStdString(bytesOf(entry.path()));
    addMatches(texts, source, R"--(Phrase\{\s*"([^"]+)")--");
    addMatches(texts, source, R"--(localizedText\(\s*"([^"]+)")--");
    addMatches(texts, source, R"--(qsTranslate\(\s*"Wayloom",\s*"([^"]+)")--");
    addMatches(texts, source,
               R"--(alerts\.show\(\s*(?:"([^"]*)"|[^",]+),\s*(?:"([^"]*)"|[^",]+),\s*"([^"]*)")--");
    // What the command line says is not shown on a screen.
    const bool isShown = entry.path().parent_path().filename() != "cli";
    if (isShown && source.contains("const char* refusal")) {
      addMatches(texts, source, R"--(return "([^"]+)")--");
    }
  }
  return texts;
}

using Table = std::map<QString, QString>;

Table tableIn(const std::string& language) {
  const fs::path path = kSources / "resources/translations" / ("wayloom_" + language + ".ts");
  QXmlStreamReader xml(QByteArray::fromStdString(bytesOf(path)));
  Table table;
  QString key;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == QStringLiteral("source")) {
      key = xml.readElementText();
      EXPECT_FALSE(table.contains(key)) << path << ' ' << qPrintable(key);
    } else if (xml.name() == QStringLiteral("translation")) {
      EXPECT_TRUE(xml.attributes().isEmpty()) << "unfinished: " << qPrintable(key);
      table[key] = xml.readElementText();
    }
  }
  EXPECT_FALSE(xml.hasError()) << path << ' ' << qPrintable(xml.errorString());
  return table;
}

Texts placeholders(const QString& text) {
  Texts result;
  addMatches(result, text, "(%[0-9@dsf])");
  return result;
}

TEST(StringTablesTest, EveryTextIsInEveryLanguageAndInEnglishWhereItIsNone) {
  const Texts texts = shownTexts();
  ASSERT_GT(texts.size(), 40U) << "the search for texts finds too few of them";
  for (const char* language : {"de", "es", "fr", "ja", "zh_Hans", "zh_Hant"}) {
    const Table table = tableIn(language);
    for (const QString& text : texts) {
      EXPECT_TRUE(table.contains(text)) << language << " lacks: " << qPrintable(text);
    }
    for (const auto& [key, translation] : table) {
      EXPECT_FALSE(translation.trimmed().isEmpty()) << language << ' ' << qPrintable(key);
      EXPECT_EQ(placeholders(key), placeholders(translation)) << language << ' ' << qPrintable(key);
    }
  }
  const Table english = tableIn("en");
  for (const QString& text : texts) {
    const bool isChinese = text.contains(QRegularExpression(QStringLiteral("\\p{Han}")));
    EXPECT_EQ(english.contains(text), isChinese) << qPrintable(text);
  }
}

TEST(StringTablesTest, TheFirstLanguageThatIsThereIsUsed) {
  const std::pair<const char*, std::vector<QStringList>> cases[] = {
      {"de", {{"de-DE", "en"}, {"de_AT"}}},
      {"fr", {{"fr-CA"}, {"sv-SE", "fr"}}},
      {"es", {{"es-419"}}},
      {"zh_Hans", {{"zh-Hans"}, {"zh-CN"}, {"zh"}, {"zh_SG"}, {"zh-Hans-HK"}}},
      {"zh_Hant", {{"zh-Hant"}, {"zh_TW"}, {"zh-HK"}, {"zh-Hant-CN"}}},
      {"en", {{"en-GB", "de"}, {"sv"}, {}, {"", "-", "_"}, {"C"}, {"deu"}}},
  };
  for (const auto& [table, all] : cases) {
    for (const QStringList& preferred : all) {
      EXPECT_EQ(StringTables::tableFor(preferred), table) << qPrintable(preferred.join(' '));
    }
  }
}

}  // namespace
}  // namespace wayloom
