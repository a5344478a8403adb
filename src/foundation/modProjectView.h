#pragma once

#include "foundation/SettingsStore.h"

#include <QString>
#include <QVariant>

namespace sv {

class ISpellingEngine;

// How GetAppValue hands its value back.
namespace Conversion {
inline constexpr int Text = 1;    // as a string
inline constexpr int Number = 4;  // as a double: the number the text starts with, else 0
}  // namespace Conversion

// The application's settings branch (mAppName). It is one value for the whole process: the
// control that set it last wins for all. Setting it (or LastPath) also makes both show among the
// globals of error reports.
QString AppName();
void setAppName(const QString& name);
// The folder GetPath offers when its caller passes none.
QString LastPath();
void setLastPath(const QString& path);

// The library's own branch, which a few settings name whatever the application is.
QString LibraryKeyPath();
// "Software\Corvasys\" followed by the application name.
QString RegKeyPath();

// Reads a value from rootPath (RegKeyPath when empty) plus "\" extraPath. A missing or empty
// value gives defaultValue. The result is a double for Conversion::Number and a string for any
// other conversion type. A boolean default counts as "1" or "0", as it would be stored.
QVariant GetAppValue(const QString& keyName, const QVariant& defaultValue,
                     int conversionType = Conversion::Text, const QString& extraPath = {},
                     Hive root = Hive::CurrentUser, const QString& rootPath = {});
// Writes a value as a string under RegKeyPath plus "\" extraPath in the user hive; booleans are
// stored as "1" and "0".
void SetAppValue(const QString& keyName, const QVariant& value, const QString& extraPath = {});
// The shared data folder from the machine hive, always ending in "/". Nothing checks that it
// exists.
QString CommonPath();
// Applies the user's spelling options (key "Spelling" of the application branch) to an engine.
void InitSpellingObject(ISpellingEngine& spellCtl);

}  // namespace sv
