#pragma once

#include <QString>

namespace sv {

// The folder of what ships with the product (config/, icons/, templates/), ending in "/":
// 1. the folder that the environment variable SCRIVARA_DATA_DIR names, when it is set;
// 2. <folder of the program>/../share/scrivara, when it holds config/ (an installed program);
// 3. the source tree's data/, when it holds config/ (a program run from its build folder).
// Raises PathNotFound naming the places tried when none answers.
QString AppDataFolder();

// A folder in normal form ("~" expanded, "." and ".." steps gone), ending in "/": the form in
// which the configuration hands folders out.
QString NormalFolder(const QString& folder);

}  // namespace sv
