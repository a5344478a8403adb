#pragma once

#include <gtest/gtest.h>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>
#include <map>
#include <string>

namespace sv::test {

// Points both settings hives at a fresh temporary folder for the lifetime of the object, and
// puts the environment back afterwards.
class TempSettings {
 public:
  TempSettings() {
    EXPECT_TRUE(mDir.isValid());
    Set("SCRIVARA_USER_SETTINGS_DIR", UserFolder());
    Set("SCRIVARA_MACHINE_SETTINGS_DIR", MachineFolder());
  }
  ~TempSettings() {
    for (const auto& [name, value] : mSaved) {
      if (value.isNull())
        qunsetenv(name.c_str());
      else
        qputenv(name.c_str(), value);
    }
  }
  TempSettings(const TempSettings&) = delete;
  TempSettings& operator=(const TempSettings&) = delete;

  QString Root() const { return mDir.path(); }
  QString UserFolder() const { return mDir.filePath(QStringLiteral("user")); }
  QString MachineFolder() const { return mDir.filePath(QStringLiteral("machine")); }

  // Remembers a variable's value the first time, then sets it (or unsets it for a null value).
  void Set(const char* name, const QString& value) {
    mSaved.try_emplace(name, qgetenv(name));
    if (value.isNull())
      qunsetenv(name);
    else
      qputenv(name, value.toUtf8());
  }

  static QString Text(const QString& fileName) {
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) return QStringLiteral("<no file>");
    return QString::fromUtf8(file.readAll());
  }
  static void Write(const QString& fileName, const QByteArray& text) {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(fileName).path()));
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  QString UserText() const { return Text(UserFolder() + QStringLiteral("/scrivara.ini")); }
  QString MachineText() const { return Text(MachineFolder() + QStringLiteral("/scrivara.ini")); }

 private:
  QTemporaryDir mDir;
  std::map<std::string, QByteArray> mSaved;  // null when the variable was unset
};

}  // namespace sv::test
