#pragma once

#include <QString>

namespace sv {
class ProjectModel;
}

namespace sv::test {

// The project as short lines: settings that differ from their defaults, document types,
// records, and every stored comment. Two projects that print the same hold the same data.
QString DumpProject(const ProjectModel& project);
// Only the comment store, items sorted by name: "qualified name" then "  id tag [status qualifier
// xml hidden]: text".
QString DumpComments(const ProjectModel& project);

}  // namespace sv::test
