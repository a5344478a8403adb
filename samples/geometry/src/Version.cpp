#include "geometry/Version.h"

extern "C" const char* geometry_version() {
  return "1.0";
}
