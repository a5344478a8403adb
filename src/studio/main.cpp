#include <QApplication>
#include <QTextStream>
#include <QTimer>
#include <memory>

#include "codetree/ProjectEditor.h"
#include "foundation/ConsoleMessageService.h"
#include "foundation/MessageBox.h"
#include "foundation/Services.h"
#include "foundation/modProjectView.h"
#include "model/Error.h"
#include "project/config/InstallProjectModel.h"
#include "studio/MainWindow.h"
#include "studio/QtServices.h"
#include "studio/Screenshot.h"
#include "studio/StudioOptions.h"

namespace {

// Opens the project, selects an item and writes the window as a picture; boxes go to stderr,
// since nobody is there to answer them.
int takeScreenshot(sv::MainWindow& window, const sv::StudioOptions& options, QTextStream& err) {
  sv::Services::Install(std::make_shared<sv::ConsoleMessageService>());
  const QString path = options.path.isEmpty() ? sv::SampleProject() : options.path;
  if (!window.OpenPath(path)) return 1;
  if (!options.select.isEmpty() && !window.Editor()->SelectItem(options.select)) {
    err << "scrivara-studio: no item " << options.select << " in the code tree\n";
    return 1;
  }
  const QString error = sv::Screenshot::Take(window, options.screenshot);
  if (error.isEmpty()) return 0;
  err << "scrivara-studio: " << error << '\n';
  return 1;
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Scrivara Studio"));
  QApplication::setApplicationVersion(QStringLiteral(PROJECT_VERSION));
  QTextStream err(stderr);

  QString problem;
  const sv::StudioOptions options = sv::StudioOptions::Parse(QApplication::arguments(), &problem);
  if (!problem.isEmpty()) {
    err << "scrivara-studio: " << problem << '\n' << sv::StudioOptions::Usage();
    return 2;
  }

  const auto services = sv::InstallQtServices();
  sv::setAppName(QLatin1String(sv::MainWindow::AppName));
  try {
    sv::MainWindow window(sv::InstallProjectModel());
    if (!options.screenshot.isEmpty()) return takeScreenshot(window, options, err);
    window.show();
    if (!options.path.isEmpty())
      QTimer::singleShot(0, &window, [&window, &options] { window.OpenPath(options.path); });
    return QApplication::exec();
  } catch (const sv::Error& error) {
    // The shipped configuration or the sample could not be found: nothing can be shown.
    sv::Services::Message().ShowMessage(error.Description(), sv::Mb::OK | sv::Mb::Critical,
                                        QApplication::applicationName());
    return 1;
  }
}
