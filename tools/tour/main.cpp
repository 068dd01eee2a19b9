#include <QCommandLineParser>
#include <QDir>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <cstdio>
#include <string_view>

#include "appearance/appearance.h"
#include "number/fatal_stop.h"
#include "platform/preferences.h"
#include "tour/measure.h"
#include "tour/sample_records.h"
#include "tour/tour.h"

namespace tavi::tour {

namespace {

int warnings = 0;

/// Everything Qt or QML finds fault with counts against the tour.
void countWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtDebugMsg && type != QtInfoMsg) ++warnings;
  std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

/// Nothing of the user's own is read or written, and the pictures are the same everywhere.
void isolate(const QString& folder, const QString& language) {
  qputenv("XDG_DATA_HOME", QFile::encodeName(folder));
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
  qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder));
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_SCALE_FACTOR", "1");
  qputenv("LANGUAGE", language.toUtf8());
}

struct Options {
  QString folder;
  QString visit;  ///< Only this one; empty for all, each in a process of its own.
  QString only;   ///< Only this step.
  QString language;
};

void save(const QImage& picture, const QString& path) {
  if (!picture.save(path)) throw Failure("cannot write " + path.toStdString());
}

/// Runs the steps that the options ask for; false as soon as one fails.
bool run(const Visit& visit, const Options& options, Stage& stage) {
  for (const Step& step : visit.steps) {
    if (!options.only.isEmpty() && options.only != QLatin1StringView(step.name)) continue;
    const QString name = QDir(options.folder).filePath(QLatin1StringView(step.name));
    const QString path = name + QStringLiteral(".png");
    try {
      step.act(stage);
      save(stage.picture(), path);
      stage.expectNothingCut();
      if (const QImage shared = stage.sharedPicture(); !shared.isNull())
        save(shared, name + QStringLiteral("-picture.png"));
    } catch (const Failure& failure) {
      std::fprintf(stderr, "%s: %s\n", step.name, failure.what());
      return false;
    } catch (const FatalStop& stop) {
      std::fprintf(stderr, "%s: fatal stop: %s\n", step.name, stop.reason.c_str());
      return false;
    }
    std::printf("%s\n", qUtf8Printable(path));
    std::fflush(stdout);
  }
  return true;
}

bool runInOwnProcess(const Visit& visit, const Options& options) {
  return QProcess::execute(QCoreApplication::applicationFilePath(),
                           {options.folder, QStringLiteral("--visit"), QLatin1StringView(visit.name),
                            QStringLiteral("--language"), options.language}) == 0;
}

bool hasStep(const Visit& visit, const QString& name) {
  return std::ranges::any_of(visit.steps,
                             [&name](const Step& step) { return name == QLatin1StringView(step.name); });
}

/// A page that shows all pictures of the folder, each under the name of its station.
void writeIndex(const QString& folder) {
  QSaveFile page(QDir(folder).filePath(QStringLiteral("index.html")));
  if (!page.open(QIODevice::WriteOnly)) throw Failure("cannot write into " + folder.toStdString());
  QTextStream out(&page);
  out << "<!doctype html><meta charset=\"utf-8\"><title>Tour</title>\n"
         "<style>body { display: flex; flex-wrap: wrap; gap: 24px; font-family: sans-serif; background: #ddd "
         "}\n"
         "figure { margin: 0 } img { max-width: 412px; max-height: 870px; background: #fff }</style>\n";
  for (const QString& name : QDir(folder).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name))
    out << QStringLiteral(
               "<figure><figcaption>%1</figcaption><a href=\"%2\"><img src=\"%2\" alt=\"%1\"></a></figure>\n")
               .arg(name.chopped(4), name);
  out.flush();
  if (!page.commit()) throw Failure("cannot write into " + folder.toStdString());
}

Options parse(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Goes through the application as a finger would and takes a picture at every station."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("where the pictures go"));
  parser.addOption({QStringLiteral("visit"), QStringLiteral("only this run, such as phone or dark"),
                    QStringLiteral("name")});
  parser.addOption({QStringLiteral("only"), QStringLiteral("only this picture, such as 02-power"),
                    QStringLiteral("name")});
  parser.addOption({QStringLiteral("language"), QStringLiteral("the language to speak, such as ja"),
                    QStringLiteral("name"), QStringLiteral("en")});
  parser.process(arguments);
  if (parser.positionalArguments().size() != 1) parser.showHelp(64);
  return {parser.positionalArguments().value(0), parser.value(QStringLiteral("visit")),
          parser.value(QStringLiteral("only")), parser.value(QStringLiteral("language"))};
}

/// Goes to the stations that the options ask for; false if one fails or none is asked for.
bool goThrough(const Options& options, Application& application) {
  bool isPassed = true;
  bool isFound = false;
  for (const Visit& visit : allVisits()) {
    const bool isWanted = options.only.isEmpty() ? options.visit == QLatin1StringView(visit.name)
                                                 : hasStep(visit, options.only);
    if (isWanted) {
      isFound = true;
      Appearance::shared().force(visit.isDark);
      storeSampleRecords();
      for (const auto* answered : {&preferences::isOnboardingFinished, &preferences::isDsgvoAccepted})
        PreferenceStore::standard().setValue(*answered, !visit.isFirstStart);
      PreferenceStore::standard().setValue(preferences::counterForRating,
                                           1000);  // The rating comes at its station.
      Stage stage(application);
      stage.resize(visit.size);
      isPassed = run(visit, options, stage);
    } else if (options.only.isEmpty() && options.visit.isEmpty()) {
      isFound = true;
      isPassed = runInOwnProcess(visit, options) && isPassed;
    }
  }
  if (options.visit.isEmpty()) writeIndex(options.folder);
  if (!isFound) std::fputs("no such visit or picture\n", stderr);
  return isPassed && isFound;
}

int go(int argumentCount, char** arguments) {
  if (argumentCount > 1 && std::string_view(arguments[1]) == measureArgument)
    return measure(argumentCount, arguments);
  const Options options = parse({arguments, arguments + argumentCount});
  const QTemporaryDir home;
  isolate(home.path(), options.language);
  qInstallMessageHandler(countWarning);
  bool isPassed = false;
  {
    Application application(argumentCount, arguments);
    isPassed = QDir().mkpath(options.folder) && goThrough(options, application);
  }
  // The end of the application belongs to the tour.
  if (warnings > 0) std::fprintf(stderr, "%d warnings\n", warnings);
  return isPassed && warnings == 0 ? 0 : 1;
}

}  // namespace

}  // namespace tavi::tour

int main(int argumentCount, char** arguments) {
  try {
    return tavi::tour::go(argumentCount, arguments);
  } catch (const tavi::tour::Failure& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
