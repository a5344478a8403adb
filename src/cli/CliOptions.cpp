#include "cli/CliOptions.h"

#include "model/Error.h"

namespace sv {
namespace {

[[noreturn]] void Wrong(const QString& problem) {
  Raise(ErrorNumber::InvalidCall, problem);
}

class Arguments {
 public:
  explicit Arguments(const QStringList& list) : mList(list) {}
  bool AtEnd() const { return mAt >= mList.size(); }
  QString Next() { return mList.at(mAt++); }
  QString ValueOf(const QString& option) {
    if (AtEnd()) Wrong(QStringLiteral("%1 needs a value").arg(option));
    return Next();
  }

 private:
  const QStringList& mList;
  qsizetype mAt = 0;
};

}  // namespace

CliOptions CliOptions::Parse(const QStringList& arguments) {
  CliOptions options;
  Arguments args(arguments);
  while (!args.AtEnd()) {
    const QString word = args.Next();
    if (word == QLatin1String("--help") || word == QLatin1String("-h")) {
      options.command = QStringLiteral("help");
      return options;
    }
    if (word == QLatin1String("--doxygen-xml")) {
      options.doxygenXml = args.ValueOf(word);
    } else if (word == QLatin1String("--root")) {
      options.root = args.ValueOf(word);
    } else if (word == QLatin1String("--depth")) {
      bool ok = false;
      options.depth = args.ValueOf(word).toInt(&ok);
      if (!ok || options.depth < 0) Wrong(QStringLiteral("--depth needs a number of 0 or more"));
    } else if (word == QLatin1String("--select")) {
      options.select = args.ValueOf(word);
    } else if (word == QLatin1String("--find")) {
      options.find = args.ValueOf(word);
    } else if (word == QLatin1String("--grouped")) {
      options.grouped = true;
    } else if (word == QLatin1String("--private")) {
      options.showPrivate = true;
    } else if (word.startsWith(QLatin1String("--"))) {
      Wrong(QStringLiteral("unknown option %1").arg(word));
    } else if (options.command.isEmpty()) {
      options.command = word;
    } else if (options.project.isEmpty()) {
      options.project = word;
    } else {
      Wrong(QStringLiteral("unexpected argument %1").arg(word));
    }
  }
  if (options.command.isEmpty()) Wrong(QStringLiteral("no command given"));
  if (options.command != QLatin1String("tree") && options.command != QLatin1String("info"))
    Wrong(QStringLiteral("unknown command %1").arg(options.command));
  if (options.project.isEmpty() == options.doxygenXml.isEmpty())
    Wrong(QStringLiteral("give either a project file or --doxygen-xml DIR"));
  return options;
}

}  // namespace sv
