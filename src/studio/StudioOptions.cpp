#include "studio/StudioOptions.h"

#include <QFileInfo>

#include "model/Error.h"
#include "project/config/AppDataFolder.h"

namespace sv {

StudioOptions StudioOptions::Parse(const QStringList& arguments, QString* error) {
  StudioOptions options;
  auto valueOf = [&](qsizetype& index, QString& into) {
    if (index + 1 >= arguments.size()) {
      *error = QStringLiteral("%1 needs a value").arg(arguments.at(index));
      return;
    }
    into = arguments.at(++index);
  };
  for (qsizetype index = 1; index < arguments.size() && error->isEmpty(); ++index) {
    const QString& argument = arguments.at(index);
    if (argument == QLatin1String("--screenshot")) {
      valueOf(index, options.screenshot);
    } else if (argument == QLatin1String("--select")) {
      valueOf(index, options.select);
    } else if (argument.startsWith(QLatin1Char('-'))) {
      *error = QStringLiteral("unknown option %1").arg(argument);
    } else if (!options.path.isEmpty()) {
      *error = QStringLiteral("one project at a time: %1 and %2").arg(options.path, argument);
    } else {
      options.path = argument;
    }
  }
  if (error->isEmpty() && !options.select.isEmpty() && options.screenshot.isEmpty())
    *error = QStringLiteral("--select goes with --screenshot");
  return options;
}

QString StudioOptions::Usage() {
  return QStringLiteral(
      "usage: scrivara-studio [PROJECT.svproj | DOXYGEN_XML_FOLDER]\n"
      "       scrivara-studio --screenshot OUT.png [--select QUALIFIEDNAME] [PROJECT]\n");
}

QString SampleProject() {
  const QString fromEnvironment = qEnvironmentVariable("SCRIVARA_SAMPLE");
  if (!fromEnvironment.isEmpty()) return fromEnvironment;
  const QString sample =
      QFileInfo(AppDataFolder() + QStringLiteral("../samples/geometry/geometry.svproj"))
          .absoluteFilePath();
  if (!QFileInfo::exists(sample))
    Raise(ErrorNumber::PathNotFound,
          QStringLiteral("The sample project %1 does not exist; set SCRIVARA_SAMPLE to its path.")
              .arg(sample));
  return sample;
}

}  // namespace sv
