#include "studio/ProjectLoader.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QProgressDialog>
#include <QtConcurrent/QtConcurrentRun>

#include "model/Error.h"
#include "project/doxygen/CodeSources.h"
#include "project/file/ProjectReader.h"
#include "project/model/ProjectModel.h"

namespace sv {

namespace {
// A project that opens faster than this shows no dialog at all.
constexpr int kProgressDelayMs = 400;
}  // namespace

LoadedProject ProjectLoader::Load(const QString& path) {
  try {
    if (QFileInfo(path).isDir()) return {CodeSources::OpenXmlFolder(path), {}};
    return {ProjectReader::Load(path), {}};
  } catch (const Error& error) {
    return {nullptr, error.Description()};
  } catch (const std::exception& error) {
    return {nullptr, QString::fromLocal8Bit(error.what())};
  }
}

LoadedProject ProjectLoader::LoadWithProgress(const QString& path, QWidget* parent) {
  QProgressDialog progress(
      QCoreApplication::translate("ProjectLoader", "Opening %1...").arg(QFileInfo(path).fileName()),
      QString(), 0, 0, parent);
  progress.setWindowTitle(QCoreApplication::applicationName());
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(kProgressDelayMs);
  progress.setValue(0);

  QFutureWatcher<LoadedProject> watcher;
  QEventLoop loop;
  QObject::connect(&watcher, &QFutureWatcher<LoadedProject>::finished, &loop, &QEventLoop::quit);
  watcher.setFuture(QtConcurrent::run([path] { return Load(path); }));
  if (!watcher.isFinished()) loop.exec();
  return watcher.result();
}

}  // namespace sv
